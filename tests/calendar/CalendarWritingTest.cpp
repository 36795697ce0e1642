#include "calendar/Calendar.h"

#include "data/RecordMode.h"
#include "resources/Strings.h"
#include "tests/calendar/CalendarFixture.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/OpenedRecordsets.h"
#include "tests/support/WithLanguage.h"

namespace test_support
{

class CalendarWriting : public CalendarFixture
{
  protected:
    Object AddMeeting() const { return AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0)); }

    void AddMeetingOf(const wchar_t* company) const
    {
        const Object appointment = AddMeeting();
        appointment.Put(L"Companies", company);
        appointment.Call(L"Save");
    }

    // Calls the writer for appointment 1 over host entry 1.
    long Write(long mode)
    {
        exchange::Run run = NewRun();
        run.Relations.Use(calendar::SynCalendarFromOutlook.RelationStatement,
                          calendar::SynCalendarFromOutlook.RelationOptions);
        return calendar::SynOlCalendarToSynCalendar(run, data::RecordMode{mode}, AppointmentAt(1));
    }

    // The messages during the writing of appointment 1, whose result must be this.
    std::vector<ShownMessage> MessagesOf(long mode, long expectedResult)
    {
        long result = 1;
        auto messages = MessagesDuring([&] { result = Write(mode); });
        EXPECT_EQ(expectedResult, result);
        return messages;
    }
};

TEST_F(CalendarWriting, AnAppointmentWithoutASubjectIsLeftOutSilently)
{
    const Object appointment = AddMeeting();
    appointment.Put(L"Subject", L"");
    appointment.Call(L"Save");
    EXPECT_TRUE(MessagesOf(data::kNewRecord, 0).empty());
    EXPECT_TRUE(MessagesOf(data::kExistingRecord, 0).empty());
    EXPECT_TRUE(Host->Calls.empty());
}

TEST_F(CalendarWriting, ANewRowTakesItsOwnColumnsBeforeTheMappedOneAndItsKeysLast)
{
    AddMeeting();
    EXPECT_EQ(0, Write(data::kNewRecord));
    const std::wstring expected =
        L"Insert(TBLACTIVITY|F_ACTNAME,F_ACTTYPE,F_ACTESTIME,F_ACTESDATE,F_ACTREMIND,F_ACTEEDATE,F_ACTEETIME,"
        L"F_ACTCOMPLETED,F_ACCID,F_ACTORID,F_CREATORID,F_ACTID|'Meeting','(Unspecified)','09:30:00',"
        L"'05/06/2003',0,'05/06/2003','11:00:00',0,NULL,7,7,'KEY-1'|KEY-1)";
    EXPECT_EQ(std::vector<std::wstring>{expected}, CallsOf(L"Insert"));
}

TEST_F(CalendarWriting, AnExistingRowIsUpdatedByItsKey)
{
    AddMeeting();
    AddEntry();
    EXPECT_EQ(0, Write(data::kExistingRecord));
    const std::wstring expected =
        L"Update(TBLACTIVITY|F_ACTNAME='Meeting',F_ACTTYPE='(Unspecified)',F_ACTESTIME='09:30:00',"
        L"F_ACTESDATE='05/06/2003',F_ACTREMIND=0,F_ACTEEDATE='05/06/2003',F_ACTEETIME='11:00:00',"
        L"F_ACTCOMPLETED=0,F_ACCID=NULL||F_ACTID='ACT1')";
    EXPECT_EQ(std::vector<std::wstring>{expected}, CallsOf(L"Update"));
}

TEST_F(CalendarWriting, WithoutRelationRowsANewRowHasItsKeysOnly)
{
    Relate({});
    AddMeeting();
    Host->Permission = 1; // no right to link an account, so that there is no other column either
    EXPECT_EQ(0, Write(data::kNewRecord));
    EXPECT_EQ(
        std::vector<std::wstring>{L"Insert(TBLACTIVITY|F_ACTORID,F_CREATORID,F_ACTID|7,7,'KEY-1'|KEY-1)"},
        CallsOf(L"Insert"));
}

TEST_F(CalendarWriting, WithoutRelationRowsThereIsNothingToUpdate)
{
    Relate({});
    AddMeeting();
    AddEntry();
    Host->Permission = 1;
    EXPECT_TRUE(MessagesOf(data::kExistingRecord, 0).empty());
    EXPECT_TRUE(CallsOf(L"Update").empty());
}

TEST_F(CalendarWriting, RelationRowsThatNoRuleKnowsWriteNothing)
{
    Relate({{L"F_ACTNAME", L"Subject"}, {L"F_CNTCTID", L"Recipients"}, {L"F_ACTTYPE", L"categories"}});
    AddMeeting();
    const Columns written = InsertFirstAppointment();
    EXPECT_FALSE(written.contains(L"F_CNTCTID"));
    EXPECT_FALSE(written.contains(L"F_ACTTYPE"));
    EXPECT_EQ(L"'Meeting'", written.at(L"F_ACTNAME"));
}

