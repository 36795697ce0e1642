// Nothing is lost or half-written when the host or Outlook refuses: each contact is written whole or not at
// all, and the walk goes on.
#include "tests/contacts/ContactsFixture.h"

#include "tests/support/MessageBoxes.h"
#include "tests/support/Thoroughness.h"

namespace
{

using test_support::Day;
using test_support::MessagesDuring;

class ContactsFromOutlookFailure : public test_support::ContactsFixture
{
  protected:
    long AddEmployee(const std::wstring& name, const std::wstring& company)
    {
        return AddItem({{L"LastName", name},
                        {L"FirstName", L"Ann"},
                        {L"CompanyName", company},
                        {L"BusinessAddressCity", L"Bonn"}});
    }

    void Clear()
    {
        for (const wchar_t* table : {L"TBLCONTACT", L"TBLACCOUNT", L"TBLACCINFO", L"TBLADDRESS"})
        {
            Execute(L"DELETE FROM " + std::wstring(table));
        }
    }

    // The two items, into an empty host, while the k-th call that reaches a fake fails; false when there
    // were not so many calls.
    bool ImportWithFailureAt(long k)
    {
        Clear();
        exchange::Run run = NewRun();
        run.Pending.NewOutlookItems.Add(L"1", 0);
        run.Pending.NewOutlookItems.Add(L"2", 0);
        test_support::CallWatch watch;
        watch.FailNth(k, [](const std::wstring&) { return true; });
        contacts::SynContactFromOutlook(run);
        return watch.HasFailed();
    }

    void ExpectOnlyWholeContacts()
    {
        EXPECT_FALSE(TheHost.Database().InTransaction());
        EXPECT_EQ(Count(L"TBLACCINFO"), Count(L"TBLACCOUNT"));
        EXPECT_EQ(Found(L"SELECT COUNT(*) FROM TBLADDRESS WHERE F_ACCID NOT IN (SELECT F_ACCID FROM "
                        L"TBLACCOUNT)"),
                  L"0");
        EXPECT_EQ(Found(L"SELECT COUNT(*) FROM TBLACCOUNT WHERE F_ACCID NOT IN (SELECT F_ACCID FROM "
                        L"TBLCONTACT WHERE F_ACCID IS NOT NULL)"),
                  L"0");
    }

