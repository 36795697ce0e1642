#include "automation/Recordset.h"

#include "automation/Error.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/ado/AwkwardAdo.h"
#include "tests/automation/ScriptedObject.h"
#include "tests/support/CallWatch.h"
#include "tests/support/DatabaseFile.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using namespace automation;
using test_support::CallWatch;
using test_support::DatabaseFile;

class RecordsetTest : public testing::Test
{
  protected:
    Recordset Open(const std::wstring& sql) { return OpenRecordset(sql, mDatabase.ConnectionString(), {}); }

  private:
    sandbox::AdoInProcess mAdo;
    DatabaseFile mDatabase;
};

TEST_F(RecordsetTest, AColumnIsFetchedOnceAndItsFieldFollowsTheRow)
{
    const Recordset rows =
        Open(L"SELECT 'a' AS Name, 1 AS Size UNION ALL SELECT 'b', 2 UNION ALL SELECT 'c', 3");
    const CallWatch calls;
    std::wstring read;
    for (; !rows.AtEnd(); rows.MoveNext())
    {
        read += TextOf(rows.ValueOf(L"Name")) + TextOf(rows.ValueOf(L"Size")) + TextOf(rows.ValueOf(L"Name"));
    }
    EXPECT_EQ(L"a1ab2bc3c", read);
    EXPECT_EQ(2, calls.Of(L"Recordset.Fields"));
    EXPECT_EQ(9, calls.Of(L"Field.Value"));
}

TEST_F(RecordsetTest, ACopyTakesTheKnownColumnsAlong)
{
    const Recordset rows = Open(L"SELECT 1 AS Size");
    rows.ValueOf(L"Size");
    const Recordset copy = rows; // NOLINT(performance-unnecessary-copy-initialization): tests the copy
    const CallWatch calls;
    EXPECT_EQ(1, LongOf(copy.ValueOf(L"Size")));
    EXPECT_EQ(0, calls.Of(L"Recordset.Fields"));
}

TEST_F(RecordsetTest, AColumnThatIsNotThereIsAnErrorEachTime)
{
    const Recordset rows = Open(L"SELECT 1 AS Size");
    EXPECT_THROW(rows.ValueOf(L"Weight"), Error);
    EXPECT_THROW(rows.ValueOf(L"Weight"), Error);
    EXPECT_EQ(1, LongOf(rows.ValueOf(L"SIZE")));
}

TEST_F(RecordsetTest, ANameHasNoBlanksAtItsEndInAColumnOfAFixedWidthOnly)
{
    sandbox::RecordsetsOfProcess().charWidth = 8;
    EXPECT_EQ(L"abc", Open(L"SELECT 'abc' AS Name").NameIn(L"Name"));
    sandbox::RecordsetsOfProcess() = {};
    EXPECT_EQ(L"abc ", Open(L"SELECT 'abc ' AS Name").NameIn(L"Name"));
    EXPECT_EQ(L"", Open(L"SELECT NULL AS Name").NameIn(L"Name"));
}

TEST_F(RecordsetTest, ARowIsFoundAgainByThePositionItHad)
{
    const Recordset rows = Open(L"SELECT 1 AS Size UNION ALL SELECT 2 UNION ALL SELECT 3");
    rows.MoveNext();
    const long position = rows.AbsolutePosition();
    rows.MoveNext();
    rows.MoveTo(position);
    EXPECT_EQ(2, LongOf(rows.ValueOf(L"Size")));
    rows.MoveFirst();
    EXPECT_EQ(1, rows.AbsolutePosition());
    EXPECT_EQ(3, rows.RecordCount());
}

TEST(Recordset, ABookmarkTravelsAsADoubleWithZeroRecords)
{
    test_support::ScriptedObject scripted;
    scripted.Member = L"Move";
    scripted.OnCall = [](const test_support::ArrivedCall& call) {
        EXPECT_EQ(VT_I4, call.At(0).vt);
        EXPECT_EQ(0, call.At(0).lVal);
        EXPECT_EQ(VT_R8, call.At(1).vt);
        EXPECT_EQ(12.0, call.At(1).dblVal);
        return S_OK;
    };
    Recordset(Object(&scripted)).MoveTo(12);
}

TEST_F(RecordsetTest, OnlyBothEndsAtOnceMeanThatThereIsNoRow)
{
    const Recordset none = Open(L"SELECT 1 AS Size WHERE 1=0");
    EXPECT_TRUE(none.HasNoRows());
    const Recordset one = Open(L"SELECT 1 AS Size");
    EXPECT_FALSE(one.HasNoRows());
    one.MoveNext();
    EXPECT_TRUE(one.AtEnd());
    EXPECT_FALSE(one.HasNoRows());
}

TEST_F(RecordsetTest, AScopeClosesItsRecordsetOnEveryWayOut)
{
    const CallWatch calls;
    Recordset rows = Open(L"SELECT 1 AS Size");
    try
    {
        const RecordsetCloser closer(rows);
        throw std::runtime_error("on the way");
    }
    catch (const std::runtime_error&)
    {
        EXPECT_FALSE(rows);
    }
    EXPECT_EQ(1, calls.Of(L"Recordset.Close"));
}

TEST(CloseRecordset, IgnoresARecordsetWhoseStateCannotBeRead)
{
    test_support::ScriptedObject scripted;
    scripted.Member = L"State";
    scripted.OnCall = [](const test_support::ArrivedCall&) { return E_FAIL; };
    Recordset rows{Object(&scripted)};
    CloseRecordset(rows);
    EXPECT_FALSE(rows);
    EXPECT_EQ(0, scripted.References());
}

} // namespace
