#include "calendar/CalendarFromOutlook.h"

#include "calendar/CalendarRelations.h"
#include "data/RecordMode.h"
#include "resources/Strings.h"
#include "tests/calendar/CalendarTest.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/WithLanguage.h"

namespace test_support
{

class CalendarFromOutlook : public CalendarTest
{
  protected:
    Object AddMeeting() const { return AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0)); }

    Object AddAllDay() const
    {
        Object appointment = AddAppointment(Day(2003, 5, 6), Day(2003, 5, 7));
        appointment.Put(L"AllDayEvent", true);
        appointment.Call(L"Save");
        return appointment;
    }

    // Calls the writer for appointment 1 over host entry 1.
    long Write(long mode)
    {
        data::Run run = NewRun();
        run.Relations.Use(calendar::kRelationStatement, calendar::kRelationOptions);
        return calendar::SynOlCalendarToSynCalendar(run, mode, AppointmentAt(1));
    }

    // The messages during the writing of appointment 1, whose result must be this.
    std::vector<ShownMessage> MessagesOf(long mode, long expectedResult)
    {
        long result = 1;
        const auto messages = MessagesDuring([&] { result = Write(mode); });
        EXPECT_EQ(expectedResult, result);
        return messages;
    }
};

TEST_F(CalendarFromOutlook, AnAppointmentWithinADayEndsOnThatDay)
{
    AddMeeting();
    const Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"'Meeting'", written.at(L"F_ACTNAME"));
    EXPECT_EQ(L"'05/06/2003'", written.at(L"F_ACTESDATE"));
    EXPECT_EQ(L"'09:30:00'", written.at(L"F_ACTESTIME"));
    EXPECT_EQ(L"'05/06/2003'", written.at(L"F_ACTEEDATE"));
    EXPECT_EQ(L"'11:00:00'", written.at(L"F_ACTEETIME"));
    EXPECT_FALSE(written.contains(L"F_ACTREPTIDX"));
    EXPECT_FALSE(written.contains(L"F_ACTREPTEDATE"));
}

TEST_F(CalendarFromOutlook, AnAppointmentThatEndsOnALaterDayIsStoredToTheEndOfItsFirstDay)
{
    AddAppointment(Day(2003, 5, 6, 22, 0), Day(2003, 5, 7, 1, 0));
    const Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"'22:00:00'", written.at(L"F_ACTESTIME"));
    EXPECT_EQ(L"'05/06/2003'", written.at(L"F_ACTEEDATE"));
    EXPECT_EQ(L"'23:59:00'", written.at(L"F_ACTEETIME"));
}

TEST_F(CalendarFromOutlook, AnEndAtMidnightIsOneOfTheNextDay)
{
    AddAppointment(Day(2003, 5, 31, 22, 0), Day(2003, 6, 1));
    const Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"'05/31/2003'", written.at(L"F_ACTEEDATE"));
    EXPECT_EQ(L"'23:59:00'", written.at(L"F_ACTEETIME"));
}

TEST_F(CalendarFromOutlook, OnTheDaysWhenTheClocksChangeTheLocalTimesStay)
{
    AddAppointment(Day(2003, 3, 30, 1, 30), Day(2003, 3, 30, 3, 30));
    const Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"'01:30:00'", written.at(L"F_ACTESTIME"));
    EXPECT_EQ(L"'03:30:00'", written.at(L"F_ACTEETIME"));
}

TEST_F(CalendarFromOutlook, AnAllDayAppointmentTakesTheHoursOfTheWorkingDay)
{
    AddAllDay();
    Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"'05/06/2003'", written.at(L"F_ACTESDATE"));
    EXPECT_EQ(L"'06:00:00'", written.at(L"F_ACTESTIME"));
    EXPECT_EQ(L"'05/06/2003'", written.at(L"F_ACTEEDATE"));
    EXPECT_EQ(L"'17:30:00'", written.at(L"F_ACTEETIME"));

    state::Shared().gCalendarStartTime = {8.25 / 24};
    state::Shared().gCalendarEndTime = {20.0 / 24};
    written = InsertFirstAppointment();
    EXPECT_EQ(L"'08:15:00'", written.at(L"F_ACTESTIME"));
    EXPECT_EQ(L"'20:00:00'", written.at(L"F_ACTEETIME"));
}

