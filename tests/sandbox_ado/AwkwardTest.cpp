#include "automation/Error.h"
#include "automation/Object.h"
#include "sandbox/ado/Recordset.h"
#include "tests/support/DatabaseFile.h"

#include <gtest/gtest.h>

namespace
{

using automation::Object;
using automation::Value;

class AwkwardRecordset : public testing::Test
{
  protected:
    AwkwardRecordset()
    {
        mDatabase.Execute(
            L"CREATE TABLE Thing (Name VARCHAR(20), Size INTEGER, Weight DOUBLE, Id VARCHAR(36))");
        mDatabase.Execute(L"INSERT INTO Thing VALUES ('b',1,1.5,'0f8fad5b-d9cb-469f-a165-70867728950e'),"
                          L"('a',2,2.5,'x'),('d',300,3.5,'y'),('c',4,4.5,NULL)");
    }

    Object Rows()
    {
        const auto query = [this] { return mDatabase.Query(L"SELECT * FROM Thing ORDER BY rowid"); };
        return sandbox::MakeRecordset(query(), mAwkward, query);
    }

    static Value Field(const Object& rows, const wchar_t* name)
    {
        return rows.GetObject(L"Fields", name).Get(L"Value");
    }

    static std::wstring Names(const Object& rows)
    {
        std::wstring names;
        for (; !automation::TruthOf(rows.Get(L"EOF")); rows.Call(L"MoveNext"))
        {
            names += automation::TextOf(Field(rows, L"Name"));
        }
        return names;
    }

