#include "tests/sandbox_outlook/OutlookFixture.h"

namespace sandbox
{

// A task due each week on Tuesday, from 2003-05-06.
class RecurringTask : public OutlookFixture
{
  protected:
    RecurringTask()
    {
        mTask.Put(L"Subject", L"Report");
        mTask.Put(L"StartDate", Day(2003, 5, 5));
        mTask.Put(L"DueDate", Day(2003, 5, 6));
        mTask.GetObject(L"GetRecurrencePattern").Put(L"RecurrenceType", 1);
        mTask.Call(L"Save");
    }

    automation::Value Stored(long position, const wchar_t* name) const
    {
        return mMailbox->ItemProperty(kTasks, position, name);
    }

    automation::Object mTask = New(Tasks());
};

TEST_F(RecurringTask, HasAPatternThatStartsOnItsDay)
{
    EXPECT_TRUE(Truth(mTask, L"IsRecurring"));
    const auto pattern = mTask.GetObject(L"GetRecurrencePattern");
    EXPECT_EQ(L"2003-05-06 00:00", At(pattern.Get(L"PatternStartDate")));
    EXPECT_EQ(4, Number(pattern, L"DayOfWeekMask"));
    EXPECT_FALSE(Truth(pattern, L"Regenerate"));
}

TEST_F(RecurringTask, CompletedItBecomesTheNextOneAndTheCompletedOneIsATaskOfItsOwn)
{
    const std::wstring id = Text(mTask, L"EntryID");
    mTask.Put(L"Complete", true);
    mTask.Call(L"Save");
    ASSERT_EQ(2, mMailbox->ItemCount(kTasks));
    EXPECT_EQ(id, Text(mTask, L"EntryID"));
    EXPECT_FALSE(Truth(mTask, L"Complete"));
    EXPECT_EQ(0, Number(mTask, L"PercentComplete"));
    EXPECT_EQ(L"2003-05-13 00:00", At(mTask.Get(L"DueDate")));
    EXPECT_EQ(L"2003-05-12 00:00", At(mTask.Get(L"StartDate")));
    EXPECT_TRUE(Truth(mTask, L"IsRecurring"));
    EXPECT_TRUE(automation::TruthOf(Stored(2, L"Complete")));
    EXPECT_FALSE(automation::TruthOf(Stored(2, L"IsRecurring")));
    EXPECT_EQ(L"2003-05-06 00:00", At(Stored(2, L"DueDate")));
    EXPECT_EQ(L"Report", automation::TextOf(Stored(2, L"Subject")));
}

TEST_F(RecurringTask, TheLastOneStaysComplete)
{
    mTask.GetObject(L"GetRecurrencePattern").Put(L"Occurrences", 2);
    for (int i = 0; i < 2; ++i)
    {
        mTask.Call(L"MarkComplete");
    }
    EXPECT_EQ(2, mMailbox->ItemCount(kTasks));
    EXPECT_TRUE(Truth(mTask, L"Complete"));
}

TEST_F(RecurringTask, ARegeneratingOneIsDueSoLongAfterItWasCompleted)
{
    mTask.GetObject(L"GetRecurrencePattern").Put(L"Regenerate", true);
    mTask.Call(L"MarkComplete");
    SYSTEMTIME now;
    GetLocalTime(&now);
    const double today = automation::DateOf(automation::Moment{now.wYear, now.wMonth, now.wDay}).days;
    EXPECT_EQ(today + 7, automation::DateOf(mTask.Get(L"DueDate")).days);
}

TEST_F(RecurringTask, WithoutItsPatternItIsCompletedLikeAnyOther)
{
    mTask.Call(L"ClearRecurrencePattern");
    mTask.Put(L"Complete", true);
    mTask.Call(L"Save");
    EXPECT_EQ(1, mMailbox->ItemCount(kTasks));
    EXPECT_TRUE(Truth(mTask, L"Complete"));
}

} // namespace sandbox
