// The relation rows of a task and the pass over all of them.
#include "data/RecordMode.h"
#include "tests/support/CallWatch.h"
#include "tests/support/WithLanguage.h"
#include "tests/tasks/TaskFixture.h"

namespace
{

using automation::Object;
using automation::TextOf;
using resources::Language;
using test_support::CallWatch;

using TasksToOutlook = test_support::TaskFixture;

} // namespace

TEST_F(TasksToOutlook, ARowThatNamesNoKnownPropertyIsSkipped)
{
    Relate({{L"F_ACTNAME", L"subject"}, {L"F_ACTTYPE", L"Body"}, {L"F_ACTTYPE", L"Categories"}});
    AddRow({{L"F_ACTNAME", L"'Call'"}, {L"F_ACTTYPE", L"'Phone'"}});
    const Object task = WriteNewItem();
    EXPECT_EQ(L"", TextOf(task.Get(L"Subject")));
    EXPECT_EQ(L"", TextOf(task.Get(L"Body")));
    EXPECT_EQ(L"Phone", TextOf(task.Get(L"Categories")));
}

TEST_F(TasksToOutlook, TheLaterOfTwoRowsForAPropertyWins)
{
    Relate({{L"F_ACTNAME", L"Subject"}, {L"F_ACTTYPE", L"Subject"}});
    AddRow({{L"F_ACTNAME", L"'First'"}, {L"F_ACTTYPE", L"'Later'"}});
    EXPECT_EQ(L"Later", TextOf(WriteNewItem().Get(L"Subject")));
}

TEST_F(TasksToOutlook, RowsOfOtherTablesDoNotCountAndWithoutRowsTheTaskIsStillSaved)
{
    Execute(L"INSERT INTO SynRelation (QuenlarTblName,EnglishName,OutlookName) VALUES "
            L"('TBLCONTACT','F_ACTNAME','Subject')");
    AddRow({{L"F_ACTNAME", L"'Call'"}});
    WriteNewItem();
    EXPECT_EQ(1, CountItems());
    EXPECT_EQ(L"", TextOf(PropertyOf(1, L"Subject")));
}

TEST_F(TasksToOutlook, ATaskIsSavedAfterEveryRowOnceMoreAfterTheStatusAndAtTheEnd)
{
    Relate({{L"F_ACTNAME", L"Subject"}, {L"F_ACTSTATUS", L"Status"}, {L"F_ACTTYPE", L"Unknown"}});
    AddRow({{L"F_ACTNAME", L"'Call'"}, {L"F_ACTSTATUS", L"1"}});
    const CallWatch calls;
    WriteNewItem();
    EXPECT_EQ(3 + 1 + 1, calls.Of(L"TaskItem.Save"));
}

TEST_F(TasksToOutlook, TheRelationRowsAreReadOncePerPass)
{
    Relate({{L"F_ACTNAME", L"Subject"}});
    AddRow({{L"F_ACTNAME", L"'One'"}});
    AddRow({{L"F_ACTNAME", L"'Two'"}});
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(1L, 0);
    run.Pending.NewHostRecords.Add(2L, 0);
    const CallWatch calls;
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    EXPECT_EQ(1, calls.Of(L"Recordset.Open"));
    EXPECT_EQ(1, calls.Of(L"Recordset.Close"));
    EXPECT_EQ(L"One", TextOf(PropertyOf(1, L"Subject")));
    EXPECT_EQ(L"Two", TextOf(PropertyOf(2, L"Subject")));
}

