#include "automation/Error.h"
#include "automation/Object.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/ado/Recordset.h"
#include "tests/support/DatabaseFile.h"

#include <gtest/gtest.h>

namespace
{

using automation::LongOf;
using automation::Object;
using automation::TextOf;
using automation::TruthOf;
using automation::Value;

constexpr long kForwardOnly = 0;
constexpr long kKeyset = 1;
constexpr long kStatic = 3;
constexpr long kReadOnly = 1;
constexpr long kText = 1;
constexpr long kClient = 3;

class AdoCursor : public testing::Test
{
  protected:
    AdoCursor()
    {
        sandbox::Connection database(mFile.ConnectionString());
        database.Execute(L"CREATE TABLE Thing (Name VARCHAR(20), Size INTEGER)");
        database.Execute(L"INSERT INTO Thing VALUES ('a',1),('b',2),('c',3),('d',4)");
    }

    Object Open(const std::wstring& sql = L"SELECT * FROM Thing", long cursorType = kKeyset)
    {
        Object rows = sandbox::MakeRecordset();
        rows.Call(L"Open", sql, mFile.ConnectionString(), cursorType, kReadOnly, kText);
        return rows;
    }

    static std::wstring NameOf(const Object& rows)
    {
        return TextOf(rows.GetObject(L"Fields", L"Name").Get(L"Value"));
    }

    template<typename Body>
    static automation::Error ErrorOf(Body&& body)
    {
        try
        {
            body();
        }
        catch (const automation::Error& error)
        {
            return error;
        }
        return {S_OK, L"no error"};
    }

