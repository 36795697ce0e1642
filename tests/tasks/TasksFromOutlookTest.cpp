#include "tasks/Tasks.h"

#include "data/RecordMode.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/OpenedRecordsets.h"
#include "tests/support/WithLanguage.h"
#include "tests/tasks/TaskFixture.h"

namespace
{

using resources::Language;
using test_support::MessagesDuring;
using test_support::ShownMessage;
using test_support::WithLanguage;
using Calls = std::vector<std::wstring>;

class TasksFromOutlook : public test_support::TaskFixture
{
  protected:
    // A run that inserts the folder's tasks.
    bool InsertAll()
    {
        exchange::Run run = NewRun();
        for (long i = 1; i <= CountItems(); ++i)
        {
            run.Pending.NewOutlookItems.Add(std::to_wstring(i), 0);
        }
        return tasks::SynTaskFromOutlook(run);
    }

    static long CountOf(const Calls& calls, const std::wstring& begin)
    {
        return static_cast<long>(
            std::ranges::count_if(calls, [&](const std::wstring& call) { return call.starts_with(begin); }));
    }
};

} // namespace

TEST_F(TasksFromOutlook, WithoutRelationRowsTheInsertIsTheLinksAndTheKeys)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    InsertFirstItem();
    EXPECT_EQ((Calls{L"BeginTrans()",
                     L"Insert(TBLACTIVITY|F_CNTCTID,F_ACCID,F_ACTORID ,F_CREATORID,F_ACTID|"
                     L"NULL,NULL,7,7,'KEY1'|KEY1)",
                     L"CommitTrans()"}),
              Host->Calls);
}

TEST_F(TasksFromOutlook, TheRelationRowsAndTheCatalogueAreOpenedAsTheContractHasThem)
{
    Relate({{L"F_ACTNAME", L"Subject"}});
    AddOutlookTask({{L"Subject", L"Call"}});
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    const test_support::OpenedRecordsets opened;
    EXPECT_FALSE(tasks::SynTaskFromOutlook(run));
    EXPECT_EQ(
        (Calls{L"location 3: Select * From SynRelation Where QuenlarTblName='TBLACTIVITY' (cursor 1, lock "
               L"1, options 1)",
               L"SynFields (cursor -1, lock 1, options 2)"}),
        opened.Texts);
}

TEST_F(TasksFromOutlook, AnyPositiveResultOfAnInsertIsSuccess)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    Host->Status[L"TBLACTIVITY"] = 5;
    InsertFirstItem();
    EXPECT_EQ(L"CommitTrans()", Host->Calls.back());
}

TEST_F(TasksFromOutlook, AnUpdateWritesTheMappedColumnsAndTheLinksOfItsRow)
{
    Relate({{L"F_ACTNAME", L"Subject"}, {L"F_ACTSTATUS", L"Status"}, {L"CONTACT_SURNAME", L"ContactNames"}});
    AddRow({{L"F_ACTNAME", L"'Old'"}});
    AddOutlookTask({{L"Subject", L"Call O'Brien"}, {L"Status", 1}});
    UpdateFirstItem();
    EXPECT_EQ((Calls{L"BeginTrans()",
                     L"Update(TBLACTIVITY|F_ACTNAME='Call O''Brien',F_ACTSTATUS=1,F_CNTCTID=NULL,F_ACCID=NULL"
                     L"||F_ACTID='ACT1')",
                     L"CommitTrans()"}),
              Host->Calls);
}

TEST_F(TasksFromOutlook, ATaskWithoutASubjectNeverReachesTheHost)
{
    Relate({{L"F_ACTSTATUS", L"Status"}, {L"F_ACTNAME", L"Subject"}});
    AddOutlookTask({{L"Body", L"nothing to call it by"}});
    AddOutlookTask({{L"Subject", L"Call"}});
    EXPECT_FALSE(InsertAll());
    EXPECT_EQ((Calls{L"BeginTrans()",
                     L"Insert(TBLACTIVITY|F_ACTSTATUS,F_ACTNAME,F_CNTCTID,F_ACCID,F_ACTORID "
                     L",F_CREATORID,F_ACTID|0,'Call',NULL,NULL,7,7,'KEY1'|KEY1)",
                     L"CommitTrans()"}),
              Host->Calls);
}

TEST_F(TasksFromOutlook, AColumnThatIsNotTheHostTablesOwnIsLeftOut)
{
    Relate({{L"CONTACT_SURNAME", L"ContactNames"}, {L"ACC_SNAME", L"Companies"}});
    AddOutlookTask({{L"Subject", L"Call"}});
    InsertFirstItem();
    EXPECT_EQ(
        L"Insert(TBLACTIVITY|F_CNTCTID,F_ACCID,F_ACTORID ,F_CREATORID,F_ACTID|NULL,NULL,7,7,'KEY1'|KEY1)",
        Host->Calls.at(1));
}

TEST_F(TasksFromOutlook, AColumnThatCannotBeFormattedAbandonsTheTaskBeforeItsTransaction)
{
    Relate({{L"F_UNHEARD", L"Subject"}});
    AddOutlookTask({{L"Subject", L"Call"}});
    const auto messages = MessagesDuring([&] { InsertFirstItem(); });
    EXPECT_EQ((std::vector<ShownMessage>{{L"Don't find F_UNHEARDfield in table 'SynFields', can't format ",
                                          L"GetFieldType", IDI_ERROR}}),
              messages);
    EXPECT_TRUE(Host->Calls.empty());
}

