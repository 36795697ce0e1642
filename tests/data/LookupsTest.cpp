#include "data/Lookups.h"
#include "data/ContractForms.h"

#include "automation/Error.h"
#include "data/Host.h"
#include "links/AccountInfo.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

namespace
{

using automation::TextOf;
using automation::Value;
using data::LookupTypedValue;
using data::LookupValue;
using links::AddAccountInfo;
using Calls = std::vector<std::wstring>;

class Lookups : public testing::Test
{
  protected:
    std::wstring LookedUp(const std::wstring& key)
    {
        Value result = L"(untouched)";
        return LookupValue(L"TBLACCOUNT", L"F_ACCSNAME", key, L"F_ACCID", result) == 0 ? TextOf(result)
                                                                                       : L"(failed)";
    }

    test_support::WithFakeHost Host;
};

using AccountInfo = Lookups;

TEST_F(Lookups, TheStatementIsWordedAsTheHostExpectsIt)
{
    LookedUp(L"Miller");
    EXPECT_EQ(Host->Calls, (Calls{L"OpenRecordsetByString(nothing|SELECT F_ACCID\r\nFROM TBLACCOUNT\r\n"
                                  L"WHERE F_ACCSNAME= 'Miller')"}));
}

TEST_F(Lookups, TheResultIsTheColumnOfTheFirstRow)
{
    Host->Rows = {{{L"F_ACCID"}}, {{L"A1"}, {L"A2"}}};
    EXPECT_EQ(LookedUp(L"Miller"), L"A1");
}

TEST_F(Lookups, NoRowIsSuccessWithAnEmptyResult)
{
    Host->Rows = {{{L"F_ACCID"}}, {}};
    EXPECT_EQ(LookedUp(L"Miller"), L"");
}

TEST_F(Lookups, ANegativeStatusOrAnErrorFailsAndLeavesTheResultAlone)
{
    Value result = L"before";
    Host->Status[L"OpenRecordsetByString"] = -1;
    EXPECT_EQ(LookupValue(L"T", L"K", L"k", L"R", result), -1);
    Host->Status.clear();
    Host->Failing = {L"OpenRecordsetByString"};
    EXPECT_EQ(LookupValue(L"T", L"K", L"k", L"R", result), -1);
    EXPECT_EQ(TextOf(result), L"before");
}

TEST_F(Lookups, APositiveStatusIsSuccess)
{
    Host->Status[L"OpenRecordsetByString"] = 5;
    Host->Rows = {{{L"F_ACCID"}}, {{L"A1"}}};
    EXPECT_EQ(LookedUp(L"Miller"), L"A1");
}

TEST_F(Lookups, AnApostropheInAKeyIsDoubled)
{
    LookedUp(L"O'Brien");
    EXPECT_NE(Host->Calls.front().find(L"F_ACCSNAME= 'O''Brien'"), std::wstring::npos);
}

TEST_F(Lookups, TheRecordsetIsClosedInEveryCase)
{
    Host->Rows = {{{L"F_ACCID"}}, {{L"A1"}}};
    LookedUp(L"Miller");
    Host->Rows = {{{L"F_ELSE"}}, {{L"A1"}}};
    EXPECT_EQ(LookedUp(L"Miller"), L"(failed)");
    Host->Rows = {{{L"F_AITID"}}, {{L"TYPE"}}};
    EXPECT_EQ(AddAccountInfo(L"A1"), 0);
    ASSERT_EQ(Host->Opened.size(), 3u);
    for (const automation::Object& rows : Host->Opened)
    {
        EXPECT_EQ(automation::LongOf(rows.Get(L"State")), 0);
    }
}

TEST_F(Lookups, ANegativeStatusIsTheErrorsNumber)
{
    Host->Status[L"OpenRecordsetByString"] = -3;
    try
    {
        data::FindValue(L"T", L"K", L"k", L"R");
        FAIL() << "no error";
    }
    catch (const automation::Error& error)
    {
        EXPECT_EQ(error.Code(), -3);
    }
}

TEST_F(Lookups, ATypedKeyIsQuotedByItsType)
{
    Value result;
    for (const wchar_t* type : {data::kTextKey, data::kDateKey, data::kFlagKey, L"Number"})
    {
        EXPECT_EQ(LookupTypedValue(L"T", L"K", L"1", type, L"R", result), 0);
    }
    EXPECT_EQ(Host->Calls, (Calls{L"OpenRecordsetByString(nothing|SELECT R\r\nFROM T\r\nWHERE K='1')",
                                  L"OpenRecordsetByString(nothing|SELECT R\r\nFROM T\r\nWHERE K='1')",
                                  L"OpenRecordsetByString(nothing|SELECT R\r\nFROM T\r\nWHERE K=1)",
                                  L"OpenRecordsetByString(nothing|SELECT R\r\nFROM T\r\nWHERE K=1)"}));
}

TEST_F(Lookups, AKeyOfAnyTypeIsOneLiteral)
{
    Value result;
    for (const wchar_t* type : {data::kTextKey, data::kDateKey, data::kFlagKey, L"Number"})
    {
        LookupTypedValue(L"T", L"K", L"1 OR O'Brien=1", type, L"R", result);
        EXPECT_EQ(Host->Calls.back(),
                  L"OpenRecordsetByString(nothing|SELECT R\r\nFROM T\r\nWHERE K='1 OR O''Brien=1')");
    }
    LookupTypedValue(L"T", L"K", L"True", data::kFlagKey, L"R", result);
    EXPECT_EQ(Host->Calls.back(), L"OpenRecordsetByString(nothing|SELECT R\r\nFROM T\r\nWHERE K=True)");
}

TEST_F(Lookups, TheThrowingFormPassesOnTheHostsError)
{
    Host->Failing = {L"OpenRecordsetByString"};
    try
    {
        data::FindValue(L"T", L"K", L"k", L"R");
        FAIL() << "no error";
    }
    catch (const automation::Error& error)
    {
        EXPECT_EQ(error.Description(), L"The host raised an error");
    }
}

TEST_F(AccountInfo, TheRowTakesANewKeyTheSystemsTypeAndTheAccount)
{
    Host->Rows = {{{L"F_AITID"}}, {{L"TYPE"}}};
    EXPECT_EQ(AddAccountInfo(L"A1"), 0);
    EXPECT_EQ(Host->Calls,
              (Calls{L"OpenRecordsetByString(nothing|SELECT F_AITID FROM TBLSYSINFO)", L"NewGuid()",
                     L"Insert(TBLACCINFO|F_AIID, F_AITID, F_ACCID|'KEY-1', 'TYPE', 'A1'|)"}));
}

TEST_F(AccountInfo, AnyPositiveStatusOfTheInsertIsSuccess)
{
    Host->Rows = {{{L"F_AITID"}}, {{L"TYPE"}}};
    Host->Status[L"Insert"] = 1;
    EXPECT_EQ(AddAccountInfo(L"A1"), 0);
}

TEST_F(AccountInfo, ARefusedInsertOrAnyErrorFails)
{
    Host->Rows = {{{L"F_AITID"}}, {{L"TYPE"}}};
    Host->Status[L"Insert"] = -1;
    EXPECT_EQ(AddAccountInfo(L"A1"), -1);
    Host->Status.clear();
    for (const wchar_t* member : {L"OpenRecordsetByString", L"NewGuid", L"Insert"})
    {
        Host->Failing = {member};
        EXPECT_EQ(AddAccountInfo(L"A1"), -1) << member;
    }
}

TEST_F(AccountInfo, TheThrowingFormPassesOnTheHostsError)
{
    Host->Rows = {{{L"F_AITID"}}, {{L"TYPE"}}};
    Host->Failing = {L"Insert"};
    try
    {
        links::InsertAccountInfo(data::Host(), L"A1");
        FAIL() << "no error";
    }
    catch (const automation::Error& error)
    {
        EXPECT_EQ(error.Description(), L"The host raised an error");
    }
}

TEST_F(AccountInfo, WithoutASystemRowItFails)
{
    Host->Rows = {{{L"F_AITID"}}, {}};
    EXPECT_EQ(AddAccountInfo(L"A1"), -1);
}

} // namespace