TEST_F(CalendarWriting, NeitherATransactionNorAContactLinkIsMade)
{
    const Object appointment = AddMeeting();
    Mailbox->AddItem(kContactKind.folder, {{L"FirstName", L"Mary"}, {L"LastName", L"Smith"}});
    const Object contact = DefaultFolder(kContactKind).GetObject(L"Items").GetObject(L"Item", 1L);
    appointment.GetObject(L"Links").Call(L"Add", contact);
    appointment.Call(L"Save");
    EXPECT_FALSE(InsertFirstAppointment().contains(L"F_CNTCTID"));
    for (const wchar_t* member : {L"BeginTrans", L"CommitTrans", L"RollbackTrans", L"InTransaction"})
    {
        EXPECT_TRUE(CallsOf(member).empty());
    }
}

TEST_F(CalendarWriting, TheAccountOfTheCompanyIsLinked)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {{L"ACC-7"}}};
    EXPECT_EQ(L"'ACC-7'", InsertFirstAppointment().at(L"F_ACCID"));
    AddEntry();
    EXPECT_EQ(L"'ACC-7'", UpdateFirstAppointment().at(L"F_ACCID"));
}

TEST_F(CalendarWriting, ARefusedInsertIsReportedWithTheColumnLastProcessed)
{
    AddMeeting();
    Host->Status[L"Insert"] = -1;
    const WithLanguage english(resources::Language::English);
    const std::vector<ShownMessage> expected{
        {L"F_ACTCOMPLETED:The host reported a failure", L"Telvix", nullptr}};
    EXPECT_EQ(expected, MessagesOf(data::kNewRecord, -1));
    const WithLanguage chinese(resources::Language::Chinese);
    EXPECT_EQ(L"F_ACTCOMPLETED:主系统报告操作失败", MessagesOf(data::kNewRecord, -1).at(0).text);
}

TEST_F(CalendarWriting, AnInsertThatAnswersZeroOrMoreCountsAsWritten)
{
    AddMeeting();
    for (const long status : {0L, 1L, 7L})
    {
        Host->Status[L"Insert"] = status;
        EXPECT_TRUE(MessagesOf(data::kNewRecord, 0).empty());
    }
}

TEST_F(CalendarWriting, AnUpdateThatAnswersAnythingButZeroIsRefused)
{
    AddMeeting();
    AddEntry();
    for (const long status : {1L, -1L})
    {
        Host->Status[L"Update"] = status;
        EXPECT_EQ(1u, MessagesOf(data::kExistingRecord, -1).size());
    }
}

TEST_F(CalendarWriting, AnErrorThatTheHostRaisesWhileWritingIsARefusalInItsOwnWords)
{
    AddMeeting();
    Host->Failing = {L"Insert"};
    EXPECT_EQ(L"F_ACTCOMPLETED:The host raised an error", MessagesOf(data::kNewRecord, -1).at(0).text);
}

TEST_F(CalendarWriting, AColumnThatTheCatalogueDoesNotKnowIsReportedAndNothingIsWritten)
{
    AddMeeting();
    Execute(L"DELETE FROM SynFields WHERE FieldName='F_ACTREMIND'");
    const std::vector<ShownMessage> messages = MessagesOf(data::kNewRecord, 0);
    ASSERT_EQ(2u, messages.size());
    EXPECT_EQ(L"Don't find F_ACTREMINDfield in table 'SynFields', can't format ", messages[0].text);
    EXPECT_TRUE(messages[1].text.starts_with(L"F_ACTREMIND:"));
    EXPECT_EQ(nullptr, messages[1].icon);
    EXPECT_TRUE(CallsOf(L"Insert").empty());
}

TEST_F(CalendarWriting, AnAccountThatCannotBeLookedUpIsReportedOnceWithTheHostsNumberAndNothingIsWritten)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Status[L"OpenRecordsetByString"] = -3;
    const std::vector<ShownMessage> expected{
        {L"-3:The host reported a failure", L"ChangeAddTaskAccount", IDI_ERROR}};
    const WithLanguage english(resources::Language::English);
    EXPECT_EQ(expected, MessagesOf(data::kNewRecord, 0));
    EXPECT_TRUE(CallsOf(L"Insert").empty());
}

TEST_F(CalendarWriting, AnAccountThatCannotBeMadeIsReportedOnceWithTheHostsText)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {}};
    Host->Failing = {L"Insert"};
    const std::vector<ShownMessage> expected{
        {L"F_ACTCOMPLETED:The host raised an error", L"Telvix", nullptr}};
    EXPECT_EQ(expected, MessagesOf(data::kNewRecord, 0));
}

TEST_F(CalendarWriting, AnAccountThatWasNotInsertedIsNotDeleted)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {}};
    Host->Status[L"Insert"] = -1;
    EXPECT_EQ(1u, MessagesOf(data::kNewRecord, 0).size());
    EXPECT_TRUE(CallsOf(L"Delete").empty());
    EXPECT_TRUE(CallsOf(L"InTransaction").empty());
}

