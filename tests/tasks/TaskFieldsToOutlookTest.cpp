// The property of an Outlook task for each host column.
#include "sandbox/ado/Recordset.h"

#include "automation/Error.h"
#include "state/SharedState.h"
#include "tests/support/CallWatch.h"
#include "tests/support/ItemValues.h"
#include "tests/support/WithLanguage.h"
#include "tests/tasks/TaskFixture.h"

namespace
{

using automation::DateOf;
using automation::kOutlookNoDate;
using automation::Object;
using automation::TextOf;
using resources::Language;
using test_support::CallWatch;
using test_support::Day;
using test_support::Number;
using test_support::Truth;

using TasksToOutlook = test_support::TaskFixture;

// As text, so that a failed comparison can be read.
std::wstring Date(const Object& task, const wchar_t* property)
{
    return automation::Formatted(DateOf(task.Get(property)), L"yyyy-mm-dd hh:mm:ss");
}

} // namespace

TEST_F(TasksToOutlook, EachPropertyOfTheTableTakesTheHostValue)
{
    Relate({{L"F_ACTNAME", L"Subject"},
            {L"F_ACTPSTIME", L"StartDate"},
            {L"F_ACTPETIME", L"DueDate"},
            {L"F_ACTTYPE", L"Categories"},
            {L"F_ACTSTATUS", L"Status"},
            {L"F_ACTTOTALWORK", L"TotalWork"},
            {L"F_ACTACTUALWORK", L"ActualWork"},
            {L"ACC_SNAME", L"Companies"}});
    AddRow({{L"F_ACTNAME", L"'Call O''Brien'"},
            {L"F_ACTPSTIME", L"'2003-05-06 09:30:45'"},
            {L"F_ACTPETIME", L"'2003-05-08'"},
            {L"F_ACTTYPE", L"'电话'"},
            {L"F_ACTSTATUS", L"3"},
            {L"F_ACTTOTALWORK", L"480"},
            {L"F_ACTACTUALWORK", L"90"},
            {L"ACC_SNAME", L"'Quenlar'"}});
    const Object task = WriteNewItem();
    EXPECT_EQ(L"Call O'Brien", TextOf(task.Get(L"Subject")));
    EXPECT_EQ(L"2003-05-06 00:00:00", Date(task, L"StartDate"));
    EXPECT_EQ(L"2003-05-08 00:00:00", Date(task, L"DueDate"));
    EXPECT_EQ(L"电话", TextOf(task.Get(L"Categories")));
    EXPECT_EQ(3, Number(task, L"Status"));
    EXPECT_EQ(480, Number(task, L"TotalWork"));
    EXPECT_EQ(90, Number(task, L"ActualWork"));
    EXPECT_EQ(L"Quenlar", TextOf(task.Get(L"Companies")));
}

TEST_F(TasksToOutlook, AHostTaskWithoutDatesHasNoneInOutlook)
{
    Relate({{L"F_ACTPSTIME", L"StartDate"}, {L"F_ACTPETIME", L"DueDate"}});
    AddRow({{L"F_ACTNAME", L"'Some day'"}});
    AddOutlookTask({{L"StartDate", Day(2003, 5, 6)}, {L"DueDate", Day(2003, 5, 7)}});
    for (const Object& task : {WriteNewItem(), WriteExistingItem()})
    {
        EXPECT_EQ(kOutlookNoDate, DateOf(task.Get(L"StartDate")));
        EXPECT_EQ(kOutlookNoDate, DateOf(task.Get(L"DueDate")));
    }
}

