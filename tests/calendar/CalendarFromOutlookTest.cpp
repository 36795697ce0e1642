#include "calendar/Calendar.h"

#include "resources/Strings.h"
#include "tests/calendar/CalendarFixture.h"
#include "tests/support/WithLanguage.h"

namespace test_support
{

class CalendarFromOutlook : public CalendarFixture
{
  protected:
    Object AddMeeting() const { return AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0)); }
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
    AddAllDay(Day(2003, 5, 6));
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
    Repeat(AddAllDay(Day(2003, 5, 6)), [](const Object& pattern) { pattern.Put(L"RecurrenceType", 0L); });
    const Columns written = InsertFirstAppointment();
    EXPECT_EQ(L"'06:00:00'", written.at(L"F_ACTESTIME"));
    EXPECT_EQ(L"'17:30:00'", written.at(L"F_ACTEETIME"));
    EXPECT_EQ(L"1", written.at(L"F_ACTCOMPLETED"));
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
    EXPECT_EQ(L"1", written.at(L"F_ACTCOMPLETED"));
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
        exchange::Run run = NewRun();
        run.Pending.NewOutlookItems.Add(std::to_wstring(CountItems()), 0);
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

} // namespace test_support
