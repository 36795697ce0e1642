#include "config/store/AdvancedOptions.h"

#include <gtest/gtest.h>

namespace
{

TEST(DaysIn, IsTheLeadingNumberOfTheText)
{
    EXPECT_EQ(12, config::DaysIn(L"12"));
    EXPECT_EQ(12, config::DaysIn(L"12 days"));
    EXPECT_EQ(0, config::DaysIn(L"days"));
    EXPECT_EQ(9999, config::DaysIn(L"9999"));
}

TEST(DaysIn, AnEmptyBoxIsZero)
{
    EXPECT_EQ(0, config::DaysIn(L""));
}

TEST(AdvancedSetClauses, ContactsWriteTheConflictRuleAlone)
{
    EXPECT_EQ(L"TransConflictOption=5", config::ContactSetClause(5));
}

TEST(AdvancedSetClauses, TasksWriteBothCodes)
{
    EXPECT_EQ(L"TransConflictOption=2,TaskTransItem=1", config::TaskSetClause(2, 1));
}

TEST(AdvancedSetClauses, TheCalendarWritesItsDaysOnlyWithTheRangeWithinDays)
{
    EXPECT_EQ(L"TransConflictOption=1,CalendarTransItem=0", config::CalendarSetClause(1, 0, 7, 3));
    EXPECT_EQ(L"TransConflictOption=1,CalendarTransItem=1", config::CalendarSetClause(1, 1, 7, 3));
    EXPECT_EQ(L"TransConflictOption=1,CalendarTransItem=2,CalendarAfter=3,CalendarPrior=7",
              config::CalendarSetClause(1, 2, 7, 3));
}

TEST(AdvancedSetClauses, LeaveOutACodeThatWasNeitherLoadedNorChosen)
{
    using config::Code;
    EXPECT_EQ(L"", config::ContactSetClause(Code()));
    EXPECT_EQ(L"", config::TaskSetClause(Code(), Code()));
    EXPECT_EQ(L"TransConflictOption=2", config::TaskSetClause(2, Code()));
    EXPECT_EQ(L"TaskTransItem=0", config::TaskSetClause(Code(), 0));
    EXPECT_EQ(L"TransConflictOption=2", config::CalendarSetClause(2, Code(), 7, 3));
    EXPECT_EQ(L"CalendarTransItem=2,CalendarAfter=3,CalendarPrior=7",
              config::CalendarSetClause(Code(), 2, 7, 3));
}

TEST(TaskOptionsDiffer, WhenACodeIsChosenThatTheColumnsDidNotHold)
{
    state::SynParameter record;
    record.TransConflictOption = record.TaskTransItem = config::kNoCode;
    EXPECT_FALSE(config::TaskOptionsDiffer(record, config::Code(), config::Code()));
    EXPECT_TRUE(config::TaskOptionsDiffer(record, config::Code(), 0));
    EXPECT_TRUE(config::TaskOptionsDiffer(record, 1, config::Code()));
}

TEST(TaskOptionsDiffer, WhenEitherCodeDiffers)
{
    state::SynParameter record;
    record.TransConflictOption = 3;
    record.TaskTransItem = 1;
    EXPECT_FALSE(config::TaskOptionsDiffer(record, 3, 1));
    EXPECT_TRUE(config::TaskOptionsDiffer(record, 4, 1));
    EXPECT_TRUE(config::TaskOptionsDiffer(record, 3, 0));
}

TEST(DayBoxesOf, AreFilledCrosswise)
{
    state::SynParameter record;
    record.CalendarPrior = 7;
    record.CalendarAfter = 3;
    const config::DayBoxes boxes = config::DayBoxesOf(record);
    EXPECT_EQ(L"3", boxes.prior);
    EXPECT_EQ(L"7", boxes.after);
}

} // namespace
