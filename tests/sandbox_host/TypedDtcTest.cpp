#include "automation/Error.h"
#include "tests/sandbox_host/HostFixture.h"

#include <oleauto.h>

namespace
{

using namespace test_support;

// The data-access object as a host written in Visual Basic has it.
class TypedHostObject : public HostFixture
{
  protected:
    Object mDtc = mHost.TypedDtc();
};

TEST_F(TypedHostObject, TellsItsMethodsWithTypedByReferenceParameters)
{
    Microsoft::WRL::ComPtr<ITypeInfo> type;
    ASSERT_EQ(S_OK, mDtc.Dispatch()->GetTypeInfo(0, LOCALE_NEUTRAL, &type));
    FUNCDESC* insert = nullptr;
    ASSERT_EQ(S_OK, type->GetFuncDesc(2, &insert));
    EXPECT_EQ(VT_PTR, insert->lprgelemdescParam[1].tdesc.vt);
    EXPECT_EQ(VT_BSTR, insert->lprgelemdescParam[1].tdesc.lptdesc->vt);
    type->ReleaseFuncDesc(insert);
}

TEST_F(TypedHostObject, WritesRowsInATransactionAndReportsItsNumbers)
{
    std::wstring fields = L"F_ACCID";
    std::wstring values = L"'a'";
    std::wstring text;
    mDtc.Call(L"BeginTrans");
    EXPECT_TRUE(automation::TruthOf(mDtc.Get(L"InTransaction")));
    EXPECT_GE(LongOf(mDtc.Call(L"Insert", L"TBLACCOUNT", ByRef(fields), ByRef(values), ByRef(text))), 0);
    mDtc.Call(L"CommitTrans");
    EXPECT_FALSE(automation::TruthOf(mDtc.Get(L"InTransaction")));
    EXPECT_EQ(1, Count(L"TBLACCOUNT"));
    std::wstring setList = L"F_ACCSNAME='Contoso'";
    EXPECT_EQ(0, LongOf(mDtc.Call(L"Update", L"TBLACCOUNT", ByRef(setList), L"", L"F_ACCID='a'")));
    EXPECT_EQ(L"Contoso", Stored(L"TBLACCOUNT", L"F_ACCSNAME"));
    EXPECT_EQ(1, LongOf(mDtc.Call(L"Delete", L"TBLACCOUNT", L"F_ACCID='a'")));
    EXPECT_LT(LongOf(mDtc.Call(L"Delete", L"NOTABLE", L"1=1")), 0);
}

TEST_F(TypedHostObject, OpensRecordsetsWithAndWithoutItsOptionalArguments)
{
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'a','Contoso'");
    Object rows;
    EXPECT_EQ(0, LongOf(mDtc.Call(L"OpenRecordset", ByRef(rows), L"AccountMyAccount")));
    EXPECT_EQ(1, LongOf(rows.Get(L"RecordCount")));
    EXPECT_EQ(0, LongOf(mDtc.Call(L"OpenRecordset", ByRef(rows), L"AccountMyAccount", Value::Missing(),
                                  L"F_ACCSNAME='Nobody'")));
    EXPECT_EQ(0, LongOf(rows.Get(L"RecordCount")));
    EXPECT_EQ(0, LongOf(mDtc.Call(L"OpenRecordsetByString", ByRef(rows), L"SELECT * FROM TBLACCOUNT")));
    EXPECT_EQ(L"Contoso", TextOf(rows.GetObject(L"Fields", L"F_ACCSNAME").Get(L"Value")));
}

TEST_F(TypedHostObject, RefusesAByReferenceArgumentOfAnotherType)
{
    long number = 1;
    std::wstring text;
    EXPECT_THROW(mDtc.Call(L"Insert", L"TBLACCOUNT", ByRef(number), ByRef(text), ByRef(text)),
                 automation::Error);
    long code = 2;
    const Object user = mDtc.GetObject(L"MyInfo");
    EXPECT_THROW(user.Call(L"PermissionOn", ByRef(text), ByRef(code), ByRef(code)), automation::Error);
    mHost.SetRight(2, 2, 2, 1);
    EXPECT_EQ(1, LongOf(user.Call(L"PermissionOn", ByRef(code), ByRef(code), ByRef(code))));
    EXPECT_EQ(L"1", TextOf(user.Get(L"UID")));
}

TEST_F(TypedHostObject, HandsADescriptionThrough)
{
    mHost.Failures().Order(L"NewGuid", 1, {.result = std::nullopt, .reason = L"The disk is full"});
    try
    {
        mDtc.Call(L"NewGuid");
        FAIL() << "no error was raised";
    }
    catch (const automation::Error& error)
    {
        EXPECT_EQ(L"The disk is full", error.Description());
    }
    EXPECT_EQ(36u, TextOf(mDtc.Call(L"NewGuid")).size());
}

TEST_F(TypedHostObject, AHostSortsItsRecordsetsAsItIsSwitched)
{
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'a','Adatum'");
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'b','Contoso'");
    mHost.Recordsets().sort = L"F_ACCSNAME DESC";
    EXPECT_EQ((std::vector<std::wstring>{L"Contoso", L"Adatum"}),
              ColumnOf(L"AccountMyAccount", L"F_ACCSNAME"));
}

} // namespace