    test_support::DatabaseFile mFile{L"cursor"};
};

TEST_F(AdoCursor, MovesByRowsInBothDirections)
{
    const Object rows = Open();
    rows.Call(L"Move", 2L);
    EXPECT_EQ(L"c", NameOf(rows));
    rows.Call(L"Move", -1L);
    EXPECT_EQ(L"b", NameOf(rows));
    rows.Call(L"MoveLast");
    EXPECT_EQ(L"d", NameOf(rows));
    rows.Call(L"MovePrevious");
    EXPECT_EQ(L"c", NameOf(rows));
}

TEST_F(AdoCursor, MovesFromABookmarkGivenAsADoubleOrALong)
{
    const Object rows = Open();
    rows.Call(L"Move", 0L, 3.0);
    EXPECT_EQ(L"c", NameOf(rows));
    rows.Call(L"Move", -1L, 4L);
    EXPECT_EQ(L"c", NameOf(rows));
    rows.Call(L"Move", 1L, 4.0);
    EXPECT_TRUE(TruthOf(rows.Get(L"EOF")));
}

TEST_F(AdoCursor, ABookmarkIsADoubleAndLeadsBackToItsRow)
{
    const Object rows = Open();
    rows.Call(L"MoveNext");
    const Value bookmark = rows.Get(L"Bookmark");
    EXPECT_EQ(VT_R8, bookmark.Type());
    rows.Call(L"MoveLast");
    rows.Put(L"Bookmark", bookmark);
    EXPECT_EQ(2, LongOf(rows.Get(L"AbsolutePosition")));
    rows.Put(L"AbsolutePosition", 4L);
    EXPECT_EQ(L"d", NameOf(rows));
}

TEST_F(AdoCursor, SteppingOffEitherEndIsAllowedOnceAndRefusedTheSecondTime)
{
    const Object rows = Open();
    rows.Call(L"MovePrevious");
    EXPECT_TRUE(TruthOf(rows.Get(L"BOF")));
    EXPECT_FALSE(TruthOf(rows.Get(L"EOF")));
    EXPECT_EQ(sandbox::kNoCurrentRecord, ErrorOf([&] { rows.Call(L"MovePrevious"); }).Code());
    rows.Call(L"MoveNext");
    EXPECT_EQ(L"a", NameOf(rows));
    rows.Call(L"MoveLast");
    rows.Call(L"MoveNext");
    EXPECT_TRUE(TruthOf(rows.Get(L"EOF")));
    EXPECT_EQ(sandbox::kNoCurrentRecord, ErrorOf([&] { rows.Call(L"MoveNext"); }).Code());
    rows.Call(L"MovePrevious");
    EXPECT_EQ(L"d", NameOf(rows));
}

TEST_F(AdoCursor, ThePositionTellsBothEndsAndTheEmptyRecordsetApart)
{
    const Object rows = Open();
    rows.Call(L"MovePrevious");
    EXPECT_EQ(-2, LongOf(rows.Get(L"AbsolutePosition")));
    rows.Call(L"MoveLast");
    rows.Call(L"MoveNext");
    EXPECT_EQ(-3, LongOf(rows.Get(L"AbsolutePosition")));
    EXPECT_EQ(-1, LongOf(Open(L"SELECT * FROM Thing WHERE Size=9").Get(L"AbsolutePosition")));
}

TEST_F(AdoCursor, AForwardOnlyCursorCountsNoRecordsAndHasNeitherBookmarksNorPositions)
{
    const Object rows = Open(L"SELECT * FROM Thing", kForwardOnly);
    EXPECT_EQ(-1, LongOf(rows.Get(L"RecordCount")));
    EXPECT_EQ(sandbox::kNotCapable, ErrorOf([&] { rows.Get(L"Bookmark"); }).Code());
    EXPECT_EQ(sandbox::kNotCapable, ErrorOf([&] { rows.Call(L"Move", 0L, 1.0); }).Code());
    EXPECT_EQ(sandbox::kNotCapable, ErrorOf([&] { rows.Call(L"MovePrevious"); }).Code());
    EXPECT_EQ(sandbox::kNotCapable, ErrorOf([&] { rows.Get(L"AbsolutePosition"); }).Code());
    EXPECT_EQ(sandbox::kNotCapable, ErrorOf([&] { rows.Put(L"AbsolutePosition", 1L); }).Code());
    rows.Call(L"MoveNext");
    EXPECT_EQ(L"b", NameOf(rows));
    rows.Call(L"MoveFirst");
    EXPECT_EQ(L"a", NameOf(rows));
}

TEST_F(AdoCursor, AnUnspecifiedCursorIsForwardOnlyOnTheServerAndStaticOnTheClient)
{
    EXPECT_EQ(-1, LongOf(Open(L"SELECT * FROM Thing", -1).Get(L"RecordCount")));

    const Object onClient = sandbox::MakeRecordset();
    onClient.Put(L"CursorLocation", kClient);
    onClient.Call(L"Open", L"SELECT * FROM Thing", mFile.ConnectionString());
    EXPECT_EQ(4, LongOf(onClient.Get(L"RecordCount")));
    EXPECT_EQ(kStatic, LongOf(onClient.Get(L"CursorType")));
    EXPECT_EQ(sandbox::kObjectOpen, ErrorOf([&] { onClient.Put(L"CursorLocation", kClient); }).Code());
}

TEST_F(AdoCursor, RowsHandedOverAreAClientsStaticCursor)
{
    sandbox::Connection database(mFile.ConnectionString());
    const Object rows = sandbox::MakeRecordset(database.Query(L"SELECT * FROM Thing"));
    EXPECT_EQ(4, LongOf(rows.Get(L"RecordCount")));
    EXPECT_EQ(kClient, LongOf(rows.Get(L"CursorLocation")));
    EXPECT_EQ(1, LongOf(rows.Get(L"State")));
    EXPECT_EQ(L"a", NameOf(rows));
}

TEST_F(AdoCursor, FieldsAreCountedAndFoundByNameInAnyCaseAndByNumber)
{
    const Object rows = Open();
    const Object fields = rows.GetObject(L"Fields");
    EXPECT_EQ(2, LongOf(fields.Get(L"Count")));
    EXPECT_EQ(L"Name", TextOf(fields.GetObject(L"Item", 0L).Get(L"Name")));
    EXPECT_EQ(1, LongOf(fields.GetObject(L"Item", L"sIZE").Get(L"Value")));
    EXPECT_EQ(3, LongOf(fields.GetObject(L"Item", 1L).Get(L"Type")));
    EXPECT_EQ(202, LongOf(rows.GetObject(L"Fields", L"NAME").Get(L"Type")));
    EXPECT_EQ(sandbox::kItemNotFound, ErrorOf([&] { fields.Get(L"Item", 2L); }).Code());
    EXPECT_EQ(sandbox::kItemNotFound, ErrorOf([&] { fields.Get(L"Item", -1L); }).Code());
}

TEST_F(AdoCursor, ErrorsCarryADOsOwnWords)
{
    const Object rows = Open();
    rows.Call(L"MoveLast");
    rows.Call(L"MoveNext");
    EXPECT_EQ(L"Either BOF or EOF is True, or the current record has been deleted. Requested operation "
              L"requires a current record.",
              ErrorOf([&] { NameOf(rows); }).Description());
    EXPECT_EQ(L"Item cannot be found in the collection corresponding to the requested name or ordinal.",
              ErrorOf([&] { rows.Get(L"Fields", L"Colour"); }).Description());
    rows.Call(L"Close");
    EXPECT_EQ(L"Operation is not allowed when the object is closed.",
              ErrorOf([&] { rows.Call(L"MoveNext"); }).Description());
}

TEST_F(AdoCursor, AFailedOpenLeavesTheRecordsetClosedAndReadyForAnother)
{
    const Object rows = sandbox::MakeRecordset();
    const automation::Error error =
        ErrorOf([&] { rows.Call(L"Open", L"SELECT * FROM Nothing", mFile.ConnectionString()); });
    EXPECT_NE(std::wstring::npos, error.Description().find(L"Nothing"));
    EXPECT_EQ(0, LongOf(rows.Get(L"State")));
    EXPECT_EQ(sandbox::kNoConnection, ErrorOf([&] { rows.Call(L"Open", L"Thing"); }).Code());
    rows.Call(L"Open", L"SELECT * FROM Thing", mFile.ConnectionString());
    EXPECT_EQ(L"a", NameOf(rows));
}

TEST_F(AdoCursor, AClosedRecordsetCanBeOpenedAgain)
{
    const Object rows = Open();
    rows.Call(L"Close");
    rows.Call(L"Open", L"SELECT * FROM Thing WHERE Size>2", mFile.ConnectionString(), kKeyset);
    EXPECT_EQ(2, LongOf(rows.Get(L"RecordCount")));
    EXPECT_EQ(L"c", NameOf(rows));
}

TEST_F(AdoCursor, RowsStayAsTheyWereWhenTheTableChanges)
{
    const Object rows = Open();
    sandbox::Connection(mFile.ConnectionString()).Execute(L"DELETE FROM Thing");
    EXPECT_EQ(4, LongOf(rows.Get(L"RecordCount")));
    rows.Call(L"MoveLast");
    EXPECT_EQ(L"d", NameOf(rows));
}

} // namespace