TEST_F(CalendarFromOutlook, ARepeatingAllDayAppointmentIsStoredAsAnAllDayOne)
{
    AddAllDay().GetObject(L"GetRecurrencePattern").Put(L"RecurrenceType", 0L);
    const Object appointment = AppointmentAt(1);
    appointment.GetObject(L"GetRecurrencePattern").Put(L"RecurrenceType", 0L);
    appointment.Call(L"Save");
    const Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"'06:00:00'", written.at(L"F_ACTESTIME"));
    EXPECT_EQ(L"'17:30:00'", written.at(L"F_ACTEETIME"));
    EXPECT_EQ(L"1", written.at(L"F_ACTREPEATS"));
    EXPECT_FALSE(written.contains(L"F_ACTREPTIDX"));
}

TEST_F(CalendarFromOutlook, ADailyAppointmentIsMarkedAndStoredWithItsLastDay)
{
    AddRepeating(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0), [](const Object& pattern) {
        pattern.Put(L"RecurrenceType", 0L);
        pattern.Put(L"PatternEndDate", Day(2003, 6, 30));
    });
    const Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"1", written.at(L"F_ACTREPTIDX"));
    EXPECT_EQ(L"'05/06/2003'", written.at(L"F_ACTEEDATE"));
    EXPECT_EQ(L"'10:00:00'", written.at(L"F_ACTEETIME"));
    EXPECT_EQ(L"'06/30/2003'", written.at(L"F_ACTREPTEDATE"));
    EXPECT_EQ(L"1", written.at(L"F_ACTREPEATS"));
}

TEST_F(CalendarFromOutlook, AnEndlessDailyAppointmentIsStoredWithTheLastDayThatOutlookShows)
{
    AddRepeating(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0),
                 [](const Object& pattern) { pattern.Put(L"RecurrenceType", 0L); });
    EXPECT_EQ(L"'08/31/4500'", InsertFirstAppointment().at(L"F_ACTREPTEDATE"));
}

TEST_F(CalendarFromOutlook, OnlyADailyAppointmentIsMarked)
{
    for (const long type : {1L, 2L, 5L})
    {
        AddRepeating(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0),
                     [&](const Object& pattern) { pattern.Put(L"RecurrenceType", type); });
        data::Run run = NewRun();
        run.Pending.NewOutlookItems.Add(std::to_wstring(CountAppointments()), 0);
        EXPECT_FALSE(calendar::SynCalendarFromOutlook(run));
        const std::wstring insert = CallsOf(L"Insert").back();
        EXPECT_EQ(std::wstring::npos, insert.find(L"F_ACTREPTIDX"));
        EXPECT_EQ(std::wstring::npos, insert.find(L"F_ACTREPTEDATE"));
        EXPECT_NE(std::wstring::npos, insert.find(L"'10:00:00'"));
    }
}

TEST_F(CalendarFromOutlook, ADailyAppointmentOverMidnightIsNotMarkedAndEndsWithTheWorkingDay)
{
    AddRepeating(Day(2003, 5, 6, 22, 0), Day(2003, 5, 7, 1, 0),
                 [](const Object& pattern) { pattern.Put(L"RecurrenceType", 0L); });
    const Columns written = InsertFirstAppointment();
    EXPECT_FALSE(written.contains(L"F_ACTREPTIDX"));
    EXPECT_EQ(L"'05/06/2003'", written.at(L"F_ACTEEDATE"));
    EXPECT_EQ(L"'17:30:00'", written.at(L"F_ACTEETIME"));
}

TEST_F(CalendarFromOutlook, ADailyAppointmentLongerThanADayIsNotMarkedAndEndsAtItsTime)
{
    AddRepeating(Day(2003, 5, 6, 9, 0), Day(2003, 5, 7, 10, 0),
                 [](const Object& pattern) { pattern.Put(L"RecurrenceType", 0L); });
    const Columns written = InsertFirstAppointment();
    EXPECT_FALSE(written.contains(L"F_ACTREPTIDX"));
    EXPECT_EQ(L"'10:00:00'", written.at(L"F_ACTEETIME"));
}

