#include "tests/sandbox_outlook/OutlookFixture.h"

namespace sandbox
{

class TaskItem : public OutlookFixture
{
  protected:
    // Status, completion and percentage in one text, and whether there is a completion date.
    std::wstring State() const
    {
        const bool hasDate = automation::DateOf(mTask.Get(L"DateCompleted")) != automation::kOutlookNoDate;
        return std::to_wstring(Number(mTask, L"Status")) +
               (Truth(mTask, L"Complete") ? L" complete " : L" open ") +
               std::to_wstring(Number(mTask, L"PercentComplete")) + (hasDate ? L"% dated" : L"%");
    }

    automation::Object mTask = New(Tasks());
};

TEST_F(TaskItem, ANewTaskHasNoDatesAndIsNotStarted)
{
    EXPECT_EQ(L"0 open 0%", State());
    EXPECT_EQ(L"4501-01-01 00:00", At(mTask.Get(L"StartDate")));
    EXPECT_EQ(L"4501-01-01 00:00", At(mTask.Get(L"DueDate")));
    EXPECT_EQ(1, Number(mTask, L"Importance"));
    EXPECT_EQ(48, Number(mTask, L"Class"));
    EXPECT_EQ(L"IPM.Task", Text(mTask, L"MessageClass"));
}

TEST_F(TaskItem, CompletingItSetsStatusPercentageAndTodaysDate)
{
    mTask.Put(L"Complete", true);
    EXPECT_EQ(L"2 complete 100% dated", State());
    EXPECT_GT(automation::DateOf(mTask.Get(L"DateCompleted")), Day(2000, 1, 1));
}

TEST_F(TaskItem, TheStatusCompleteAndTheFullPercentageCompleteIt)
{
    mTask.Put(L"Status", 2);
    EXPECT_EQ(L"2 complete 100% dated", State());
    mTask.Put(L"PercentComplete", 40);
    EXPECT_EQ(L"1 open 40%", State());
    mTask.Put(L"PercentComplete", 100.0);
    EXPECT_EQ(L"2 complete 100% dated", State());
}

TEST_F(TaskItem, ACompletionDateCompletesIt)
{
    mTask.Put(L"DateCompleted", Day(2003, 5, 6, 17, 30));
    EXPECT_EQ(L"2 complete 100% dated", State());
    EXPECT_EQ(L"2003-05-06 00:00", At(mTask.Get(L"DateCompleted")));
    mTask.Put(L"Complete", true);
    EXPECT_EQ(L"2003-05-06 00:00", At(mTask.Get(L"DateCompleted")));
}

TEST_F(TaskItem, ACompleteTaskCanBeReopened)
{
    mTask.Put(L"Complete", true);
    mTask.Put(L"Complete", false);
    EXPECT_EQ(L"0 open 0%", State());
    mTask.Put(L"Complete", true);
    mTask.Put(L"Status", 3);
    EXPECT_EQ(L"3 open 0%", State());
    mTask.Put(L"Complete", false);
    EXPECT_EQ(L"3 open 0%", State());
}

TEST_F(TaskItem, ThePercentageTellsAStartedTaskFromOneThatIsNot)
{
    mTask.Put(L"PercentComplete", 50);
    EXPECT_EQ(L"1 open 50%", State());
    mTask.Put(L"PercentComplete", 0);
    EXPECT_EQ(L"0 open 0%", State());
    mTask.Put(L"Status", 1);
    EXPECT_EQ(L"1 open 0%", State());
    mTask.Put(L"PercentComplete", 25);
    mTask.Put(L"Status", 0);
    EXPECT_EQ(L"0 open 0%", State());
}

TEST_F(TaskItem, AWaitingOrDeferredTaskStaysSoAtAnyPercentage)
{
    for (const long status : {3L, 4L})
    {
        mTask.Put(L"Status", status);
        mTask.Put(L"PercentComplete", 50);
        EXPECT_EQ(status, Number(mTask, L"Status"));
        mTask.Put(L"PercentComplete", 0);
        EXPECT_EQ(status, Number(mTask, L"Status"));
    }
}

TEST_F(TaskItem, ClearingTheCompletionDateLeavesTheTaskComplete)
{
    mTask.Put(L"Status", 2);
    mTask.Put(L"DateCompleted", automation::kOutlookNoDate);
    EXPECT_EQ(L"2 complete 100%", State());
}

TEST_F(TaskItem, NumbersOutsideTheirRangeAreRefused)
{
    for (const auto& [member, value] : {std::pair{L"PercentComplete", 101L},
                                        {L"PercentComplete", -1L},
                                        {L"Status", 5L},
                                        {L"Importance", 3L},
                                        {L"Importance", -1L},
                                        {L"TotalWork", -1L}})
    {
        EXPECT_EQ(std::wstring(L"The value of ") + member + L" is out of range.",
                  FailureOf([&, name = member, number = value] { mTask.Put(name, number); }));
    }
    EXPECT_EQ(L"0 open 0%", State());
}

TEST_F(TaskItem, ATextThatIsNoNumberOrTruthValueIsRefused)
{
    EXPECT_EQ(L"Type mismatch: PercentComplete", FailureOf([&] { mTask.Put(L"PercentComplete", L"half"); }));
    EXPECT_EQ(L"Type mismatch: Complete", FailureOf([&] { mTask.Put(L"Complete", L"maybe"); }));
    EXPECT_EQ(L"Type mismatch: Subject", FailureOf([&] { mTask.Put(L"Subject", mOutlook); }));
}

TEST_F(TaskItem, ValuesAreCoercedAsAutomationDoes)
{
    mTask.Put(L"PercentComplete", L"40");
    EXPECT_EQ(40, Number(mTask, L"PercentComplete"));
    mTask.Put(L"ReminderSet", -1);
    EXPECT_TRUE(Truth(mTask, L"ReminderSet"));
    mTask.Put(L"ReminderSet", {});
    EXPECT_FALSE(Truth(mTask, L"ReminderSet"));
    mTask.Put(L"Subject", 2003);
    EXPECT_EQ(L"2003", Text(mTask, L"Subject"));
}

TEST_F(TaskItem, AStartAfterTheDueDateMovesTheDueDate)
{
    mTask.Put(L"DueDate", Day(2003, 5, 6));
    mTask.Put(L"StartDate", Day(2003, 5, 1, 9, 30));
    EXPECT_EQ(L"2003-05-01 00:00", At(mTask.Get(L"StartDate")));
    EXPECT_EQ(L"2003-05-06 00:00", At(mTask.Get(L"DueDate")));
    mTask.Put(L"StartDate", Day(2003, 5, 10));
    EXPECT_EQ(L"2003-05-10 00:00", At(mTask.Get(L"DueDate")));
    mTask.Put(L"DueDate", Day(2003, 5, 2));
    EXPECT_EQ(L"2003-05-02 00:00", At(mTask.Get(L"StartDate")));
}

TEST_F(TaskItem, AStartWithoutADueDateStaysAlone)
{
    mTask.Put(L"StartDate", Day(2003, 5, 1));
    mTask.Put(L"DueDate", automation::kOutlookNoDate);
    EXPECT_EQ(L"2003-05-01 00:00", At(mTask.Get(L"StartDate")));
    EXPECT_EQ(L"4501-01-01 00:00", At(mTask.Get(L"DueDate")));
}

TEST_F(TaskItem, AReminderComesAtEightOnTheDueDayUnlessItHasATime)
{
    mTask.Put(L"DueDate", Day(2003, 5, 6));
    mTask.Put(L"ReminderSet", true);
    EXPECT_EQ(L"2003-05-06 08:00", At(mTask.Get(L"ReminderTime")));
    mTask.Put(L"ReminderTime", Day(2003, 5, 6, 9, 10));
    mTask.Put(L"ReminderSet", true);
    EXPECT_EQ(L"2003-05-06 09:10", At(mTask.Get(L"ReminderTime")));
}

TEST_F(TaskItem, WorkIsCountedInMinutes)
{
    mTask.Put(L"TotalWork", 480);
    mTask.Put(L"ActualWork", 59.6);
    EXPECT_EQ(480, Number(mTask, L"TotalWork"));
    EXPECT_EQ(60, Number(mTask, L"ActualWork"));
}

TEST_F(TaskItem, ItsContactNamesAreThoseOfTheLinkedContactsEachOnce)
{
    const auto links = mTask.GetObject(L"Links");
    links.Call(L"Add", SavedContact(L"小明", L"王"));
    links.Call(L"Add", SavedContact(L"Mary", L"Smith"));
    links.Call(L"Add", Contacts().GetObject(L"Items").GetObject(L"Item", 1));
    EXPECT_EQ(3, Number(links, L"Count"));
    EXPECT_EQ(L"王小明; Mary Smith", Text(mTask, L"ContactNames"));
}

TEST_F(TaskItem, ContactNamesTypedInAreKeptAsLongAsThereIsNoLink)
{
    mTask.Put(L"ContactNames", L"Mary Smith");
    EXPECT_EQ(L"Mary Smith", Text(mTask, L"ContactNames"));
    mTask.GetObject(L"Links").Call(L"Add", SavedContact(L"小明", L"王"));
    EXPECT_EQ(L"王小明", Text(mTask, L"ContactNames"));
}

TEST_F(TaskItem, ALinkIsKeptBySavingTheTask)
{
    mTask.Call(L"Save");
    mTask.GetObject(L"Links").Call(L"Add", SavedContact(L"Mary", L"Smith"));
    EXPECT_EQ(0u, mMailbox->ItemLinks(kTasks, 1).size());
    mTask.Call(L"Save");
    EXPECT_EQ(std::vector<std::wstring>{L"Personal Folders\\Contacts\\1"}, mMailbox->ItemLinks(kTasks, 1));
    const auto link = mTask.GetObject(L"Links").GetObject(L"Item", 1);
    EXPECT_EQ(L"Mary Smith", Text(link, L"Name"));
    EXPECT_EQ(L"Smith", Text(link.GetObject(L"Item"), L"LastName"));
    mTask.GetObject(L"Links").Call(L"Remove", 1);
    EXPECT_EQ(0, Number(mTask.GetObject(L"Links"), L"Count"));
}

TEST_F(TaskItem, OnlyASavedContactCanBeLinked)
{
    const auto links = mTask.GetObject(L"Links");
    constexpr const wchar_t* kOnlyContacts = L"You can add only saved contacts to the links of an item.";
    EXPECT_EQ(kOnlyContacts, FailureOf([&] { links.Call(L"Add", New(Contacts())); }));
    const auto other = New(Tasks());
    other.Call(L"Save");
    EXPECT_EQ(kOnlyContacts, FailureOf([&] { links.Call(L"Add", other); }));
    EXPECT_EQ(L"Type mismatch: Links.Add", FailureOf([&] { links.Call(L"Add", L"Mary"); }));
    EXPECT_EQ(L"Array index out of bounds.", FailureOf([&] { links.GetObject(L"Item", 1); }));
}

} // namespace sandbox