TEST_F(TasksToOutlook, ACompletionDateIsWrittenOnlyToATaskThatIsComplete)
{
    Relate({{L"F_ACTSTATUS", L"Status"}, {L"F_ACTCTIME", L"DateCompleted"}});
    AddRow({{L"F_ACTSTATUS", L"2"}, {L"F_ACTCTIME", L"'2003-05-06'"}});
    EXPECT_EQ(L"2003-05-06 00:00:00", Date(WriteNewItem(), L"DateCompleted"));
    for (const wchar_t* other : {L"0", L"1", L"3", L"4"})
    {
        Execute(std::wstring(L"UPDATE HostRows SET F_ACTSTATUS=") + other);
        const Object task = WriteNewItem();
        EXPECT_EQ(kOutlookNoDate, DateOf(task.Get(L"DateCompleted"))) << other;
        EXPECT_EQ(std::stol(other), Number(task, L"Status"));
    }
}

TEST_F(TasksToOutlook, ACompleteTaskWithoutACompletionDateInTheHostHasNoneInOutlook)
{
    Relate({{L"F_ACTSTATUS", L"Status"}, {L"F_ACTCTIME", L"DateCompleted"}});
    AddRow({{L"F_ACTSTATUS", L"2"}});
    const Object task = WriteNewItem();
    EXPECT_EQ(kOutlookNoDate, DateOf(task.Get(L"DateCompleted")));
    EXPECT_EQ(2, Number(task, L"Status"));
}

TEST_F(TasksToOutlook, ACompletionDateThatComesBeforeTheStatusIsDropped)
{
    Relate({{L"F_ACTCTIME", L"DateCompleted"}, {L"F_ACTSTATUS", L"Status"}});
    AddRow({{L"F_ACTSTATUS", L"2"}, {L"F_ACTCTIME", L"'2003-05-06'"}});
    const Object task = WriteNewItem();
    EXPECT_EQ(2, Number(task, L"Status"));
    EXPECT_NE(L"2003-05-06 00:00:00", Date(task, L"DateCompleted"));
}

TEST_F(TasksToOutlook, AnExistingTaskIsJudgedByTheStatusThatItHasWhenTheRowIsReached)
{
    // It was complete, and the date is written before the status makes it incomplete again.
    Relate({{L"F_ACTCTIME", L"DateCompleted"}});
    AddRow({{L"F_ACTSTATUS", L"1"}, {L"F_ACTCTIME", L"'2003-05-06'"}});
    AddOutlookTask({{L"Status", 2}, {L"Complete", true}, {L"DateCompleted", Day(2001, 1, 1)}});
    EXPECT_EQ(L"2003-05-06 00:00:00", Date(WriteExistingItem(), L"DateCompleted"));
    Relate({{L"F_ACTSTATUS", L"Status"}, {L"F_ACTCTIME", L"DateCompleted"}});
    EXPECT_EQ(kOutlookNoDate, DateOf(WriteExistingItem().Get(L"DateCompleted")));
}

TEST_F(TasksToOutlook, TheCompleteFlagIsWrittenOnlyToATaskThatIsComplete)
{
    Relate({{L"F_ACTSTATUS", L"Status"}, {L"F_ACTCOMPLETED", L"Complete"}});
    AddRow({{L"F_ACTSTATUS", L"1"}, {L"F_ACTCOMPLETED", L"1"}});
    Object task = WriteNewItem();
    EXPECT_FALSE(Truth(task, L"Complete"));
    EXPECT_EQ(1, Number(task, L"Status"));
    Execute(L"UPDATE HostRows SET F_ACTSTATUS=2, F_ACTCOMPLETED=0");
    task = WriteNewItem();
    EXPECT_FALSE(Truth(task, L"Complete"));
    EXPECT_EQ(0, Number(task, L"Status"));
}

TEST_F(TasksToOutlook, TheCompleteFlagThatComesBeforeTheStatusIsDropped)
{
    Relate({{L"F_ACTCOMPLETED", L"Complete"}, {L"F_ACTSTATUS", L"Status"}});
    AddRow({{L"F_ACTSTATUS", L"2"}, {L"F_ACTCOMPLETED", L"0"}});
    const Object task = WriteNewItem();
    EXPECT_TRUE(Truth(task, L"Complete"));
    EXPECT_EQ(2, Number(task, L"Status"));
}

