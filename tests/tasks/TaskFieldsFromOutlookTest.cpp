// The host column for each property of an Outlook task.
#include "data/RecordMode.h"
#include "tasks/Tasks.h"
#include "tests/support/WithLanguage.h"
#include "tests/tasks/TaskFixture.h"

namespace
{

using automation::kOutlookNoDate;
using automation::Value;
using resources::Language;
using test_support::Day;
using test_support::WithLanguage;

class TaskFieldsFromOutlook : public test_support::TaskFixture
{
  protected:
    // The literal that the task's property becomes in the host.
    std::wstring Stored(const wchar_t* property, const wchar_t* column)
    {
        Relate({{column, property}});
        Host->Calls.clear();
        InsertFirstItem();
        const std::wstring& insert = Host->Calls.at(1);
        const std::wstring begin = std::wstring(L"Insert(TBLACTIVITY|") + column +
                                   L",F_CNTCTID,F_ACCID,F_ACTORID ,F_CREATORID,F_ACTID|";
        EXPECT_EQ(begin, insert.substr(0, begin.size()));
        return insert.substr(begin.size(), insert.find(L",NULL,NULL,7,7,") - begin.size());
    }
};

// A task whose dates carry a time of day, which the mailbox would drop.
class CompletedTaskWithTimes : public sandbox::DispatchObject
{
  protected:
    const wchar_t* ClassName() const override { return L"TaskItem"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable kMembers = {
            Fixed(L"StartDate", Day(2003, 5, 6, 9, 30)),
            Fixed(L"DueDate", Day(2003, 5, 8, 17, 45)),
            Fixed(L"DateCompleted", Day(2003, 5, 7, 11, 20)),
            Fixed(L"Status", 2),
            Fixed(L"OutlookVersion", L"10.0"),
            Fixed(L"ContactNames", L""),
            Fixed(L"Companies", L""),
        };
        return kMembers;
    }

  private:
    static sandbox::Member Fixed(const wchar_t* name, const Value& value)
    {
        return {name, [value](sandbox::DispatchObject&, const sandbox::Call&) { return value; }, {}};
    }
};

} // namespace

TEST_F(TaskFieldsFromOutlook, ATaskWithoutAStartDateStoresNullAndNoReminder)
{
    AddOutlookTask({{L"Subject", L"Call"}, {L"StartDate", kOutlookNoDate}, {L"ReminderSet", true}});
    EXPECT_EQ(L"NULL", Stored(L"StartDate", L"F_ACTPSTIME"));
    EXPECT_EQ(L"0", Stored(L"ReminderSet", L"F_ACTREMIND"));
}

TEST_F(TaskFieldsFromOutlook, ATaskWithAStartDateStoresItsReminder)
{
    AddOutlookTask({{L"Subject", L"Call"}, {L"StartDate", Day(2003, 5, 6)}, {L"ReminderSet", true}});
    EXPECT_EQ(L"1", Stored(L"ReminderSet", L"F_ACTREMIND"));
    const automation::Object task = ItemAt(1);
    task.Put(L"ReminderSet", false);
    task.Call(L"Save");
    EXPECT_EQ(L"0", Stored(L"ReminderSet", L"F_ACTREMIND"));
}

TEST_F(TaskFieldsFromOutlook, StartDueAndCompletionDatesAreStoredWithoutATimeOfDay)
{
    Relate({{L"F_ACTPSTIME", L"StartDate"}, {L"F_ACTPETIME", L"DueDate"}, {L"F_ACTCTIME", L"DateCompleted"}});
    exchange::Run run = NewRun();
    run.Relations.Use(tasks::SynTaskFromOutlook.RelationStatement, tasks::SynTaskFromOutlook.RelationOptions);
    EXPECT_EQ(
        0, tasks::SynOlTaskToSynTask(run, data::kNewRecord, sandbox::MakeObject<CompletedTaskWithTimes>()));
    EXPECT_EQ(L"Insert(TBLACTIVITY|F_ACTPSTIME,F_ACTPETIME,F_ACTCTIME,F_CNTCTID,F_ACCID,F_ACTORID "
              L",F_CREATORID,F_ACTID|'05/06/2003 00:00:00','05/08/2003 00:00:00','05/07/2003 00:00:00',"
              L"NULL,NULL,7,7,'KEY1'|KEY1)",
              Host->Calls.at(1));
}