TEST_F(CalendarFromOutlook, ADailyAppointmentOfExactlyADayDoesNotStartBeforeItsEnd)
{
    AddRepeating(Day(2003, 5, 6, 9, 0), Day(2003, 5, 7, 9, 0),
                 [](const Object& pattern) { pattern.Put(L"RecurrenceType", 0L); });
    const Columns written = InsertFirstAppointment();
    EXPECT_FALSE(written.contains(L"F_ACTREPTIDX"));
    EXPECT_EQ(L"'09:00:00'", written.at(L"F_ACTEETIME"));
}

TEST_F(CalendarFromOutlook, ARepeatingAppointmentStartsOnTheFirstDayOfItsPattern)
{
    Execute(L"UPDATE SynFields SET FieldType=6 WHERE FieldName='F_ACTESTIME'");
    AddRepeating(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0), [](const Object& pattern) {
        pattern.Put(L"StartTime", L" 08:15:00");
        pattern.Put(L"PatternStartDate", Day(2003, 5, 13));
    });
    const Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"'05/13/2003 08:15:00'", written.at(L"F_ACTESTIME"));
    EXPECT_EQ(L"'05/13/2003'", written.at(L"F_ACTESDATE"));
}

TEST_F(CalendarFromOutlook, ASingleAppointmentKeepsDateAndTimeTogether)
{
    Execute(L"UPDATE SynFields SET FieldType=6 WHERE FieldName='F_ACTESTIME'");
    AddMeeting();
    EXPECT_EQ(L"'05/06/2003 09:30:00'", InsertFirstAppointment().at(L"F_ACTESTIME"));
}

TEST_F(CalendarFromOutlook, WithoutCategoriesTheEntryIsUnspecifiedInTheInterfaceLanguage)
{
    const Object appointment = AddMeeting();
    {
        const WithLanguage english(resources::Language::English);
        EXPECT_EQ(L"'(Unspecified)'", InsertFirstAppointment().at(L"F_ACTTYPE"));
    }
    const WithLanguage chinese(resources::Language::Chinese);
    EXPECT_EQ(L"'(未指定)'", InsertFirstAppointment().at(L"F_ACTTYPE"));
    appointment.Put(L"Categories", L"Visit");
    appointment.Call(L"Save");
    EXPECT_EQ(L"'Visit'", InsertFirstAppointment().at(L"F_ACTTYPE"));
}

TEST_F(CalendarFromOutlook, TheReminderIsStoredAsItIs)
{
    const Object appointment = AddMeeting();
    for (const bool isSet : {true, false})
    {
        appointment.Put(L"ReminderSet", isSet);
        appointment.Call(L"Save");
        EXPECT_EQ(isSet ? L"1" : L"0", InsertFirstAppointment().at(L"F_ACTREMIND"));
    }
}

TEST_F(CalendarFromOutlook, AnAppointmentWithoutASubjectIsLeftOutSilently)
{
    const Object appointment = AddMeeting();
    appointment.Put(L"Subject", L"");
    appointment.Call(L"Save");
    EXPECT_TRUE(MessagesOf(data::kNewRecord, 0).empty());
    EXPECT_TRUE(MessagesOf(data::kExistingRecord, 0).empty());
    EXPECT_TRUE(mHost->Calls.empty());
}

TEST_F(CalendarFromOutlook, ANewRowTakesItsOwnColumnsBeforeTheMappedOneAndItsKeysLast)
{
    AddMeeting();
    EXPECT_EQ(0, Write(data::kNewRecord));
    const std::wstring expected =
        L"Insert(TBLACTIVITY|F_ACTNAME,F_ACTTYPE,F_ACTESTIME,F_ACTESDATE,F_ACTREMIND,F_ACTEEDATE,F_ACTEETIME,"
        L"F_ACTREPEATS,F_ACCID,F_ACTORID,F_CREATORID,F_ACTID|'Meeting','(Unspecified)','09:30:00',"
        L"'05/06/2003',0,'05/06/2003','11:00:00',0,NULL,USER,USER,'KEY-1'|KEY-1)";
    EXPECT_EQ(std::vector<std::wstring>{expected}, CallsOf(L"Insert"));
}