    // The first contact's n-th call of a host member fails; of the second one everything must be there, of
    // the first nothing.
    void ExpectOnlyTheFirstToBeMissing(const std::wstring& member, long n, std::optional<long> result)
    {
        Clear();
        const long first = AddEmployee(L"First", L"First Inc.");
        const long second = AddEmployee(L"Second", L"Second Inc.");
        TheHost.Failures().Order(member, n, {result});
        EXPECT_FALSE(Import({first, second}));
        EXPECT_FALSE(TheHost.Database().InTransaction());
        EXPECT_EQ(Found(L"SELECT group_concat(F_SURNAME) FROM TBLCONTACT"), L"Second");
        EXPECT_EQ(Found(L"SELECT group_concat(F_ACCSNAME) FROM TBLACCOUNT"), L"Second Inc.");
        EXPECT_EQ(Count(L"TBLACCINFO"), 1);
        EXPECT_EQ(Count(L"TBLADDRESS"), 1);
    }
};

TEST_F(ContactsFromOutlookFailure, ARefusedInsertLeavesNoRowOfThatContactAndThePassContinues)
{
    // account, information row, address, contact
    for (long n = 1; n <= 4; ++n)
    {
        SCOPED_TRACE(n);
        ExpectOnlyTheFirstToBeMissing(L"Insert", n, -1);
        ExpectOnlyTheFirstToBeMissing(L"Insert", n, std::nullopt);
    }
}

TEST_F(ContactsFromOutlookFailure, AnyOtherHostMemberThatFailsLeavesNoRowEither)
{
    ExpectOnlyTheFirstToBeMissing(L"BeginTrans", 1, std::nullopt);
    ExpectOnlyTheFirstToBeMissing(L"CommitTrans", 1, std::nullopt);
    ExpectOnlyTheFirstToBeMissing(L"OpenRecordsetByString", 1, -1);
    for (long n = 1; n <= 4; ++n)
    {
        SCOPED_TRACE(n);
        ExpectOnlyTheFirstToBeMissing(L"NewGuid", n, std::nullopt);
    }
}

TEST_F(ContactsFromOutlookFailure, AnyPositiveResultOfAnInsertIsSuccess)
{
    for (long n = 1; n <= 4; ++n) // account, information row, address, contact
    {
        SCOPED_TRACE(n);
        Clear();
        TheHost.Failures().Order(L"Insert", n, {5});
        EXPECT_EQ(Write(1, AddEmployee(L"Miller", L"Acme")), 0);
    }
}

TEST_F(ContactsFromOutlookFailure, AfterAFailedAccountTheTransactionIsAskedForOnceAndNothingIsDeleted)
{
    for (long n = 1; n <= 2; ++n) // account, information row
    {
        const long asked = TheHost.Failures().CallsOf(L"InTransaction");
        TheHost.Failures().Order(L"Insert", n, {-1});
        EXPECT_EQ(Write(1, AddEmployee(L"Miller", L"Acme")), -1);
        EXPECT_EQ(TheHost.Failures().CallsOf(L"InTransaction") - asked, 1);
        EXPECT_TRUE(NothingWritten());
    }
    EXPECT_EQ(TheHost.Failures().CallsOf(L"Delete"), 0);
}

TEST_F(ContactsFromOutlookFailure, AnAccountSourceThatCannotBeOpenedFailsTheContact)
{
    const long item = AddEmployee(L"Miller", L"Acme");
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(std::to_wstring(item), 0);
    TheHost.Failures().Order(L"OpenRecordset", 1, {-1});
    EXPECT_FALSE(contacts::SynContactFromOutlook(run));
    EXPECT_TRUE(NothingWritten());
}

TEST_F(ContactsFromOutlookFailure, AnyUpdateResultButZeroFailsAndRollsTheAddressBack)
{
    Import({AddEmployee(L"Miller", L"Acme")});
    const long item = AddItem({{L"LastName", L"Li"},
                               {L"FirstName", L"Mei"},
                               {L"CompanyName", L"Acme"},
                               {L"BusinessAddressCity", L"Paris"}});
    for (const long result : {-1L, 1L})
    {
        for (long n = 1; n <= 2; ++n) // the address, then the contact
        {
            TheHost.Failures().Order(L"Update", n, {result});
            EXPECT_FALSE(Overwrite({{item, 1}}));
            EXPECT_EQ(Found(L"SELECT F_SURNAME || ADDR_CITY FROM VW_CONTACT"), L"MillerBonn");
            EXPECT_FALSE(TheHost.Database().InTransaction());
        }
    }
    EXPECT_FALSE(Overwrite({{item, 1}}));
    EXPECT_EQ(Found(L"SELECT F_SURNAME || ADDR_CITY FROM VW_CONTACT"), L"LiParis");
}

TEST_F(ContactsFromOutlookFailure, AColumnThatTheHostDoesNotHaveFailsTheContact)
{
    Execute(L"INSERT INTO SynRelation (QuenlarTblName, EnglishName, OutlookName) VALUES "
            L"('TBLCONTACT','F_NOWHERE','NickName')");
    Execute(L"INSERT INTO SynFields VALUES ('F_NOWHERE', 2, 10)");
    EXPECT_EQ(Write(1, AddNamedItem({{L"NickName", L"x"}, {L"CompanyName", L"Acme"}})), -1);
    EXPECT_TRUE(NothingWritten());
    EXPECT_EQ(TheHost.Rejections().size(), 1u);
}

TEST_F(ContactsFromOutlookFailure, AValueThatCannotBeFormattedFailsBeforeAnyTransaction)
{
    Execute(L"UPDATE SynFields SET FieldType=4 WHERE FieldName='F_NICKNAME'");
    EXPECT_EQ(Write(1, AddNamedItem({{L"NickName", L"not a date"}})), -1);
    EXPECT_TRUE(NothingWritten());
    EXPECT_EQ(TheHost.Failures().CallsOf(L"BeginTrans"), 0);
}

TEST_F(ContactsFromOutlookFailure, AColumnThatTheCatalogueDoesNotHaveIsReportedAndFailsTheContact)
{
    Execute(L"DELETE FROM SynFields WHERE FieldName='F_NICKNAME'");
    const long item = AddNamedItem({{L"NickName", L"x"}});
    const auto shown = MessagesDuring([&] { EXPECT_EQ(Write(1, item), -1); });
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown.front().caption, L"GetFieldType");
    EXPECT_TRUE(NothingWritten());
}

TEST_F(ContactsFromOutlookFailure, UnreadableRelationsOrCatalogueFailEachContactAndNotThePass)
{
    const std::vector<long> items = {AddNamedItem({}), AddNamedItem({})};
    for (const wchar_t* table : {L"SynRelation", L"SynFields"})
    {
        Execute(L"ALTER TABLE " + std::wstring(table) + L" RENAME TO Elsewhere");
        EXPECT_EQ(Write(1, items[0]), -1);
        EXPECT_FALSE(Import(items));
        EXPECT_TRUE(NothingWritten());
        Execute(L"ALTER TABLE Elsewhere RENAME TO " + std::wstring(table));
    }
    EXPECT_FALSE(Import(items));
    EXPECT_EQ(Count(L"TBLCONTACT"), 2);
}

TEST_F(ContactsFromOutlookFailure, WhicheverCallFailsEveryContactIsWrittenWholeOrNotAtAll)
{
    AddEmployee(L"First", L"Acme");
    AddItem({{L"LastName", L"Second"}, {L"FirstName", L"Ann"}, {L"Birthday", Day(1980, 1, 2)}});
    MessagesDuring([&] {
        const long step = test_support::ByThoroughness(8, 1, 1);
        for (long k = 1; ImportWithFailureAt(k) && !HasFailure(); k += step)
        {
            SCOPED_TRACE(k);
            ExpectOnlyWholeContacts();
        }
    });
    EXPECT_EQ(Count(L"TBLCONTACT"), 2); // in the last pass no call was left to fail
}

} // namespace
