#include "sandbox/database/Connection.h"
#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Text.h"
#include "tests/support/DatabaseFile.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace
{

using automation::Date;
using automation::LongOf;
using automation::TextOf;
using automation::Value;
using sandbox::ColumnType;
using sandbox::Connection;
using sandbox::ResultSet;

const Date kMorning = automation::DateOf(automation::Moment{2003, 5, 6, 9, 30, 15});

class ConnectionTest : public testing::Test
{
  protected:
    test_support::DatabaseFile mFile;
    Connection mDatabase{mFile.ConnectionString()};

    void MakeTable()
    {
        mDatabase.Execute(L"CREATE TABLE T (Name TEXT, Number INTEGER, Share DOUBLE, Flag BOOLEAN, "
                          L"Moment DATETIME, Day DATE, Hour TIME)");
    }
    long Count() { return LongOf(mDatabase.QueryValue(L"SELECT count(*) FROM T")); }
};

TEST_F(ConnectionTest, EachColumnReportsItsDeclaredType)
{
    MakeTable();
    const ResultSet result = mDatabase.Query(L"SELECT * FROM T");
    const ColumnType expected[] = {ColumnType::Text,  ColumnType::Integer, ColumnType::Double,
                                   ColumnType::Truth, ColumnType::Date,    ColumnType::Date,
                                   ColumnType::Date};
    ASSERT_EQ(std::size(expected), result.columns.size());
    for (size_t i = 0; i < std::size(expected); ++i)
    {
        EXPECT_EQ(expected[i], result.columns[i].type) << i;
    }
    EXPECT_EQ(L"Share", result.columns[2].name);
}

TEST_F(ConnectionTest, ValuesComeBackInTheTypeTheirColumnDeclares)
{
    MakeTable();
    mDatabase.Execute(L"INSERT INTO T VALUES (?,?,?,?,?,?,?)",
                      {L"text", -7L, 0.25, true, kMorning, kMorning, kMorning});
    const sandbox::Row row = mDatabase.Query(L"SELECT * FROM T").rows.at(0);
    const VARTYPE expected[] = {VT_BSTR, VT_I4, VT_R8, VT_BOOL, VT_DATE, VT_DATE, VT_DATE};
    for (size_t i = 0; i < std::size(expected); ++i)
    {
        EXPECT_EQ(expected[i], row[i].Type()) << i;
    }
    EXPECT_EQ(-7, LongOf(row[1]));
    EXPECT_EQ(0.25, automation::DoubleOf(row[2]));
    EXPECT_TRUE(automation::TruthOf(row[3]));
    EXPECT_NEAR(kMorning.days, automation::DateOf(row[4]).days, 1e-8);
}

TEST_F(ConnectionTest, ADateIsKeptAsReadableTextInTheFile)
{
    MakeTable();
    mDatabase.Execute(L"INSERT INTO T(Moment) VALUES (?)", {kMorning});
    EXPECT_EQ(L"2003-05-06 09:30:15", TextOf(mDatabase.QueryValue(L"SELECT CAST(Moment AS TEXT) FROM T")));
}

TEST_F(ConnectionTest, NullIsNullInEveryColumn)
{
    MakeTable();
    const Value null = Value::Null();
    mDatabase.Execute(L"INSERT INTO T VALUES (?,?,?,?,?,?,?)", {null, null, null, null, null, null, null});
    const ResultSet result = mDatabase.Query(L"SELECT * FROM T");
    for (const Value& value : result.rows.at(0))
    {
        EXPECT_EQ(VT_NULL, value.Type());
    }
}

TEST_F(ConnectionTest, TextOfEveryScriptRoundTrips)
{
    MakeTable();
    const std::wstring texts[] = {L"",
                                  L"'",
                                  L"O'Brien & Söhne GmbH",
                                  L"张伟 北京",
                                  L"😀 emoji \U00020000",
                                  std::wstring(5000, L'中'),
                                  std::wstring(1021, L'x') + L"😀😀😀"};
    for (const std::wstring& text : texts)
    {
        mDatabase.Execute(L"DELETE FROM T");
        mDatabase.Execute(L"INSERT INTO T(Name) VALUES (?)", {text});
        EXPECT_EQ(text, TextOf(mDatabase.QueryValue(L"SELECT Name FROM T")));
    }
    mDatabase.Execute(L"DELETE FROM T");
    mDatabase.Execute(L"INSERT INTO T(Name) VALUES ('张伟 😀')");
    EXPECT_EQ(L"张伟 😀", TextOf(mDatabase.QueryValue(L"SELECT Name FROM T WHERE Name='张伟 😀'")));
}

TEST_F(ConnectionTest, ExecuteReturnsTheNumberOfChangedRows)
{
    MakeTable();
    EXPECT_EQ(1, mDatabase.Execute(L"INSERT INTO T(Number) VALUES (1)"));
    EXPECT_EQ(1, mDatabase.Execute(L"INSERT INTO T(Number) VALUES (2)"));
    EXPECT_EQ(2, mDatabase.Execute(L"UPDATE T SET Number=3"));
    EXPECT_EQ(0, mDatabase.Execute(L"DELETE FROM T WHERE Number=4"));
}

TEST_F(ConnectionTest, ARolledBackTransactionLeavesNothingAndACommittedOneEverything)
{
    MakeTable();
    mDatabase.Begin();
    EXPECT_TRUE(mDatabase.InTransaction());
    mDatabase.Execute(L"INSERT INTO T(Number) VALUES (1)");
    mDatabase.Rollback();
    EXPECT_FALSE(mDatabase.InTransaction());
    EXPECT_EQ(0, Count());
    mDatabase.Begin();
    mDatabase.Execute(L"INSERT INTO T(Number) VALUES (1)");
    mDatabase.Commit();
    EXPECT_EQ(1, Count());
}

TEST_F(ConnectionTest, AnotherConnectionSeesAWriteAtOnceAndATransactionOnlyAfterItsCommit)
{
    MakeTable();
    Connection other(mFile.ConnectionString());
    mDatabase.Execute(L"INSERT INTO T(Number) VALUES (1)");
    EXPECT_EQ(1, LongOf(other.QueryValue(L"SELECT count(*) FROM T")));
    mDatabase.Begin();
    mDatabase.Execute(L"INSERT INTO T(Number) VALUES (2)");
    EXPECT_EQ(1, LongOf(other.QueryValue(L"SELECT count(*) FROM T")));
    mDatabase.Commit();
    EXPECT_EQ(2, LongOf(other.QueryValue(L"SELECT count(*) FROM T")));
}

TEST_F(ConnectionTest, AConnectionThatEndsInsideATransactionRollsItBack)
{
    MakeTable();
    {
        Connection other(mFile.ConnectionString());
        other.Begin();
        other.Execute(L"INSERT INTO T(Number) VALUES (1)");
    }
    EXPECT_EQ(0, Count());
}

TEST_F(ConnectionTest, ALockedDatabaseIsAnErrorAfterAShortWait)
{
    MakeTable();
    Connection other(mFile.ConnectionString());
    other.Begin();
    other.Execute(L"INSERT INTO T(Number) VALUES (1)");
    const ULONGLONG start = GetTickCount64();
    try
    {
        mDatabase.Execute(L"INSERT INTO T(Number) VALUES (2)");
        FAIL() << "the write went through";
    }
    catch (const automation::Error& error)
    {
        EXPECT_NE(std::wstring::npos, error.Description().find(L"locked")) << error.what();
    }
    EXPECT_LT(GetTickCount64() - start, 20'000u);
    other.Rollback();
    EXPECT_EQ(1, mDatabase.Execute(L"INSERT INTO T(Number) VALUES (2)"));
}

TEST_F(ConnectionTest, ACommitThatAReaderHoldsUpLeavesTheTransactionPending)
{
    MakeTable();
    Connection reader(mFile.ConnectionString());
    reader.Begin();
    reader.Query(L"SELECT * FROM T");
    mDatabase.Begin();
    mDatabase.Execute(L"INSERT INTO T(Number) VALUES (1)");
    EXPECT_THROW(mDatabase.Commit(), automation::Error);
    EXPECT_TRUE(mDatabase.InTransaction());
    reader.Rollback();
    mDatabase.Commit();
    EXPECT_EQ(1, Count());
}

TEST_F(ConnectionTest, ANumberBeyondALongComesAsADouble)
{
    MakeTable();
    mDatabase.Execute(L"INSERT INTO T(Number) VALUES (5000000000)");
    const Value number = mDatabase.QueryValue(L"SELECT Number FROM T");
    EXPECT_EQ(VT_R8, number.Type());
    EXPECT_EQ(5e9, automation::DoubleOf(number));
}

TEST_F(ConnectionTest, AValueThatDoesNotFitTheDeclaredTypeIsReturnedAsItIs)
{
    MakeTable();
    mDatabase.Execute(L"INSERT INTO T(Number, Share, Moment) VALUES ('many', 'half', 'soon')");
    const ResultSet result = mDatabase.Query(L"SELECT Number, Share, Moment FROM T");
    EXPECT_EQ(L"many", TextOf(result.rows.at(0)[0]));
    EXPECT_EQ(L"half", TextOf(result.rows.at(0)[1]));
    EXPECT_EQ(VT_NULL, result.rows.at(0)[2].Type());
}

TEST_F(ConnectionTest, DatesAreReadWithAndWithoutATimeAndTimesAlone)
{
    MakeTable();
    mDatabase.Execute(
        L"INSERT INTO T(Moment, Day, Hour) VALUES ('2003-05-06 09:30:15', '2003-05-06', '09:30')");
    const ResultSet result = mDatabase.Query(L"SELECT Moment, Day, Hour FROM T");
    EXPECT_NEAR(kMorning.days, automation::DateOf(result.rows.at(0)[0]).days, 1e-8);
    EXPECT_EQ(automation::DayOf(kMorning), automation::DateOf(result.rows.at(0)[1]));
    EXPECT_NEAR(9.5 / 24, automation::DateOf(result.rows.at(0)[2]).days, 1e-8);
}

TEST_F(ConnectionTest, DeclaredTypesReachThroughViewsAndComputedColumns)
{
    mDatabase.Execute(L"CREATE TABLE Entry (Start DATETIME, Twice INTEGER AS (2 * 2) VIRTUAL, "
                      L"Length DATETIME AS (datetime(Start, '1 hour')) VIRTUAL)");
    mDatabase.Execute(L"CREATE VIEW Seen AS SELECT e.*, e.Start AS Began FROM Entry e");
    const ResultSet result = mDatabase.Query(L"SELECT * FROM (SELECT * FROM Seen) WHERE Twice=4");
    ASSERT_EQ(4u, result.columns.size());
    EXPECT_EQ(ColumnType::Date, result.columns[0].type);
    EXPECT_EQ(ColumnType::Integer, result.columns[1].type);
    EXPECT_EQ(ColumnType::Date, result.columns[2].type);
    EXPECT_EQ(L"Began", result.columns[3].name);
    EXPECT_EQ(ColumnType::Date, result.columns[3].type);
}

TEST_F(ConnectionTest, AnErrorCarriesTheDriversWords)
{
    try
    {
        mDatabase.Query(L"SELECT * FROM NoSuchTable");
        FAIL() << "the statement was accepted";
    }
    catch (const automation::Error& error)
    {
        EXPECT_NE(std::wstring::npos, error.Description().find(L"NoSuchTable")) << error.what();
    }
}

std::wstring RefusalOf(const std::wstring& connectionString)
{
    try
    {
        Connection database(connectionString);
        return L"";
    }
    catch (const automation::Error& error)
    {
        return error.Description();
    }
}

TEST(ConnectionStrings, AFileThatIsNoDatabaseIsRefused)
{
    const test_support::DatabaseFile file;
    std::FILE* garbage = _wfopen(file.Path().c_str(), L"wb");
    ASSERT_NE(nullptr, garbage);
    for (int i = 0; i < 1000; ++i)
    {
        std::fputs("this is no database at all\n", garbage);
    }
    std::fclose(garbage);
    const std::wstring refusal = RefusalOf(file.ConnectionString());
    EXPECT_NE(std::wstring::npos, refusal.find(L"not a database")) << automation::ToUtf8(refusal);
}

TEST(ConnectionStrings, AFileInAFolderThatDoesNotExistIsRefused)
{
    const std::wstring refusal = RefusalOf(sandbox::ConnectionStringOf(L"C:\\no such folder\\host.db"));
    EXPECT_NE(std::wstring::npos, refusal.find(L"no such folder")) << automation::ToUtf8(refusal);
}

TEST(ConnectionStrings, TheFileMayHaveAnyName)
{
    const test_support::DatabaseFile file(L"销售 Söhne");
    Connection database(file.ConnectionString());
    database.Execute(L"CREATE TABLE T (N INTEGER)");
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(file.Path().c_str()));
}

TEST(ConnectionStrings, AnUnknownDriverIsRefused)
{
    EXPECT_THROW(Connection database(L"Driver=NoSuchDriver;Database=x"), automation::Error);
}

TEST(ConnectionStrings, TheDatabaseIsTheFileThatItsWindowsPathNames)
{
    const test_support::DatabaseFile file;
    Connection database(file.ConnectionString());
    database.Execute(L"CREATE TABLE T (N INTEGER)");
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(file.Path().c_str()));
}

} // namespace
