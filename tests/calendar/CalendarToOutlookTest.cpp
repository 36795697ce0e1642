#include "calendar/Calendar.h"

#include "resources/Strings.h"
#include "tests/calendar/CalendarFixture.h"
#include "tests/support/CallWatch.h"
#include "tests/support/WithLanguage.h"

namespace test_support
{

using CalendarToOutlook = CalendarFixture;

namespace
{

std::wstring BoundsOf(const Object& appointment)
{
    return At(appointment.Get(L"Start")) + L" - " + At(appointment.Get(L"End"));
}

} // namespace

TEST_F(CalendarToOutlook, AnEntryLastsFromItsStartForItsDuration)
{
    AddEntry();
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-06 11:00", BoundsOf(WriteNewItem()));
}

TEST_F(CalendarToOutlook, WithoutADurationStartAndEndCoincide)
{
    AddEntry({{L"ACT_DURATION", L"NULL"}});
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-06 09:30", BoundsOf(WriteNewItem()));
}

TEST_F(CalendarToOutlook, WithoutAStartTimeTheAppointmentStartsAtMidnight)
{
    AddEntry({{L"F_ACTESTIME", L"NULL"}});
    EXPECT_EQ(L"2003-05-06 00:00 - 2003-05-06 01:30", BoundsOf(WriteNewItem()));
}

TEST_F(CalendarToOutlook, OnlyTheDayOfTheDateAndTheMinutesOfTheTimesCount)
{
    AddEntry({{L"F_ACTESDATE", L"'2003-05-06 13:14:15'"},
              {L"F_ACTESTIME", L"'2001-01-01 09:30:45'"},
              {L"ACT_DURATION", L"'1899-12-30 01:30:59'"}});
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-06 11:00", BoundsOf(WriteNewItem()));
}

TEST_F(CalendarToOutlook, AnEmptyTextForATimeOrALastDayCountsAsNone)
{
    Relate({{L"F_ACTESDATE", L"Start"}, {L"F_ACTCOMPLETED", L"IsRecurring"}});
    sandbox::ResultSet rows{{}, {{Day(2003, 5, 6), true, L"每天"}}};
    for (const wchar_t* column : {L"F_ACTESDATE", L"F_ACTCOMPLETED", L"FR_NAME", L"F_ACTESTIME",
                                  L"F_ACTEETIME", L"ACT_DURATION", L"F_ACTREPTEDATE"})
    {
        rows.columns.push_back({column});
    }
    rows.rows[0].resize(rows.columns.size(), L"");
    exchange::Run run = NewRun();
    run.HostRows = automation::Recordset(sandbox::MakeRecordset(std::move(rows)));
    run.Pending.NewHostRecords.Add(1L, 0);
    EXPECT_FALSE(calendar::SynCalendarToOutlook(run));
    EXPECT_EQ(1, CountItems());
}

TEST_F(CalendarToOutlook, AnEntryOverMidnightEndsOnTheNextDay)
{
    AddEntry({{L"F_ACTESTIME", L"'1899-12-30 22:00:00'"}, {L"ACT_DURATION", L"'1899-12-30 03:00:00'"}});
    EXPECT_EQ(L"2003-05-06 22:00 - 2003-05-07 01:00", BoundsOf(WriteNewItem()));
}

TEST_F(CalendarToOutlook, OnTheDaysWhenTheClocksChangeTheLocalTimesStay)
{
    AddEntry({{L"F_ACTESDATE", L"'2003-03-30 00:00:00'"}, {L"F_ACTESTIME", L"'1899-12-30 01:30:00'"}});
    AddEntry({{L"F_ACTESDATE", L"'2003-10-26 00:00:00'"}, {L"F_ACTESTIME", L"'1899-12-30 01:30:00'"}});
    EXPECT_FALSE(WriteAllRows());
    EXPECT_EQ(L"2003-03-30 01:30 - 2003-03-30 03:00", BoundsOf(AppointmentAt(1)));
    EXPECT_EQ(L"2003-10-26 01:30 - 2003-10-26 03:00", BoundsOf(AppointmentAt(2)));
}

TEST_F(CalendarToOutlook, TheLastDayOfFebruaryEndsInMarch)
{
    AddEntry({{L"F_ACTESDATE", L"'2004-02-29 00:00:00'"}, {L"F_ACTESTIME", L"'1899-12-30 23:00:00'"}});
    EXPECT_EQ(L"2004-02-29 23:00 - 2004-03-01 00:30", BoundsOf(WriteNewItem()));
}

TEST_F(CalendarToOutlook, AnExistingAppointmentMovesToTheEntrysTimes)
{
    AddAppointment(Day(2003, 1, 1, 8), Day(2003, 1, 1, 20));
    AddEntry();
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-06 11:00", BoundsOf(WriteExistingItem()));
    EXPECT_EQ(1, CountItems());
}

TEST_F(CalendarToOutlook, SubjectAndCategoriesAreWrittenAsTheyAreAndNullClearsThem)
{
    AddEntry({{L"F_ACTNAME", L"'会议 & Co'"}, {L"F_ACTTYPE", L"'Visit'"}});
    const Object appointment = WriteNewItem();
    EXPECT_EQ(L"会议 & Co", Text(appointment, L"Subject"));
    EXPECT_EQ(L"Visit", Text(appointment, L"Categories"));
    Execute(L"UPDATE HostRows SET F_ACTTYPE=NULL");
    EXPECT_EQ(L"", Text(WriteExistingItem(), L"Categories"));
}

TEST_F(CalendarToOutlook, AReminderComesTheLeadTimeBeforeTheStart)
{
    AddEntry({{L"F_ACTREMIND", L"1"}});
    const Object appointment = WriteNewItem();
    EXPECT_TRUE(Truth(appointment, L"ReminderSet"));
    EXPECT_EQ(20, Number(appointment, L"ReminderMinutesBeforeStart"));
}

TEST_F(CalendarToOutlook, WithoutAReminderTheLeadTimeStaysOutlooksOwn)
{
    AddEntry({{L"F_ACTREMIND", L"0"}});
    AddEntry({{L"F_ACTREMIND", L"NULL"}});
    EXPECT_FALSE(WriteAllRows());
    for (const long position : {1, 2})
    {
        EXPECT_FALSE(Truth(AppointmentAt(position), L"ReminderSet"));
        EXPECT_EQ(15, Number(AppointmentAt(position), L"ReminderMinutesBeforeStart"));
    }
}

TEST_F(CalendarToOutlook, AContactThatOutlookKnowsIsLinked)
{
    Mailbox->AddItem(kContactKind.folder, {{L"FirstName", L"Mary"}, {L"LastName", L"Smith"}});
    AddEntry({{L"CONTACT_SURNAME", L"'Smith'"}, {L"CONTACT_GIVENNAME", L"'Mary'"}});
    WriteNewItem();
    EXPECT_EQ(1u, Mailbox->ItemLinks(kCalendarKind.folder, 1).size());
    EXPECT_EQ(1, CountContacts());
}

TEST_F(CalendarToOutlook, AContactThatOutlookDoesNotKnowIsCreatedAndLinked)
{
    AddEntry({{L"CONTACT_SURNAME", L"'Smith'"}, {L"CONTACT_GIVENNAME", L"'Mary'"}});
    WriteNewItem();
    EXPECT_EQ(1u, Mailbox->ItemLinks(kCalendarKind.folder, 1).size());
    ASSERT_EQ(1, CountContacts());
    EXPECT_EQ(L"Smith", automation::TextOf(Mailbox->ItemProperty(kContactKind.folder, 1, L"LastName")));
    EXPECT_EQ(L"Mary", automation::TextOf(Mailbox->ItemProperty(kContactKind.folder, 1, L"FirstName")));
}

TEST_F(CalendarToOutlook, AContactMadeByAnOutlookWithoutLinksIsNotLinkedNorMadeAgain)
{
    Mailbox->AddItem(kContactKind.folder,
                     {{L"FirstName", L"Mary"}, {L"LastName", L"Smith"}, {L"OutlookVersion", L"8.5"}});
    AddEntry({{L"CONTACT_SURNAME", L"'Smith'"}, {L"CONTACT_GIVENNAME", L"'Mary'"}});
    WriteNewItem();
    EXPECT_TRUE(Mailbox->ItemLinks(kCalendarKind.folder, 1).empty());
    EXPECT_EQ(1, CountContacts());
}

TEST_F(CalendarToOutlook, WithoutBothNamesThereIsNoContact)
{
    AddEntry({{L"CONTACT_SURNAME", L"'Smith'"}});
    AddEntry({{L"CONTACT_GIVENNAME", L"'Mary'"}});
    EXPECT_FALSE(WriteAllRows());
    EXPECT_EQ(2, CountItems());
    EXPECT_EQ(0, CountContacts());
}

TEST_F(CalendarToOutlook, AnEditedAppointmentCollectsAFurtherLink)
{
    AddEntry({{L"CONTACT_SURNAME", L"'Smith'"}, {L"CONTACT_GIVENNAME", L"'Mary'"}});
    WriteNewItem();
    WriteExistingItem();
    EXPECT_EQ(2u, Mailbox->ItemLinks(kCalendarKind.folder, 1).size());
}

TEST_F(CalendarToOutlook, NamesThatNoRuleKnowsWriteNothing)
{
    Relate({{L"F_ACTNAME", L"subject"}, {L"F_ACTNAME", L"Location"}, {L"F_ACTTYPE", L"Categories"}});
    AddEntry({{L"F_ACTTYPE", L"'Visit'"}});
    const Object appointment = WriteNewItem();
    EXPECT_EQ(L"", Text(appointment, L"Subject"));
    EXPECT_EQ(L"", Text(appointment, L"Location"));
    EXPECT_EQ(L"Visit", Text(appointment, L"Categories"));
}

TEST_F(CalendarToOutlook, TheAppointmentIsSavedOnceAfterTheLastRelationRow)
{
    AddEntry();
    const CallWatch calls;
    WriteNewItem();
    EXPECT_EQ(1, calls.Of(L"AppointmentItem.Save"));
}

TEST_F(CalendarToOutlook, AModeOtherThanNewAndExistingTouchesNothing)
{
    AddEntry();
    const Object appointment = AddAppointment(Day(2003, 1, 1, 8), Day(2003, 1, 1, 9));
    exchange::Run run = NewRun();
    const CallWatch calls;
    for (const auto mode : {data::RecordMode{0}, data::RecordMode{3}, data::RecordMode{-1}})
    {
        EXPECT_FALSE(calendar::SynSynCalendarToOlCalendar(run, mode, appointment));
    }
    EXPECT_EQ(0, calls.Of(L"AppointmentItem.Save"));
    EXPECT_EQ(L"2003-01-01 08:00 - 2003-01-01 09:00", BoundsOf(appointment));
}

TEST_F(CalendarToOutlook, TheFirstEntryThatFailsIsLeftUnsavedAndEndsThePass)
{
    AddEntry();
    AddEntry({{L"CONTACT_SURNAME", L"'Sm\"ith'"}, {L"CONTACT_GIVENNAME", L"'Mary'"}});
    AddEntry();
    EXPECT_TRUE(WriteAllRows());
    EXPECT_EQ(1, CountItems());
    EXPECT_FALSE(Display.IsShown);
}

TEST_F(CalendarToOutlook, AnEntryWithoutADateIsLeftOutAndTheOnesBehindAreWritten)
{
    AddEntry(
        {{L"F_ACTESDATE", L"NULL"}, {L"CONTACT_SURNAME", L"'Smith'"}, {L"CONTACT_GIVENNAME", L"'Mary'"}});
    AddEntry({{L"F_ACTNAME", L"'Behind'"}});
    EXPECT_FALSE(WriteAllRows());
    ASSERT_EQ(1, CountItems());
    EXPECT_EQ(L"Behind", Text(AppointmentAt(1), L"Subject"));
    EXPECT_EQ(0, CountContacts());
}

TEST_F(CalendarToOutlook, TheWriterAloneFailsForAnEntryWithoutADate)
{
    AddEntry({{L"F_ACTESDATE", L"NULL"}});
    const Object appointment = AddAppointment(Day(2003, 1, 1, 8), Day(2003, 1, 1, 9));
    exchange::Run run = NewRun();
    run.Relations.Use(calendar::SynCalendarFromOutlook.RelationStatement,
                      calendar::SynCalendarFromOutlook.RelationOptions);
    EXPECT_TRUE(calendar::SynSynCalendarToOlCalendar(run, data::kExistingRecord, appointment));
    EXPECT_EQ(L"2003-01-01 08:00 - 2003-01-01 09:00", BoundsOf(AppointmentAt(1)));
}

TEST_F(CalendarToOutlook, RelationRowsThatCannotBeReadFail)
{
    AddEntry();
    Execute(L"DROP TABLE SynRelation");
    EXPECT_TRUE(WriteAllRows());
    EXPECT_EQ(0, CountItems());
}

TEST_F(CalendarToOutlook, APairIsWrittenOnlyWhenItsMarkIsOneButTheProgressAdvances)
{
    AddAppointment(Day(2003, 1, 1, 8), Day(2003, 1, 1, 9));
    AddEntry();
    exchange::Run run = NewRun();
    for (const long mark : {0, 2})
    {
        run.Pending.ChangedHostRecords.Add(1L, mark);
        run.Pending.ChangedOutlookItems.Add(L"1", mark);
    }
    EXPECT_FALSE(calendar::SynCalendarToOutlook(run));
    EXPECT_EQ(L"2003-01-01 08:00 - 2003-01-01 09:00", BoundsOf(AppointmentAt(1)));
    EXPECT_EQ(1.0, Display.Progress.back());
}

TEST_F(CalendarToOutlook, ThePassTellsTheDisplayInTheInterfaceLanguage)
{
    AddEntry();
    const WithLanguage chinese(resources::Language::Chinese);
    WriteNewItem();
    EXPECT_EQ(L"正在进行数据传输，请稍候...", Display.Status);
    const WithLanguage english(resources::Language::English);
    WriteNewItem();
    EXPECT_EQ(L"Begin Synchronize...", Display.Status);
    EXPECT_FALSE(Display.IsShown);
    EXPECT_EQ(2, Display.TimesShown);
}

TEST_F(CalendarToOutlook, AnAllDayAppointmentStaysOne)
{
    AddAllDay(Day(2003, 5, 1));
    AddEntry({{L"F_ACTESTIME", L"'1899-12-30 06:00:00'"}, {L"ACT_DURATION", L"'1899-12-30 11:30:00'"}});
    const Object written = WriteExistingItem();
    EXPECT_TRUE(Truth(written, L"AllDayEvent"));
    EXPECT_EQ(L"2003-05-06 00:00 - 2003-05-07 00:00", BoundsOf(written));
}

} // namespace test_support