TEST_F(CalendarWriting, AnAccountWithoutItsInformationRowIsDeletedAndNothingElse)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {}}; // so that there is no system row either
    EXPECT_EQ(1u, MessagesOf(data::kNewRecord, 0).size());
    EXPECT_EQ(std::vector<std::wstring>{L"Delete(TBLACCOUNT|F_ACCID='KEY-1')"}, CallsOf(L"Delete"));
    EXPECT_EQ(1u, CallsOf(L"InTransaction").size());
    Host->Calls.clear();
    Host->Pending = true; // a transaction of the host's own
    EXPECT_EQ(1u, MessagesOf(data::kNewRecord, 0).size());
    EXPECT_TRUE(CallsOf(L"Delete").empty());
}

TEST_F(CalendarWriting, AValueThatCannotBeFormattedIsReportedWithItsOwnColumnAndReason)
{
    AddMeeting();
    Execute(L"UPDATE SynFields SET FieldType=4 WHERE FieldName='F_ACTTYPE'");
    const WithLanguage english(resources::Language::English);
    const std::vector<ShownMessage> messages = MessagesOf(data::kNewRecord, 0);
    ASSERT_EQ(1u, messages.size());
    EXPECT_TRUE(messages[0].text.starts_with(L"F_ACTTYPE:F_ACTTYPE cannot be formatted: "));
    const WithLanguage chinese(resources::Language::Chinese);
    EXPECT_TRUE(MessagesOf(data::kNewRecord, 0).at(0).text.starts_with(L"F_ACTTYPE:F_ACTTYPE 无法格式化: "));
}

TEST_F(CalendarWriting, ACompanyOfBlanksIsNone)
{
    AddMeetingOf(L"  ");
    EXPECT_EQ(L"NULL", InsertFirstAppointment().at(L"F_ACCID"));
    EXPECT_TRUE(CallsOf(L"OpenRecordsetByString").empty());
}

TEST_F(CalendarWriting, TheRelationRowsAreOpenedAsTheContractHasIt)
{
    AddMeeting();
    const OpenedRecordsets opened;
    EXPECT_EQ(0, Write(data::kNewRecord));
    EXPECT_EQ(
        (std::vector<std::wstring>{
            L"location 3: SELECT * FROM HostRows (cursor 1, lock 1, options 1)", // the test's own
            L"location 3: Select * From SynRelation Where QuenlarTblName='VW_CALENDAR' (cursor 1, lock 1, "
            L"options 1)",
            L"SynFields (cursor -1, lock 1, options 2)"}),
        opened.Texts);
}

TEST_F(CalendarWriting, RelationRowsThatCannotBeReadAreReported)
{
    AddMeeting();
    Execute(L"DROP TABLE SynRelation");
    const std::vector<ShownMessage> messages = MessagesOf(data::kNewRecord, 0);
    ASSERT_EQ(1u, messages.size());
    EXPECT_TRUE(messages[0].text.starts_with(L":"));
}

TEST_F(CalendarWriting, AModeOtherThanNewAndExistingDoesNothing)
{
    AddMeeting();
    for (const long mode : {0L, 3L, -1L})
    {
        EXPECT_TRUE(MessagesOf(mode, 0).empty());
    }
    EXPECT_TRUE(Host->Calls.empty());
}

TEST_F(CalendarWriting, APairIsWrittenOnlyWhenItsMarkIsZeroButTheProgressAdvances)
{
    AddMeeting();
    AddEntry();
    exchange::Run run = NewRun();
    for (const long mark : {1L, 0L, 2L})
    {
        run.Pending.ChangedHostRecords.Add(1L, mark);
        run.Pending.ChangedOutlookItems.Add(L"1", mark);
    }
    EXPECT_FALSE(calendar::SynCalendarFromOutlook(run));
    EXPECT_EQ(1u, CallsOf(L"Update").size());
    EXPECT_EQ(1.0, Display.Progress.back());
    EXPECT_EQ(resources::String(1044), Display.Status);
    EXPECT_FALSE(Display.IsShown);
}

TEST_F(CalendarWriting, ThePassContinuesAfterARefusedAppointment)
{
    AddMeeting();
    AddMeeting();
    Host->Status[L"Insert"] = -1;
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    run.Pending.NewOutlookItems.Add(L"2", 0);
    bool failed = true;
    const auto messages = MessagesDuring([&] { failed = calendar::SynCalendarFromOutlook(run); });
    EXPECT_FALSE(failed);
    EXPECT_EQ(2u, messages.size());
    EXPECT_EQ(2u, CallsOf(L"Insert").size());
}

TEST_F(CalendarWriting, AnItemThatIsGoneIsSkippedAndCounted)
{
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    EXPECT_FALSE(calendar::SynCalendarFromOutlook(run));
    EXPECT_EQ(1, run.Report.Vanished());
    EXPECT_FALSE(Display.IsShown);
}

} // namespace test_support
