#include "sandbox/ado/SessionPool.h"

#include "automation/Error.h"
#include "tests/support/DatabaseFile.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

using sandbox::SessionPool;

class SessionPoolTest : public testing::Test
{
  protected:
    automation::Value First(const std::wstring& sql) { return First(mFile.ConnectionString(), sql); }
    static automation::Value First(const std::wstring& connectionString, const std::wstring& sql)
    {
        return SessionPool::Query(connectionString, sql).rows.at(0).at(0);
    }

    // A temporary table is its session's own.
    void MakeTemporaryTable()
    {
        SessionPool::Query(mFile.ConnectionString(), L"CREATE TEMP TABLE Own AS SELECT 7");
    }
    bool HasTemporaryTable()
    {
        return automation::LongOf(First(L"SELECT count(*) FROM sqlite_temp_master")) == 1;
    }

    test_support::DatabaseFile mFile{L"pool"};
};

TEST_F(SessionPoolTest, WithoutAPoolEachQueryHasASessionOfItsOwn)
{
    MakeTemporaryTable();
    EXPECT_FALSE(HasTemporaryTable());
}

TEST_F(SessionPoolTest, TheSessionIsKeptForTheNextQueryOfTheSameConnectionString)
{
    const test_support::DatabaseFile other(L"pool");
    const SessionPool pool;
    MakeTemporaryTable();
    EXPECT_TRUE(HasTemporaryTable());
    EXPECT_EQ(
        0, automation::LongOf(First(other.ConnectionString(), L"SELECT count(*) FROM sqlite_temp_master")));
    EXPECT_FALSE(HasTemporaryTable());
}

TEST_F(SessionPoolTest, ASessionSeesWhatOthersHaveWrittenMeanwhile)
{
    const SessionPool pool;
    sandbox::Connection writer(mFile.ConnectionString());
    writer.Execute(L"CREATE TABLE T (N)");
    EXPECT_EQ(0, automation::LongOf(First(L"SELECT count(*) FROM T")));
    writer.Execute(L"INSERT INTO T VALUES (1)");
    EXPECT_EQ(1, automation::LongOf(First(L"SELECT count(*) FROM T")));
}

TEST_F(SessionPoolTest, ASessionWhoseQueryFailsIsClosed)
{
    const SessionPool pool;
    MakeTemporaryTable();
    EXPECT_THROW(First(L"SELECT nonsense"), automation::Error);
    EXPECT_FALSE(HasTemporaryTable());
}

TEST_F(SessionPoolTest, AnotherThreadHasSessionsOfItsOwn)
{
    const SessionPool pool;
    MakeTemporaryTable();
    bool isShared = true;
    std::thread([&] { isShared = HasTemporaryTable(); }).join();
    EXPECT_FALSE(isShared);
}

} // namespace