TEST_F(TasksToOutlook, AnyModeButNewAndExistingTouchesNothing)
{
    Relate({{L"F_ACTNAME", L"Subject"}});
    AddRow({{L"F_ACTNAME", L"'Call'"}});
    AddOutlookTask({{L"Subject", L"As it was"}});
    exchange::Run run = NewRun();
    run.Relations.Use(tasks::SynTaskFromOutlook.RelationStatement, tasks::SynTaskFromOutlook.RelationOptions);
    const Object task = ItemAt(1);
    const CallWatch calls;
    for (const auto mode : {data::RecordMode{-1}, data::RecordMode{0}, data::RecordMode{3}})
    {
        tasks::SynSynTaskToOlTask(run, mode, task);
    }
    EXPECT_EQ(0, calls.Total());
    tasks::SynSynTaskToOlTask(run, data::kExistingRecord, task);
    EXPECT_EQ(L"Call", TextOf(PropertyOf(1, L"Subject")));
}

TEST_F(TasksToOutlook, AChangedPairWithAnotherMarkIsSkippedButTheBarAdvances)
{
    Relate({{L"F_ACTNAME", L"Subject"}});
    AddRow({{L"F_ACTNAME", L"'One'"}});
    AddRow({{L"F_ACTNAME", L"'Two'"}});
    AddOutlookTask({{L"Subject", L"A"}});
    AddOutlookTask({{L"Subject", L"B"}});
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 0);
    run.Pending.ChangedOutlookItems.Add(L"2", 0);
    run.Pending.ChangedHostRecords.Add(2L, 1);
    run.Pending.ChangedOutlookItems.Add(L"1", 1);
    const test_support::WithLanguage english(Language::English);
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    EXPECT_EQ(L"Two", TextOf(PropertyOf(1, L"Subject")));
    EXPECT_EQ(L"B", TextOf(PropertyOf(2, L"Subject")));
    EXPECT_EQ((std::vector<std::wstring>{L"Begin Synchronize...", L"0%", L"(shown)", L"0%", L"0%", L"50%",
                                         L"100%", L"(hidden)"}),
              Display.Events);
}

TEST_F(TasksToOutlook, TheStatusTextIsInTheInterfaceLanguage)
{
    exchange::Run run = NewRun();
    const test_support::WithLanguage chinese(Language::Chinese);
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    EXPECT_EQ(L"正在进行数据传输，请稍候...", Display.Events.front());
}

TEST_F(TasksToOutlook, AnErrorEndsThePassAndKeepsTheWrittenItems)
{
    Relate(
        {{L"F_ACTNAME", L"Subject"}, {L"CONTACT_SURNAME", L"ContactNames"}, {L"F_ACTTYPE", L"Categories"}});
    AddRow({{L"F_ACTNAME", L"'One'"}, {L"F_ACTTYPE", L"'Phone'"}});
    AddRow({{L"F_ACTNAME", L"'Two'"},
            {L"F_ACTTYPE", L"'Phone'"},
            {L"CONTACT_SURNAME", L"'Sm\"ith'"},
            {L"CONTACT_GIVENNAME", L"'Mary'"}});
    AddRow({{L"F_ACTNAME", L"'Three'"}, {L"F_ACTTYPE", L"'Phone'"}});
    exchange::Run run = NewRun();
    for (const long row : {1, 2, 3})
    {
        run.Pending.NewHostRecords.Add(row, 0);
    }
    EXPECT_TRUE(tasks::SynTaskToOutlook(run));
    ASSERT_EQ(2, CountItems());
    EXPECT_EQ(L"Phone", TextOf(PropertyOf(1, L"Categories")));
    EXPECT_EQ(L"Two", TextOf(PropertyOf(2, L"Subject")));
    EXPECT_EQ(L"", TextOf(PropertyOf(2, L"Categories")));
    EXPECT_EQ(L"(hidden)", Display.Events.back());
}

TEST_F(TasksToOutlook, RelationRowsThatCannotBeReadEndThePass)
{
    Execute(L"DROP TABLE SynRelation");
    AddRow({{L"F_ACTNAME", L"'One'"}});
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(1L, 0);
    EXPECT_TRUE(tasks::SynTaskToOutlook(run));
    EXPECT_EQ(0, CountItems());
}