TEST_F(CalendarFromOutlook, AnExistingRowIsUpdatedByItsKey)
{
    AddMeeting();
    AddEntry();
    EXPECT_EQ(0, Write(data::kExistingRecord));
    const std::wstring expected =
        L"Update(TBLACTIVITY|F_ACTNAME='Meeting',F_ACTTYPE='(Unspecified)',F_ACTESTIME='09:30:00',"
        L"F_ACTESDATE='05/06/2003',F_ACTREMIND=0,F_ACTEEDATE='05/06/2003',F_ACTEETIME='11:00:00',"
        L"F_ACTREPEATS=0,F_ACCID=NULL||F_ACTID='ACT1')";
    EXPECT_EQ(std::vector<std::wstring>{expected}, CallsOf(L"Update"));
}

TEST_F(CalendarFromOutlook, WithoutRelationRowsANewRowHasItsKeysOnly)
{
    Relate({});
    AddMeeting();
    mHost->Permission = 1; // no right to link an account, so that there is no other column either
    EXPECT_EQ(0, Write(data::kNewRecord));
    EXPECT_EQ(
        std::vector<std::wstring>{
            L"Insert(TBLACTIVITY|F_ACTORID,F_CREATORID,F_ACTID|USER,USER,'KEY-1'|KEY-1)"},
        CallsOf(L"Insert"));
}

TEST_F(CalendarFromOutlook, WithoutRelationRowsThereIsNothingToUpdate)
{
    Relate({});
    AddMeeting();
    AddEntry();
    mHost->Permission = 1;
    EXPECT_TRUE(MessagesOf(data::kExistingRecord, 0).empty());
    EXPECT_TRUE(CallsOf(L"Update").empty());
}

TEST_F(CalendarFromOutlook, RelationRowsThatNoRuleKnowsWriteNothing)
{
    Relate({{L"F_ACTNAME", L"Subject"}, {L"F_CNTCTID", L"Recipients"}, {L"F_ACTTYPE", L"categories"}});
    AddMeeting();
    const Columns written = InsertFirstAppointment();
    EXPECT_FALSE(written.contains(L"F_CNTCTID"));
    EXPECT_FALSE(written.contains(L"F_ACTTYPE"));
    EXPECT_EQ(L"'Meeting'", written.at(L"F_ACTNAME"));
}

TEST_F(CalendarFromOutlook, NeitherATransactionNorAContactLinkIsMade)
{
    const Object appointment = AddMeeting();
    appointment.GetObject(L"Links").Call(L"Add", SavedContact(L"Mary", L"Smith"));
    appointment.Call(L"Save");
    EXPECT_FALSE(InsertFirstAppointment().contains(L"F_CNTCTID"));
    for (const wchar_t* member : {L"BeginTrans", L"CommitTrans", L"RollbackTrans", L"InTransaction"})
    {
        EXPECT_TRUE(CallsOf(member).empty());
    }
}

TEST_F(CalendarFromOutlook, TheAccountOfTheCompanyIsLinked)
{
    const Object appointment = AddMeeting();
    appointment.Put(L"Companies", L"Miller & Sons");
    appointment.Call(L"Save");
    mHost->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {{L"ACC-7"}}};
    EXPECT_EQ(L"'ACC-7'", InsertFirstAppointment().at(L"F_ACCID"));
    AddEntry();
    EXPECT_EQ(L"'ACC-7'", UpdateFirstAppointment().at(L"F_ACCID"));
}

TEST_F(CalendarFromOutlook, ARefusedInsertIsReportedWithTheColumnLastProcessed)
{
    AddMeeting();
    mHost->Status[L"Insert"] = -1;
    const WithLanguage english(resources::Language::English);
    const std::vector<ShownMessage> expected{
        {L"F_ACTREPEATS:The host reported a failure", L"Telvix", nullptr}};
    EXPECT_EQ(expected, MessagesOf(data::kNewRecord, -1));
    const WithLanguage chinese(resources::Language::Chinese);
    EXPECT_EQ(L"F_ACTREPEATS:主系统报告操作失败", MessagesOf(data::kNewRecord, -1).at(0).text);
}