TEST_F(TasksToOutlook, AFractionBecomesAPercentage)
{
    Relate({{L"F_ACTPERCENT", L"PercentComplete"}});
    AddRow({{L"F_ACTPERCENT", L"0.5"}});
    EXPECT_EQ(50, Number(WriteNewItem(), L"PercentComplete"));
    Execute(L"UPDATE HostRows SET F_ACTPERCENT=0.29"); // times 100 a little less than 29
    EXPECT_EQ(29, Number(WriteNewItem(), L"PercentComplete"));
    Execute(L"UPDATE HostRows SET F_ACTPERCENT=NULL");
    EXPECT_EQ(0, Number(WriteNewItem(), L"PercentComplete"));
}

TEST_F(TasksToOutlook, AnImportanceIsOneLowerInOutlook)
{
    Relate({{L"F_ACTPRIORITY", L"Importance"}});
    for (const long level : {1, 2, 3})
    {
        Execute(L"DELETE FROM HostRows");
        AddRow({{L"F_ACTPRIORITY", std::to_wstring(level)}});
        EXPECT_EQ(level - 1, Number(WriteNewItem(), L"Importance"));
    }
}

TEST_F(TasksToOutlook, AReminderComesTheLeadTimeBeforeTheStartWithoutItsSeconds)
{
    Relate({{L"F_ACTREMIND", L"ReminderSet"}});
    AddRow({{L"F_ACTREMIND", L"1"}, {L"F_ACTPSTIME", L"'2003-05-06 09:30:45'"}});
    Object task = WriteNewItem();
    EXPECT_TRUE(Truth(task, L"ReminderSet"));
    EXPECT_EQ(L"2003-05-06 09:10:00", Date(task, L"ReminderTime"));
    state::Shared().gCalendarPreviewAlarmTime = 600;
    EXPECT_EQ(L"2003-05-05 23:30:00", Date(WriteNewItem(), L"ReminderTime"));
    state::Shared().gCalendarPreviewAlarmTime = -15;
    EXPECT_EQ(L"2003-05-06 09:45:00", Date(WriteNewItem(), L"ReminderTime"));
}

TEST_F(TasksToOutlook, WithoutAReminderOrAStartTheReminderTimeIsNotWritten)
{
    Relate({{L"F_ACTREMIND", L"ReminderSet"}});
    AddRow({{L"F_ACTREMIND", L"0"}, {L"F_ACTPSTIME", L"'2003-05-06 09:30:45'"}});
    AddOutlookTask({{L"ReminderSet", true}, {L"ReminderTime", Day(2001, 2, 3, 4, 5)}});
    Object task = WriteExistingItem();
    EXPECT_FALSE(Truth(task, L"ReminderSet"));
    EXPECT_EQ(L"2001-02-03 04:05:00", Date(task, L"ReminderTime"));
    Execute(L"UPDATE HostRows SET F_ACTREMIND=1, F_ACTPSTIME=NULL");
    task = WriteExistingItem();
    EXPECT_TRUE(Truth(task, L"ReminderSet"));
    EXPECT_EQ(L"2001-02-03 04:05:00", Date(task, L"ReminderTime"));
    Execute(L"UPDATE HostRows SET F_ACTREMIND=NULL");
    EXPECT_FALSE(Truth(WriteExistingItem(), L"ReminderSet"));
}

TEST_F(TasksToOutlook, AnEmptyTextForTheStartIsNoStart)
{
    Relate({{L"F_ACTREMIND", L"ReminderSet"}});
    exchange::Run run = NewRun();
    run.HostRows =
        automation::Recordset(sandbox::MakeRecordset({{{L"F_ACTREMIND"}, {L"F_ACTPSTIME"}}, {{true, L""}}}));
    run.Pending.NewHostRecords.Add(1L, 0);
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    EXPECT_EQ(1, CountItems());
}
