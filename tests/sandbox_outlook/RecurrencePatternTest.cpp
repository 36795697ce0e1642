#include "tests/sandbox_outlook/RecurrencePatternFixture.h"

namespace sandbox
{

TEST_F(RecurrencePattern, AskingForItMakesTheAppointmentRecurring)
{
    EXPECT_FALSE(Truth(mAppointment, L"IsRecurring"));
    Pattern();
    EXPECT_TRUE(Truth(mAppointment, L"IsRecurring"));
    mAppointment.Call(L"ClearRecurrencePattern");
    EXPECT_FALSE(Truth(mAppointment, L"IsRecurring"));
    EXPECT_NE(L"", FailureOf([&] { mAppointment.Put(L"IsRecurring", true); }));
}

TEST_F(RecurrencePattern, ANewOneIsWeeklyOnTheAppointmentsDayWithoutEnd)
{
    const auto pattern = Pattern();
    EXPECT_EQ(1, Number(pattern, L"RecurrenceType"));
    EXPECT_EQ(1, Number(pattern, L"Interval"));
    EXPECT_EQ(4, Number(pattern, L"DayOfWeekMask"));
    EXPECT_EQ(L"2003-05-06 00:00", At(pattern.Get(L"PatternStartDate")));
    EXPECT_TRUE(Truth(pattern, L"NoEndDate"));
    EXPECT_EQ(L"4500-08-31", EndOf(pattern));
    EXPECT_EQ(L"1899-12-30 09:30:00", Time(pattern, L"StartTime"));
    EXPECT_EQ(L"1899-12-30 10:30:00", Time(pattern, L"EndTime"));
    EXPECT_EQ(60, Number(pattern, L"Duration"));
}

TEST_F(RecurrencePattern, StartEndAndDurationOfTheDayAreTiedTogether)
{
    const auto pattern = Pattern();
    pattern.Put(L"StartTime", L" 08:15:00");
    EXPECT_EQ(L"1899-12-30 09:15:00", Time(pattern, L"EndTime"));
    pattern.Put(L"EndTime", Day(2003, 5, 9, 11, 0));
    EXPECT_EQ(165, Number(pattern, L"Duration"));
    EXPECT_EQ(L"1899-12-30 11:00:00", Time(pattern, L"EndTime"));
    pattern.Put(L"Duration", 30);
    EXPECT_EQ(L"1899-12-30 08:45:00", Time(pattern, L"EndTime"));
}

TEST_F(RecurrencePattern, AnEndBeforeTheStartIsOneOnTheNextDay)
{
    const auto pattern = Pattern();
    pattern.Put(L"StartTime", L"22:00");
    pattern.Put(L"EndTime", L"01:00");
    EXPECT_EQ(180, Number(pattern, L"Duration"));
    EXPECT_EQ(L"1899-12-30 01:00:00", Time(pattern, L"EndTime"));
    EXPECT_EQ(L"2003-05-07 01:00", At(mAppointment.Get(L"End")));
}

TEST_F(RecurrencePattern, AnEndAtTheStartLeavesWholeDaysWhole)
{
    const auto pattern = Pattern();
    pattern.Put(L"Duration", 1440);
    pattern.Put(L"StartTime", L"00:00:00");
    pattern.Put(L"EndTime", L"00:00:00");
    EXPECT_EQ(1440, Number(pattern, L"Duration"));
    pattern.Put(L"EndTime", L"08:00:00");
    pattern.Put(L"EndTime", L"00:00:00");
    EXPECT_EQ(0, Number(pattern, L"Duration"));
}

TEST_F(RecurrencePattern, TheAppointmentsOwnTimesFollowIt)
{
    const auto pattern = Pattern();
    pattern.Put(L"StartTime", L"14:00");
    pattern.Put(L"PatternStartDate", Day(2003, 5, 7));
    pattern.Put(L"DayOfWeekMask", 2);
    EXPECT_EQ(L"2003-05-12 14:00", At(mAppointment.Get(L"Start")));
    EXPECT_EQ(60, Number(mAppointment, L"Duration"));
    EXPECT_EQ(L"You cannot change the Start of a recurring appointment; change its recurrence pattern.",
              FailureOf([&] { mAppointment.Put(L"Start", Day(2004, 1, 1)); }));
    EXPECT_NE(L"", FailureOf([&] { mAppointment.Put(L"End", Day(2004, 1, 1)); }));
}

TEST_F(RecurrencePattern, AnEndDateAndANumberOfOccurrencesFollowFromEachOther)
{
    const auto pattern = Pattern();
    pattern.Put(L"PatternEndDate", Day(2003, 6, 4));
    EXPECT_FALSE(Truth(pattern, L"NoEndDate"));
    EXPECT_EQ(5, Number(pattern, L"Occurrences"));
    pattern.Put(L"Occurrences", 3);
    EXPECT_EQ(L"2003-05-20", EndOf(pattern));
    pattern.Put(L"Interval", 2);
    EXPECT_EQ(L"2003-06-03", EndOf(pattern));
    pattern.Put(L"PatternEndDate", Day(2003, 6, 4));
    pattern.Put(L"Interval", 1);
    EXPECT_EQ(5, Number(pattern, L"Occurrences"));
}

TEST_F(RecurrencePattern, AnEndWithoutADateComesAfterTenOccurrences)
{
    const auto pattern = Pattern();
    pattern.Put(L"NoEndDate", false);
    EXPECT_EQ(10, Number(pattern, L"Occurrences"));
    EXPECT_EQ(L"2003-07-08", EndOf(pattern));
    pattern.Put(L"PatternEndDate", Day(2003, 5, 13));
    pattern.Put(L"NoEndDate", false);
    EXPECT_EQ(2, Number(pattern, L"Occurrences"));
    pattern.Put(L"NoEndDate", true);
    EXPECT_EQ(L"4500-08-31", EndOf(pattern));
}

TEST_F(RecurrencePattern, AnEndBeforeItsStartIsRefusedAndAStartAfterItsEndTakesTheEndAlong)
{
    const auto pattern = Pattern();
    EXPECT_EQ(L"The end date of the recurrence pattern occurs before its start.",
              FailureOf([&] { pattern.Put(L"PatternEndDate", Day(2003, 5, 5)); }));
    pattern.Put(L"PatternEndDate", Day(2003, 5, 20));
    pattern.Put(L"PatternStartDate", Day(2004, 5, 4));
    EXPECT_EQ(3, Number(pattern, L"Occurrences"));
    EXPECT_EQ(L"2004-05-18", EndOf(pattern));
}

TEST_F(RecurrencePattern, ItIsSavedWithTheAppointmentAndOnlyThen)
{
    mAppointment.Call(L"Save");
    const auto pattern = Pattern();
    pattern.Put(L"RecurrenceType", 2);
    pattern.Put(L"Interval", 3);
    pattern.Put(L"PatternEndDate", Day(2004, 5, 6));
    const auto stored = [&](const wchar_t* name) { return mMailbox->ItemProperty(kCalendar, 1, name); };
    EXPECT_FALSE(automation::TruthOf(stored(L"IsRecurring")));
    mAppointment.Call(L"Save");
    EXPECT_TRUE(automation::TruthOf(stored(L"IsRecurring")));
    EXPECT_EQ(3, automation::LongOf(stored(L"Recurrence.Interval")));
    const auto again =
        Calendar().GetObject(L"Items").GetObject(L"Item", 1).GetObject(L"GetRecurrencePattern");
    EXPECT_EQ(2, Number(again, L"RecurrenceType"));
    EXPECT_EQ(6, Number(again, L"DayOfMonth"));
    EXPECT_EQ(5, Number(again, L"Occurrences"));
    EXPECT_EQ(L"2004-05-06", EndOf(again));
}

TEST_F(RecurrencePattern, ASavedEndlessPatternIsStillEndless)
{
    Pattern();
    mAppointment.Call(L"Save");
    const auto pattern = Pattern();
    EXPECT_TRUE(Truth(pattern, L"NoEndDate"));
    pattern.Put(L"NoEndDate", false);
    EXPECT_EQ(10, Number(pattern, L"Occurrences"));
}

TEST_F(RecurrencePattern, ClearingItLeavesTheFirstOccurrence)
{
    const auto pattern = Pattern();
    pattern.Put(L"PatternStartDate", Day(2003, 5, 8));
    mAppointment.Call(L"Save");
    mAppointment.Call(L"ClearRecurrencePattern");
    mAppointment.Call(L"Save");
    EXPECT_EQ(L"2003-05-08 09:30", At(mMailbox->ItemProperty(kCalendar, 1, L"Start")));
    EXPECT_TRUE(Truth(Pattern(), L"NoEndDate"));
}

TEST_F(RecurrencePattern, OneWithoutAnyOccurrenceCannotBeSaved)
{
    const auto pattern = Pattern();
    pattern.Put(L"PatternEndDate", Day(2003, 5, 7));
    pattern.Put(L"DayOfWeekMask", 64);
    EXPECT_EQ(L"The recurrence pattern is not valid.", FailureOf([&] { mAppointment.Call(L"Save"); }));
}

TEST_F(RecurrencePattern, OneOfAnAllDayEventBeginsAtMidnightAndLastsWholeDays)
{
    mAppointment.Put(L"AllDayEvent", true);
    const auto pattern = Pattern();
    EXPECT_EQ(L"1899-12-30 00:00:00", Time(pattern, L"StartTime"));
    EXPECT_EQ(1440, Number(pattern, L"Duration"));
    pattern.Put(L"StartTime", L"06:00");
    pattern.Put(L"EndTime", L"17:30");
    EXPECT_EQ(L"1899-12-30 00:00:00", Time(pattern, L"StartTime"));
    EXPECT_EQ(L"2003-05-06 00:00", At(mAppointment.Get(L"Start")));
    EXPECT_EQ(L"2003-05-07 00:00", At(mAppointment.Get(L"End")));
}

TEST_F(RecurrencePattern, PartialRowsTakeTheirMissingValuesFromTheAppointment)
{
    mMailbox->AddItem(kCalendar, {{L"Start", Day(2003, 5, 6, 9, 30)},
                                  {L"End", Day(2003, 5, 6, 10, 0)},
                                  {L"IsRecurring", true},
                                  {L"Recurrence.RecurrenceType", 0},
                                  {L"Recurrence.PatternEndDate", Day(2003, 5, 10)}});
    const auto item = Calendar().GetObject(L"Items").GetObject(L"Item", 1);
    const auto pattern = item.GetObject(L"GetRecurrencePattern");
    EXPECT_EQ(5, Number(pattern, L"Occurrences"));
    EXPECT_FALSE(Truth(pattern, L"NoEndDate"));
    EXPECT_EQ(30, Number(pattern, L"Duration"));
    EXPECT_EQ(L"1899-12-30 10:00:00", Time(pattern, L"EndTime"));
}

} // namespace sandbox