TEST_F(TasksFromOutlook, ARefusedInsertIsRolledBackAndThePassContinues)
{
    Relate({{L"F_ACTNAME", L"Subject"}});
    AddOutlookTask({{L"Subject", L"One"}});
    AddOutlookTask({{L"Subject", L"Two"}});
    Host->Status[L"TBLACTIVITY"] = -1;
    EXPECT_FALSE(InsertAll());
    EXPECT_EQ(2, CountOf(Host->Calls, L"Insert"));
    EXPECT_EQ(2, CountOf(Host->Calls, L"RollbackTrans"));
    EXPECT_EQ(0, CountOf(Host->Calls, L"CommitTrans"));
}

TEST_F(TasksFromOutlook, APositiveResultOfAnInsertCountsAsWrittenOfAnUpdateAsFailed)
{
    AddRow({{L"F_ACTNAME", L"'Old'"}});
    AddOutlookTask({{L"Subject", L"Call"}});
    Host->Status[L"TBLACTIVITY"] = 1;
    InsertFirstItem();
    EXPECT_EQ(L"CommitTrans()", Host->Calls.back());
    UpdateFirstItem();
    EXPECT_EQ(L"RollbackTrans()", Host->Calls.back());
}

TEST_F(TasksFromOutlook, WithoutAPendingTransactionNothingIsCommittedOrRolledBack)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    Host->BeginOpensTransaction = false;
    InsertFirstItem();
    Host->Status[L"TBLACTIVITY"] = -1;
    InsertFirstItem();
    EXPECT_EQ(2, CountOf(Host->Calls, L"Insert"));
    EXPECT_EQ(0, CountOf(Host->Calls, L"CommitTrans") + CountOf(Host->Calls, L"RollbackTrans"));
}

TEST_F(TasksFromOutlook, TheWriterSaysWhetherTheTaskWasWritten)
{
    Relate({{L"F_ACTNAME", L"Subject"}});
    AddOutlookTask({{L"Subject", L"Call"}});
    AddOutlookTask({});
    exchange::Run run = NewRun();
    run.Relations.Use(tasks::SynTaskFromOutlook.RelationStatement, tasks::SynTaskFromOutlook.RelationOptions);
    EXPECT_EQ(0, tasks::SynOlTaskToSynTask(run, data::kNewRecord, ItemAt(1)));
    EXPECT_EQ(-1, tasks::SynOlTaskToSynTask(run, data::kNewRecord, ItemAt(2)));
    Host->Status[L"TBLACTIVITY"] = -1;
    EXPECT_EQ(-1, tasks::SynOlTaskToSynTask(run, data::kNewRecord, ItemAt(1)));
}

TEST_F(TasksFromOutlook, AnyOtherModeSaysSoInEnglishInBothLanguagesAndWritesNothing)
{
    Relate({{L"F_ACTNAME", L"Subject"}});
    AddOutlookTask({{L"Subject", L"Call"}});
    exchange::Run run = NewRun();
    run.Relations.Use(tasks::SynTaskFromOutlook.RelationStatement, tasks::SynTaskFromOutlook.RelationOptions);
    for (const Language language : {Language::English, Language::Chinese})
    {
        const WithLanguage withLanguage(language);
        const auto messages =
            MessagesDuring([&] { tasks::SynOlTaskToSynTask(run, data::RecordMode{3}, ItemAt(1)); });
        ASSERT_EQ(1u, messages.size());
        EXPECT_EQ(L"Error:Don't this Item.", messages[0].text);
        EXPECT_EQ(nullptr, messages[0].icon);
    }
    EXPECT_EQ(0, CountOf(Host->Calls, L"Insert") + CountOf(Host->Calls, L"Update"));
    EXPECT_EQ(2, CountOf(Host->Calls, L"CommitTrans") + CountOf(Host->Calls, L"RollbackTrans"));
}

TEST_F(TasksFromOutlook, AChangedPairWithAnotherMarkIsSkippedButTheBarAdvances)
{
    AddRow({});
    AddRow({});
    AddOutlookTask({{L"Subject", L"One"}});
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 0);
    run.Pending.ChangedOutlookItems.Add(L"1", 1);
    run.Pending.ChangedHostRecords.Add(2L, 1); // the mark of the item decides
    run.Pending.ChangedOutlookItems.Add(L"1", 0);
    const WithLanguage english(Language::English);
    EXPECT_FALSE(tasks::SynTaskFromOutlook(run));
    EXPECT_EQ((Calls{L"BeginTrans()", L"Update(TBLACTIVITY|F_CNTCTID=NULL,F_ACCID=NULL||F_ACTID='ACT2')",
                     L"CommitTrans()"}),
              Host->Calls);
    EXPECT_EQ((std::vector<std::wstring>{L"Begin Synchronize...", L"0%", L"(shown)", L"0%", L"0%", L"50%",
                                         L"100%", L"(hidden)"}),
              Display.Events);
}

TEST_F(TasksFromOutlook, AnItemThatIsGoneIsSkippedAndTheOthersAreWritten)
{
    AddOutlookTask({{L"Subject", L"One"}});
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"7", 0);
    run.Pending.NewOutlookItems.Add(L"1", 0);
    EXPECT_FALSE(tasks::SynTaskFromOutlook(run));
    EXPECT_FALSE(Host->Calls.empty());
    EXPECT_EQ(1, run.Report.Vanished());
    EXPECT_EQ(L"(hidden)", Display.Events.back());
}

TEST_F(TasksFromOutlook, RelationRowsThatCannotBeReadFailEachTaskWithoutATransaction)
{
    Execute(L"DROP TABLE SynRelation");
    AddOutlookTask({{L"Subject", L"One"}});
    EXPECT_FALSE(InsertAll());
    EXPECT_TRUE(Host->Calls.empty());
}
