#include "automation/Recordset.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/ado/Recordset.h"
#include "tests/support/DatabaseFile.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

using automation::Error;
using automation::Recordset;
using automation::TextOf;

namespace
{

class AdoRecordset : public testing::Test
{
  protected:
    AdoRecordset()
    {
        sandbox::Connection connection(mConnection);
        connection.Execute(
            L"CREATE TABLE Thing(Name VARCHAR(20), Size INTEGER, Weight DOUBLE, IsNew BOOLEAN, "
            L"Made DATETIME)");
        connection.Execute(L"INSERT INTO Thing VALUES('张伟 \U0001F600',1,2.5,1,'2003-05-06 09:30:45')");
        connection.Execute(L"INSERT INTO Thing VALUES('O''Brien',2,NULL,0,NULL)");
        connection.Execute(L"INSERT INTO Thing VALUES(NULL,3,1,NULL,'10:15:42')");
    }

    Recordset Open(const std::wstring& source, long commandType = automation::kCommandText)
    {
        return automation::OpenRecordset(source, mConnection, {.commandType = commandType});
    }

    HRESULT CodeOf(const std::function<void()>& body)
    {
        try
        {
            body();
            return S_OK;
        }
        catch (const Error& error)
        {
            EXPECT_FALSE(error.Description().empty());
            return error.Code();
        }
    }

    test_support::DatabaseFile mFile{L"ado"};
    std::wstring mConnection = sandbox::ConnectionStringOf(mFile.Path());
    sandbox::AdoInProcess mAdo;
};

} // namespace

TEST_F(AdoRecordset, ValuesComeInTheDeclaredTypeOfTheirColumn)
{
    const Recordset rows = Open(L"SELECT * FROM Thing");
    EXPECT_EQ(L"张伟 \U0001F600", TextOf(rows.ValueOf(L"Name")));
    EXPECT_EQ(VT_I4, rows.ValueOf(L"Size").Type());
    EXPECT_EQ(VT_R8, rows.ValueOf(L"Weight").Type());
    EXPECT_EQ(VT_BOOL, rows.ValueOf(L"IsNew").Type());
    ASSERT_EQ(VT_DATE, rows.ValueOf(L"Made").Type());
    EXPECT_EQ(L"2003/05/06 09:30:45",
              automation::Formatted(automation::DateOf(rows.ValueOf(L"made")), L"yyyy/mm/dd hh:mm:ss"));
    rows.MoveNext();
    EXPECT_EQ(VT_NULL, rows.ValueOf(L"Weight").Type());
    rows.MoveNext();
    EXPECT_EQ(VT_NULL, rows.ValueOf(L"Name").Type());
}

TEST_F(AdoRecordset, AFieldFollowsTheCurrentRow)
{
    const Recordset rows = Open(L"Thing", automation::kCommandTable);
    const automation::Object field = rows.AsObject().GetObject(L"Fields", L"SIZE");
    EXPECT_EQ(1, automation::LongOf(field.Get(L"Value")));
    rows.MoveNext();
    EXPECT_EQ(2, automation::LongOf(field.Get(L"Value")));
    EXPECT_EQ(L"Size", TextOf(field.Get(L"Name")));
}

TEST_F(AdoRecordset, MovesBackToARowByThePositionItHad)
{
    const Recordset rows = Open(L"SELECT * FROM Thing");
    EXPECT_EQ(3, rows.RecordCount());
    rows.MoveNext();
    const long position = rows.AbsolutePosition();
    EXPECT_EQ(2, position);
    rows.MoveNext();
    rows.MoveNext();
    EXPECT_TRUE(rows.AtEnd());
    rows.MoveTo(position);
    EXPECT_EQ(L"O'Brien", TextOf(rows.ValueOf(L"Name")));
    rows.MoveFirst();
    EXPECT_EQ(1, rows.AbsolutePosition());
}

TEST_F(AdoRecordset, ARecordsetWithoutRowsIsAtBothEndsAndHasNoCurrentRecord)
{
    const Recordset rows = Open(L"SELECT * FROM Thing WHERE Size=9");
    EXPECT_TRUE(rows.HasNoRows());
    EXPECT_EQ(0, rows.RecordCount());
    EXPECT_EQ(sandbox::kNoCurrentRecord, CodeOf([&] { rows.MoveFirst(); }));
    EXPECT_EQ(sandbox::kNoCurrentRecord, CodeOf([&] { rows.MoveNext(); }));
    EXPECT_EQ(sandbox::kNoCurrentRecord, CodeOf([&] { rows.ValueOf(L"Name"); }));
}

TEST_F(AdoRecordset, RefusesTheCallsThatADORefuses)
{
    const Recordset rows = Open(L"SELECT * FROM Thing");
    EXPECT_EQ(sandbox::kItemNotFound, CodeOf([&] { rows.ValueOf(L"Colour"); }));
    EXPECT_EQ(sandbox::kInvalidArgument, CodeOf([&] { rows.MoveTo(4); }));
    EXPECT_EQ(sandbox::kObjectOpen, CodeOf([&] { rows.AsObject().Call(L"Open", L"Thing", mConnection); }));
    rows.AsObject().Call(L"Close");
    EXPECT_EQ(sandbox::kObjectClosed, CodeOf([&] { rows.AtEnd(); }));
    EXPECT_EQ(sandbox::kObjectClosed, CodeOf([&] { rows.AsObject().Call(L"Close"); }));
    EXPECT_EQ(E_FAIL, CodeOf([&] { Open(L"SELECT * FROM Nothing"); }));
}

TEST_F(AdoRecordset, CloseRecordsetDoesNothingForNothingAndForARecordsetThatIsClosed)
{
    Recordset nothing;
    automation::CloseRecordset(nothing);
    EXPECT_FALSE(nothing);

    Recordset rows = Open(L"SELECT * FROM Thing");
    const automation::Object object = rows.AsObject();
    object.Call(L"Close");
    automation::CloseRecordset(rows);
    EXPECT_FALSE(rows);

    Recordset open = Open(L"SELECT * FROM Thing");
    const automation::Object openObject = open.AsObject();
    automation::CloseRecordset(open);
    EXPECT_EQ(0, automation::LongOf(openObject.Get(L"State")));
}
