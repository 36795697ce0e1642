#include "data/Host.h"

#include "automation/Error.h"
#include "state/SharedState.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

namespace
{

using automation::Error;
using automation::Recordset;
using data::Host;
using data::Transaction;
using Calls = std::vector<std::wstring>;

class HostContract : public testing::Test
{
  protected:
    test_support::WithFakeHost Dtc;
};

TEST_F(HostContract, ARecordSourceIsOpenedIntoTheVariableWithItsFilterAsFourthArgument)
{
    Dtc->Rows = {{{L"F_ACCID"}}, {{L"A1"}}};
    Recordset rows;
    EXPECT_EQ(Host().OpenRecordset(rows, L"AccountMyAccount", L"F_ACCSNAME='x'"), 0);
    EXPECT_EQ(automation::TextOf(rows.ValueOf(L"F_ACCID")), L"A1");
    EXPECT_EQ(Host().OpenRecordset(rows, L"ContactMyContact"), 0);
    EXPECT_EQ(Dtc->Calls, (Calls{L"OpenRecordset(nothing|AccountMyAccount|omitted|F_ACCSNAME='x')",
                                 L"OpenRecordset(rows|ContactMyContact)"}));
}

TEST_F(HostContract, WritesPassTheirListsInTheContractsOrder)
{
    const Host host;
    host.Insert(L"TBLCONTACT", L"F_CNTCTID,F_CREATORID", L"'1','2'");
    host.Update(L"TBLCONTACT", L"F_SURNAME='Li'", L"F_CNTCTID='1'");
    host.Delete(L"T_POutlookSyncFolder", L"F_UID=1");
    EXPECT_EQ(Dtc->Calls, (Calls{L"Insert(TBLCONTACT|F_CNTCTID,F_CREATORID|'1','2'|)",
                                 L"Update(TBLCONTACT|F_SURNAME='Li'||F_CNTCTID='1')",
                                 L"Delete(T_POutlookSyncFolder|F_UID=1)"}));
}

TEST_F(HostContract, AnErrorOfTheHostComesWithItsOwnWords)
{
    Dtc->Failing = {L"Update"};
    try
    {
        Host().Update(L"TBLCONTACT", L"", L"");
        FAIL() << "no error";
    }
    catch (const Error& error)
    {
        EXPECT_EQ(error.Code(), E_FAIL);
        EXPECT_EQ(error.Description(), L"The host raised an error");
    }
}

TEST_F(HostContract, ATransactionCommitsOnceAndDoesNotRollBackAfterwards)
{
    {
        const Host host;
        Transaction transaction(host);
        transaction.Commit();
    }
    EXPECT_EQ(Dtc->Calls, (Calls{L"BeginTrans()", L"InTransaction()", L"CommitTrans()"}));
}

TEST_F(HostContract, ATransactionThatIsLeftWithoutCommitRollsBack)
{
    {
        const Host host;
        const Transaction transaction(host);
    }
    EXPECT_EQ(Dtc->Calls, (Calls{L"BeginTrans()", L"InTransaction()", L"RollbackTrans()"}));
}

TEST_F(HostContract, WithoutAPendingTransactionNothingIsCommittedOrRolledBack)
{
    Dtc->BeginOpensTransaction = false;
    {
        const Host host;
        Transaction committed(host);
        committed.Commit();
        const Transaction left(host);
    }
    EXPECT_EQ(Dtc->Calls, (Calls{L"BeginTrans()", L"InTransaction()", L"BeginTrans()", L"InTransaction()"}));
}

TEST_F(HostContract, AFailedCommitRollsBack)
{
    Dtc->Failing = {L"CommitTrans"};
    const Host host;
    EXPECT_THROW(
        {
            Transaction transaction(host);
            transaction.Commit();
        },
        Error);
    EXPECT_EQ(Dtc->Calls.back(), L"RollbackTrans()");
    EXPECT_FALSE(Dtc->Pending);
}

TEST_F(HostContract, AFailedRollbackIsSwallowedSinceTheRecordHasFailedAlready)
{
    Dtc->Failing = {L"RollbackTrans"};
    const Host host;
    EXPECT_NO_THROW({ const Transaction transaction(host); });
}

TEST(CloseRecordset, DoesNothingForAVariableThatHoldsNothing)
{
    Recordset nothing;
    automation::CloseRecordset(nothing);
    EXPECT_FALSE(nothing);
}

TEST(CloseRecordset, ClosesAnOpenRecordsetAndReleasesIt)
{
    const automation::Object object = sandbox::MakeRecordset(sandbox::ResultSet{{{L"A"}}, {}});
    Recordset rows(object);
    automation::CloseRecordset(rows);
    EXPECT_FALSE(rows);
    EXPECT_EQ(automation::LongOf(object.Get(L"State")), 0);
}

TEST(CloseRecordset, RaisesNothingForARecordsetThatIsClosedAlready)
{
    Recordset rows(sandbox::MakeRecordset());
    automation::CloseRecordset(rows);
    EXPECT_FALSE(rows);
}

TEST(CloseRecordset, RaisesNothingForAnObjectThatIsNoRecordset)
{
    const test_support::WithFakeHost host;
    Recordset rows(state::Shared().gDTC);
    automation::CloseRecordset(rows);
    EXPECT_FALSE(rows);
}

} // namespace
