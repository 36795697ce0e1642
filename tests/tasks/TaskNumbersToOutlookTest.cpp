// Numbers of the host that Outlook does not have.
#include "tasks/Tasks.h"
#include "tests/tasks/TaskFixture.h"

namespace
{

using automation::Object;

class TaskNumbersToOutlook : public test_support::TaskFixture
{
};

long NumberIn(const Object& task, const wchar_t* property)
{
    return automation::LongOf(task.Get(property));
}

TEST_F(TaskNumbersToOutlook, ATaskWithoutALevelThatOutlookKnowsKeepsItsImportanceAndTheOnesBehindAreWritten)
{
    Relate({{L"F_ACTLEVEL", L"Importance"}, {L"F_ACTNAME", L"Subject"}});
    for (const wchar_t* level : {L"NULL", L"0", L"4", L"9", L"-1"})
    {
        Execute(L"DELETE FROM Activities");
        AddHostTask({{L"F_ACTLEVEL", level}, {L"F_ACTNAME", L"'First'"}});
        AddHostTask({{L"F_ACTLEVEL", L"3"}, {L"F_ACTNAME", L"'Behind'"}});
        exchange::Run run = NewRun();
        run.Pending.NewHostRecords.Add(1L, 0);
        run.Pending.NewHostRecords.Add(2L, 0);
        EXPECT_FALSE(tasks::SynTaskToOutlook(run));
        EXPECT_EQ(1, NumberIn(TaskAt(CountTasks() - 1), L"Importance"));
        EXPECT_EQ(2, NumberIn(TaskAt(CountTasks()), L"Importance"));
    }
    Execute(L"DELETE FROM Activities WHERE F_ACTLEVEL=3");
    AddOutlookTask({{L"Importance", 2}});
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 1);
    run.Pending.ChangedOutlookItems.Add(std::to_wstring(CountTasks()), 1);
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    EXPECT_EQ(2, NumberIn(TaskAt(CountTasks()), L"Importance"));
}

TEST_F(TaskNumbersToOutlook, ANumberThatOutlookDoesNotHaveLeavesThePropertyAsItIs)
{
    Relate(
        {{L"F_ACTPERCENT", L"PercentComplete"}, {L"F_ACTTOTAL", L"TotalWork"}, {L"F_ACTSTATUS", L"Status"}});
    AddHostTask({});
    for (const wchar_t* set : {L"F_ACTPERCENT=1.1, F_ACTTOTAL=-1, F_ACTSTATUS=5",
                               L"F_ACTPERCENT=-0.5, F_ACTTOTAL=-90, F_ACTSTATUS=-1"})
    {
        Execute(L"UPDATE Activities SET " + std::wstring(set));
        AddOutlookTask({{L"PercentComplete", 50}, {L"TotalWork", 7}, {L"Status", 1}});
        const Object task = WriteExistingTask();
        EXPECT_EQ(50, NumberIn(task, L"PercentComplete"));
        EXPECT_EQ(7, NumberIn(task, L"TotalWork"));
        EXPECT_EQ(1, NumberIn(task, L"Status"));
    }
    Execute(L"UPDATE Activities SET F_ACTPERCENT=1, F_ACTTOTAL=2147483647, F_ACTSTATUS=4");
    EXPECT_EQ(2147483647, NumberIn(WriteExistingTask(), L"TotalWork"));
    EXPECT_EQ(4, NumberIn(TaskAt(1), L"Status"));
}

} // namespace