TEST_F(TaskFieldsFromOutlook, TheZeroDateIsNoDateEither)
{
    AddOutlookTask({{L"Subject", L"Call"}, {L"DueDate", automation::kZeroDate}});
    EXPECT_EQ(L"NULL", Stored(L"DueDate", L"F_ACTPETIME"));
}

TEST_F(TaskFieldsFromOutlook, AnUncompletedTaskStoresNoCompletionDateEvenIfOutlookHoldsOne)
{
    for (const long status : {0, 1, 3, 4})
    {
        UseNewMailbox();
        AddOutlookTask({{L"Subject", L"Call"}, {L"Status", status}, {L"DateCompleted", Day(2003, 5, 6)}});
        EXPECT_EQ(L"NULL", Stored(L"DateCompleted", L"F_ACTCTIME")) << status;
    }
}

TEST_F(TaskFieldsFromOutlook, ACompletedTaskWithoutACompletionDateStoresNull)
{
    AddOutlookTask({{L"Subject", L"Call"}, {L"Status", 2}});
    EXPECT_EQ(L"NULL", Stored(L"DateCompleted", L"F_ACTCTIME"));
}

TEST_F(TaskFieldsFromOutlook, TheCreationTimeKeepsItsTimeOfDay)
{
    AddOutlookTask({{L"Subject", L"Call"}, {L"CreationTime", Day(2003, 5, 6, 9, 30)}});
    EXPECT_EQ(L"'05/06/2003 09:30:00'", Stored(L"CreationTime", L"F_ACTCREATETIME"));
}

TEST_F(TaskFieldsFromOutlook, ATaskWithoutCategoriesIsUnspecifiedInTheInterfaceLanguage)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    {
        const WithLanguage english(Language::English);
        EXPECT_EQ(L"'(Unspecified)'", Stored(L"Categories", L"F_ACTTYPE"));
    }
    const WithLanguage chinese(Language::Chinese);
    EXPECT_EQ(L"'(未指定)'", Stored(L"Categories", L"F_ACTTYPE"));
}

TEST_F(TaskFieldsFromOutlook, CategoriesAreStoredAsTheyAre)
{
    AddOutlookTask({{L"Subject", L"Call"}, {L"Categories", L"Phone, 电话"}});
    EXPECT_EQ(L"'Phone, 电话'", Stored(L"Categories", L"F_ACTTYPE"));
}

TEST_F(TaskFieldsFromOutlook, NumbersAreConvertedToTheHostsScale)
{
    AddOutlookTask({{L"Subject", L"Call"},
                    {L"PercentComplete", 50},
                    {L"Importance", 0},
                    {L"Status", 3},
                    {L"TotalWork", 480},
                    {L"ActualWork", 90}});
    EXPECT_EQ(L"0.5", Stored(L"PercentComplete", L"F_ACTPERCENT"));
    EXPECT_EQ(L"1", Stored(L"Importance", L"F_ACTPRIORITY"));
    EXPECT_EQ(L"3", Stored(L"Status", L"F_ACTSTATUS"));
    EXPECT_EQ(L"480", Stored(L"TotalWork", L"F_ACTTOTALWORK"));
    EXPECT_EQ(L"90", Stored(L"ActualWork", L"F_ACTACTUALWORK"));
}

TEST_F(TaskFieldsFromOutlook, CompleteStoresTheStatusNumberAndNotTheFlag)
{
    Execute(L"UPDATE SynFields SET FieldType=1 WHERE FieldName='F_ACTCOMPLETED'"); // a flag would be 1
    AddOutlookTask({{L"Subject", L"Call"}, {L"Status", 2}, {L"Complete", true}});
    EXPECT_EQ(L"2", Stored(L"Complete", L"F_ACTCOMPLETED"));
}

TEST_F(TaskFieldsFromOutlook, AnUnknownPropertyStoresNullInItsColumn)
{
    AddOutlookTask({{L"Subject", L"Call"}, {L"Body", L"text"}});
    EXPECT_EQ(L"NULL", Stored(L"Body", L"F_ACTNAME"));
    EXPECT_EQ(L"NULL", Stored(L"subject", L"F_ACTNAME"));
}