TEST_F(CalendarFromOutlook, AnInsertThatAnswersZeroOrMoreCountsAsWritten)
{
    AddMeeting();
    for (const long status : {0L, 1L, 7L})
    {
        mHost->Status[L"Insert"] = status;
        EXPECT_TRUE(MessagesOf(data::kNewRecord, 0).empty());
    }
}

TEST_F(CalendarFromOutlook, AnUpdateThatAnswersAnythingButZeroIsRefused)
{
    AddMeeting();
    AddEntry();
    for (const long status : {1L, -1L})
    {
        mHost->Status[L"Update"] = status;
        EXPECT_EQ(1u, MessagesOf(data::kExistingRecord, -1).size());
    }
}

TEST_F(CalendarFromOutlook, AnErrorThatTheHostRaisesWhileWritingIsARefusalInItsOwnWords)
{
    AddMeeting();
    mHost->Failing = {L"Insert"};
    EXPECT_EQ(L"F_ACTREPEATS:The host raised an error", MessagesOf(data::kNewRecord, -1).at(0).text);
}

TEST_F(CalendarFromOutlook, AColumnThatTheCatalogueDoesNotKnowIsReportedAndNothingIsWritten)
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

TEST_F(CalendarFromOutlook, AnAccountThatCannotBeLookedUpIsReportedAndNothingIsWritten)
{
    const Object appointment = AddMeeting();
    appointment.Put(L"Companies", L"Miller & Sons");
    appointment.Call(L"Save");
    mHost->Status[L"OpenRecordsetByString"] = -1;
    const std::vector<ShownMessage> messages = MessagesOf(data::kNewRecord, 0);
    ASSERT_EQ(2u, messages.size());
    EXPECT_EQ(L"ChangeAddTaskAccount", messages[0].caption);
    EXPECT_TRUE(messages[1].text.starts_with(L"F_ACTREPEATS:"));
    EXPECT_TRUE(CallsOf(L"Insert").empty());
}

TEST_F(CalendarFromOutlook, RelationRowsThatCannotBeReadAreReported)
{
    AddMeeting();
    Execute(L"DROP TABLE SynRelation");
    const std::vector<ShownMessage> messages = MessagesOf(data::kNewRecord, 0);
    ASSERT_EQ(1u, messages.size());
    EXPECT_TRUE(messages[0].text.starts_with(L":"));
}

TEST_F(CalendarFromOutlook, AModeOtherThanNewAndExistingDoesNothing)
{
    AddMeeting();
    for (const long mode : {0L, 3L, -1L})
    {
        EXPECT_TRUE(MessagesOf(mode, 0).empty());
    }
    EXPECT_TRUE(mHost->Calls.empty());
}

TEST_F(CalendarFromOutlook, APairIsWrittenOnlyWhenItsMarkIsZeroButTheProgressAdvances)
{
    AddMeeting();
    AddEntry();
    data::Run run = NewRun();
    for (const long mark : {1L, 0L, 2L})
    {
        run.Pending.ChangedHostRecords.Add(1L, mark);
        run.Pending.ChangedOutlookItems.Add(L"1", mark);
    }
    EXPECT_FALSE(calendar::SynCalendarFromOutlook(run));
    EXPECT_EQ(1u, CallsOf(L"Update").size());
    EXPECT_EQ(1.0, mDisplay.Progress.back());
    EXPECT_EQ(resources::String(1044), mDisplay.Status);
    EXPECT_FALSE(mDisplay.IsShown);
}

TEST_F(CalendarFromOutlook, ThePassGoesOnAfterARefusedAppointment)
{
    AddMeeting();
    AddMeeting();
    mHost->Status[L"Insert"] = -1;
    data::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    run.Pending.NewOutlookItems.Add(L"2", 0);
    bool failed = true;
    const auto messages = MessagesDuring([&] { failed = calendar::SynCalendarFromOutlook(run); });
    EXPECT_FALSE(failed);
    EXPECT_EQ(2u, messages.size());
    EXPECT_EQ(2u, CallsOf(L"Insert").size());
}

TEST_F(CalendarFromOutlook, AnItemThatIsGoneEndsThePass)
{
    data::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    EXPECT_TRUE(calendar::SynCalendarFromOutlook(run));
    EXPECT_FALSE(mDisplay.IsShown);
}

} // namespace test_support
