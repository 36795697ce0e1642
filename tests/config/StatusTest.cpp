// The meaning of the host's status numbers to the parameter store: negative is failure, anything else
// success.
#include "config/store/ChosenFolders.h"
#include "config/store/ParameterStore.h"
#include "config/store/UserRows.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

namespace
{

class Status : public testing::Test
{
  protected:
    void AnswerEverythingWith(long status)
    {
        for (const wchar_t* member : {L"OpenRecordsetByString", L"Insert", L"Update", L"Delete"})
        {
            mHost->Status[member] = status;
        }
    }

    test_support::WithFakeHost mHost;
    automation::Recordset mRows;
};

TEST_F(Status, APositiveNumberIsSuccess)
{
    AnswerEverythingWith(5);
    EXPECT_FALSE(config::OpenUserRecordset(mRows, L""));
    EXPECT_FALSE(config::UpdateUserRows(L"IsTrans=1", config::kParameterTable, L""));
    EXPECT_FALSE(config::InsertUserRow(L"TransObjectID", L"10", config::kFolderTable));
    EXPECT_FALSE(config::StoreChosenFolders(*exchange::FindKindName(L"Contact"), {{L"Store", true}}));
    EXPECT_TRUE(config::CreateDefaultParameters());
}

TEST_F(Status, ANegativeNumberIsFailure)
{
    AnswerEverythingWith(-1);
    EXPECT_TRUE(config::OpenUserRecordset(mRows, L""));
    EXPECT_TRUE(config::UpdateUserRows(L"IsTrans=1", config::kParameterTable, L""));
    EXPECT_TRUE(config::InsertUserRow(L"TransObjectID", L"10", config::kFolderTable));
    EXPECT_TRUE(config::StoreChosenFolders(*exchange::FindKindName(L"Contact"), {{L"Store", true}}));
    EXPECT_FALSE(config::CreateDefaultParameters());
}

} // namespace