    test_support::DatabaseFile mFile{L"awkward"};
    sandbox::Connection mDatabase{mFile.ConnectionString()};
    sandbox::AwkwardAdo mAwkward;
};

TEST_F(AwkwardRecordset, IsNotAwkwardUnlessItIsSwitchedSoAndEverySwitchNamesItsSource)
{
    EXPECT_EQ(L"badc", Names(Rows()));
    for (const auto& one : sandbox::AwkwardAdoSwitches())
    {
        EXPECT_STRNE(L"", one.source) << one.name;
    }
    sandbox::SetSwitches(mAwkward, L"sort=Name;OpaqueBookmarks=1;Integers=3");
    EXPECT_EQ(L"Name", mAwkward.sort);
    EXPECT_TRUE(mAwkward.opaqueBookmarks);
    EXPECT_EQ(sandbox::IntegersAs::Decimals, mAwkward.integers);
    EXPECT_THROW(sandbox::SetSwitches(mAwkward, L"Sleepy=1"), automation::Error);
}

TEST_F(AwkwardRecordset, AnOpaqueBookmarkLeadsBackToItsRowAndAPositionNowhere)
{
    mAwkward.opaqueBookmarks = true;
    const Object rows = Rows();
    rows.Call(L"MoveNext");
    const Value bookmark = rows.Get(L"Bookmark");
    EXPECT_EQ(VT_R8, bookmark.Type());
    EXPECT_GT(automation::DoubleOf(bookmark), 4);
    rows.Call(L"MoveLast");
    rows.Call(L"Move", 0L, bookmark);
    EXPECT_EQ(2, automation::LongOf(rows.Get(L"AbsolutePosition")));
    EXPECT_EQ(L"a", automation::TextOf(Field(rows, L"Name")));
    EXPECT_THROW(rows.Call(L"Move", 0L, 2.0), automation::Error);
    EXPECT_EQ(L"a", automation::TextOf(Field(rows, L"Name")));
}

TEST_F(AwkwardRecordset, SortedAndFilteredItHasOtherPositionsAndTheSameBookmarks)
{
    const Object rows = Rows();
    rows.Call(L"MoveLast");
    const Value bookmark = rows.Get(L"Bookmark");
    rows.Put(L"Sort", L"Name DESC");
    EXPECT_EQ(L"dcba", Names(rows));
    rows.Put(L"Bookmark", bookmark);
    EXPECT_EQ(2, automation::LongOf(rows.Get(L"AbsolutePosition")));
    rows.Put(L"Filter", L"Size > 1 AND Name <> 'd'");
    EXPECT_EQ(2, automation::LongOf(rows.Get(L"RecordCount")));
    EXPECT_EQ(L"ca", Names(rows));
    rows.Put(L"Filter", 0L);
    rows.Put(L"Sort", L"");
    EXPECT_EQ(L"badc", Names(rows));
    EXPECT_THROW(rows.Put(L"Sort", L"Colour"), automation::Error);
    EXPECT_THROW(rows.Put(L"Filter", L"nonsense"), automation::Error);
}

TEST_F(AwkwardRecordset, ItsOwnerSortsOrFiltersItAtOnceOrWhileItIsRead)
{
    mAwkward.sort = L"Name";
    EXPECT_EQ(L"abcd", Names(Rows()));
    mAwkward.filter = L"Size < 100";
    EXPECT_EQ(L"abc", Names(Rows()));
    mAwkward.filter.clear();
    mAwkward.atMove = 2;
    EXPECT_EQ(L"bacd", Names(Rows())); // "b" and "a" as they were, then the third and fourth by name
}

TEST_F(AwkwardRecordset, AStaticOneStaysAsItWasAndAKeysetShowsChangesAndLosesDeletedRows)
{
    const Object fixed = Rows();
    mAwkward.rows = sandbox::RowsAs::Keyset;
    const Object keyset = Rows();
    mDatabase.Execute(L"UPDATE Thing SET Weight=9 WHERE Name='a'");
    mDatabase.Execute(L"DELETE FROM Thing WHERE Name='d'");
    mDatabase.Execute(L"INSERT INTO Thing VALUES ('e',5,5.5,NULL)");
    fixed.Call(L"MoveNext");
    keyset.Call(L"MoveNext");
    EXPECT_EQ(2.5, automation::DoubleOf(Field(fixed, L"Weight")));
    EXPECT_EQ(9, automation::DoubleOf(Field(keyset, L"Weight")));
    fixed.Call(L"MoveNext");
    keyset.Call(L"MoveNext");
    EXPECT_EQ(L"d", automation::TextOf(Field(fixed, L"Name")));
    try
    {
        Field(keyset, L"Name");
        ADD_FAILURE() << "a deleted row was read";
    }
    catch (const automation::Error& error)
    {
        EXPECT_EQ(sandbox::kRowDeleted, error.Code());
    }
    EXPECT_EQ(4, automation::LongOf(keyset.Get(L"RecordCount")));
    EXPECT_EQ(1, automation::LongOf(keyset.Get(L"CursorType")));
    EXPECT_EQ(3, automation::LongOf(fixed.Get(L"CursorType")));
}

TEST_F(AwkwardRecordset, NumbersComeInTheTypesOfOtherColumns)
{
    const std::pair<sandbox::IntegersAs, VARTYPE> types[] = {{sandbox::IntegersAs::Longs, VT_I4},
                                                             {sandbox::IntegersAs::Shorts, VT_I2},
                                                             {sandbox::IntegersAs::Bytes, VT_UI1},
                                                             {sandbox::IntegersAs::Decimals, VT_DECIMAL},
                                                             {sandbox::IntegersAs::Currencies, VT_CY}};
    for (const auto& [integers, type] : types)
    {
        mAwkward.integers = integers;
        const Object rows = Rows();
        EXPECT_EQ(type, Field(rows, L"Size").Type());
        EXPECT_EQ(1, automation::LongOf(Field(rows, L"Size")));
        EXPECT_EQ(1.5, automation::DoubleOf(Field(rows, L"Weight")));
    }
    mAwkward.integers = sandbox::IntegersAs::Bytes;
    const Object rows = Rows();
    rows.Call(L"Move", 2L);
    EXPECT_EQ(VT_I4, Field(rows, L"Size").Type()); // 300 does not fit
    EXPECT_EQ(17, automation::LongOf(rows.GetObject(L"Fields", L"Size").Get(L"Type")));
}

TEST_F(AwkwardRecordset, GuidsComeInBracesAndTextsPaddedWithBlanks)
{
    mAwkward.guids = true;
    mAwkward.charWidth = 10;
    const Object rows = Rows();
    EXPECT_EQ(L"{0f8fad5b-d9cb-469f-a165-70867728950e}", automation::TextOf(Field(rows, L"Id")));
    EXPECT_EQ(L"b         ", automation::TextOf(Field(rows, L"Name")));
    rows.Call(L"MoveLast");
    EXPECT_EQ(VT_NULL, Field(rows, L"Id").Type());
}

TEST_F(AwkwardRecordset, IsCountedFromItsOpeningUntilItIsClosedAlsoWhenItIsReleased)
{
    const long before = sandbox::OpenRecordsets();
    const Object rows = Rows();
    EXPECT_EQ(before + 1, sandbox::OpenRecordsets());
    rows.Call(L"Close");
    EXPECT_EQ(before, sandbox::OpenRecordsets());
    Rows();
    EXPECT_EQ(before + 1, sandbox::OpenRecordsets());
}

TEST_F(AwkwardRecordset, OneThatAClientCreatesTakesTheSwitchesOfTheProcess)
{
    sandbox::RecordsetsOfProcess().sort = L"Name";
    const Object rows = sandbox::MakeRecordset();
    sandbox::RecordsetsOfProcess() = {};
    rows.Call(L"Open", L"SELECT * FROM Thing", mFile.ConnectionString(), 3L);
    EXPECT_EQ(L"abcd", Names(rows));
}

} // namespace
