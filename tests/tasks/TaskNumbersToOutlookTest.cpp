// Numbers of the host that Outlook does not have.
#include "tasks/Tasks.h"
#include "tests/support/ItemValues.h"
#include "tests/tasks/TaskFixture.h"

namespace
{

using automation::Object;
using test_support::Number;

class TaskNumbersToOutlook : public test_support::TaskFixture
{
};

TEST_F(TaskNumbersToOutlook, ATaskWithoutALevelThatOutlookKnowsKeepsItsImportanceAndTheOnesBehindAreWritten)
{
    Relate({{L"F_ACTPRIORITY", L"Importance"}, {L"F_ACTNAME", L"Subject"}});
    for (const wchar_t* level : {L"NULL", L"0", L"4", L"9", L"-1"})
    {
        Execute(L"DELETE FROM HostRows");
        AddRow({{L"F_ACTPRIORITY", level}, {L"F_ACTNAME", L"'First'"}});
        AddRow({{L"F_ACTPRIORITY", L"3"}, {L"F_ACTNAME", L"'Behind'"}});
        exchange::Run run = NewRun();
        run.Pending.NewHostRecords.Add(1L, 0);
        run.Pending.NewHostRecords.Add(2L, 0);
        EXPECT_FALSE(tasks::SynTaskToOutlook(run));
        EXPECT_EQ(1, Number(ItemAt(CountItems() - 1), L"Importance"));
        EXPECT_EQ(2, Number(ItemAt(CountItems()), L"Importance"));
    }
    Execute(L"DELETE FROM HostRows WHERE F_ACTPRIORITY=3");
    AddOutlookTask({{L"Importance", 2}});
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 1);
    run.Pending.ChangedOutlookItems.Add(std::to_wstring(CountItems()), 1);
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    EXPECT_EQ(2, Number(ItemAt(CountItems()), L"Importance"));
}

TEST_F(TaskNumbersToOutlook, ANumberThatOutlookDoesNotHaveLeavesThePropertyAsItIs)
{
    Relate({{L"F_ACTPERCENT", L"PercentComplete"},
            {L"F_ACTTOTALWORK", L"TotalWork"},
            {L"F_ACTSTATUS", L"Status"}});
    AddRow({});
    for (const wchar_t* set : {L"F_ACTPERCENT=1.1, F_ACTTOTALWORK=-1, F_ACTSTATUS=5",
                               L"F_ACTPERCENT=-0.5, F_ACTTOTALWORK=-90, F_ACTSTATUS=-1"})
    {
        Execute(L"UPDATE HostRows SET " + std::wstring(set));
        AddOutlookTask({{L"PercentComplete", 50}, {L"TotalWork", 7}, {L"Status", 1}});
        const Object task = WriteExistingItem();
        EXPECT_EQ(50, Number(task, L"PercentComplete"));
        EXPECT_EQ(7, Number(task, L"TotalWork"));
        EXPECT_EQ(1, Number(task, L"Status"));
    }
    Execute(L"UPDATE HostRows SET F_ACTPERCENT=1, F_ACTTOTALWORK=2147483647, F_ACTSTATUS=4");
    EXPECT_EQ(2147483647, Number(WriteExistingItem(), L"TotalWork"));
    EXPECT_EQ(4, Number(ItemAt(1), L"Status"));
}

} // namespace
