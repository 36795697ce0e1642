#include "tests/sandbox_outlook/OutlookTest.h"

#include "sandbox/outlook/Recurrence.h"

namespace sandbox
{

class RecurrencePattern : public OutlookTest
{
  protected:
    // Tuesday 2003-05-06, 09:30 to 10:30.
    RecurrencePattern()
    {
        mAppointment.Put(L"Start", Day(2003, 5, 6, 9, 30));
        mAppointment.Put(L"Duration", 60);
    }

    automation::Object Pattern() const { return mAppointment.GetObject(L"GetRecurrencePattern"); }
    std::wstring Time(const automation::Object& pattern, const wchar_t* member) const
    {
        return automation::Formatted(automation::DateOf(pattern.Get(member)), L"yyyy-mm-dd hh:mm:ss");
    }
    std::wstring EndOf(const automation::Object& pattern) const
    {
        return automation::Formatted(automation::DateOf(pattern.Get(L"PatternEndDate")), L"yyyy-mm-dd");
    }

    automation::Object mAppointment = New(Calendar());
};

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

struct MemberOfType
{
    long type;
    const wchar_t* member;
};

TEST_F(RecurrencePattern, MembersThatDoNotGoWithTheTypeAreRefused)
{
    const auto pattern = Pattern();
    for (const auto& [type, member] : {MemberOfType{0, L"DayOfWeekMask"},
                                       {0, L"DayOfMonth"},
                                       {0, L"MonthOfYear"},
                                       {0, L"Instance"},
                                       {1, L"DayOfMonth"},
                                       {1, L"MonthOfYear"},
                                       {1, L"Instance"},
                                       {2, L"DayOfWeekMask"},
                                       {2, L"MonthOfYear"},
                                       {2, L"Instance"},
                                       {3, L"DayOfMonth"},
                                       {3, L"MonthOfYear"},
                                       {5, L"Interval"},
                                       {5, L"DayOfWeekMask"},
                                       {5, L"Instance"},
                                       {6, L"Interval"},
                                       {6, L"DayOfMonth"}})
    {
        pattern.Put(L"RecurrenceType", type);
        EXPECT_NE(std::wstring::npos,
                  FailureOf([&, name = member] { pattern.Put(name, 1); }).find(L"does not go with"))
            << type << member;
    }
}

TEST_F(RecurrencePattern, MembersThatGoWithTheTypeAreTaken)
{
    const auto pattern = Pattern();
    for (const auto& [type, member] : {MemberOfType{0, L"Interval"},
                                       {1, L"Interval"},
                                       {1, L"DayOfWeekMask"},
                                       {2, L"Interval"},
                                       {2, L"DayOfMonth"},
                                       {3, L"Interval"},
                                       {3, L"Instance"},
                                       {3, L"DayOfWeekMask"},
                                       {5, L"DayOfMonth"},
                                       {5, L"MonthOfYear"},
                                       {6, L"MonthOfYear"},
                                       {6, L"Instance"},
                                       {6, L"DayOfWeekMask"}})
    {
        pattern.Put(L"RecurrenceType", type);
        pattern.Put(member, 2);
        EXPECT_EQ(2, Number(pattern, member)) << type << member;
    }
}

TEST_F(RecurrencePattern, AnotherTypeStartsFromItsDefaults)
{
    const auto pattern = Pattern();
    pattern.Put(L"Interval", 3);
    pattern.Put(L"RecurrenceType", 2);
    EXPECT_EQ(1, Number(pattern, L"Interval"));
    EXPECT_EQ(6, Number(pattern, L"DayOfMonth"));
    EXPECT_EQ(0, Number(pattern, L"DayOfWeekMask"));
    pattern.Put(L"DayOfMonth", 31);
    pattern.Put(L"RecurrenceType", 2);
    EXPECT_EQ(31, Number(pattern, L"DayOfMonth"));
    pattern.Put(L"RecurrenceType", 5);
    EXPECT_EQ(6, Number(pattern, L"DayOfMonth"));
    EXPECT_EQ(5, Number(pattern, L"MonthOfYear"));
    pattern.Put(L"RecurrenceType", 3);
    EXPECT_EQ(1, Number(pattern, L"Instance"));
    EXPECT_EQ(4, Number(pattern, L"DayOfWeekMask"));
    EXPECT_EQ(L"The value of RecurrenceType is out of range.",
              FailureOf([&] { pattern.Put(L"RecurrenceType", 4); }));
}

TEST_F(RecurrencePattern, SeveralDaysGoOnlyWithAWeeklyPattern)
{
    const auto pattern = Pattern();
    pattern.Put(L"DayOfWeekMask", 2 | 8 | 32);
    EXPECT_EQ(L"2003-05-07 09:30", At(mAppointment.Get(L"Start")));
    pattern.Put(L"RecurrenceType", 3);
    EXPECT_NE(L"", FailureOf([&] { pattern.Put(L"DayOfWeekMask", 2 | 8); }));
    pattern.Put(L"DayOfWeekMask", 62);
    EXPECT_NE(L"", FailureOf([&] { pattern.Put(L"DayOfWeekMask", 0); }));
    EXPECT_NE(L"", FailureOf([&] { pattern.Put(L"DayOfWeekMask", 128); }));
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

TEST_F(RecurrencePattern, PartialRowsTakeWhatTheyLeaveOutFromTheAppointment)
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

namespace
{

using outlook::OccurrenceOf;
using outlook::Recurrence;

std::wstring DaysOf(const Recurrence& recurrence, long count)
{
    std::wstring days;
    for (long n = 1; n <= count; ++n)
    {
        days += automation::Formatted(OccurrenceOf(recurrence, n), L"yyyymmdd ");
    }
    return days;
}

} // namespace

TEST(Recurrence, AMonthWithoutThe31stTakesItsLastDay)
{
    EXPECT_EQ(L"20030131 20030228 20030331 20030430 ",
              DaysOf({outlook::kMonthly, 1, 0, 31, 1, 1, Day(2003, 1, 31)}, 4));
}

TEST(Recurrence, The29thOfFebruaryIsThe28thInOtherYears)
{
    EXPECT_EQ(L"20040229 20050228 20060228 20070228 20080229 ",
              DaysOf({outlook::kYearly, 1, 0, 29, 2, 1, Day(2004, 2, 29)}, 5));
}

TEST(Recurrence, QuarterlyIsEveryThirdMonth)
{
    EXPECT_EQ(L"20030506 20030806 20031106 20040206 ",
              DaysOf({outlook::kMonthly, 3, 0, 6, 1, 1, Day(2003, 5, 6)}, 4));
}

TEST(Recurrence, AMonthlyDayBeforeTheStartBeginsInTheNextMonth)
{
    EXPECT_EQ(L"20030605 20030705 ", DaysOf({outlook::kMonthly, 1, 0, 5, 1, 1, Day(2003, 5, 6)}, 2));
}

TEST(Recurrence, EverySecondWeekOnTwoDays)
{
    EXPECT_EQ(L"20030506 20030518 20030520 20030601 ",
              DaysOf({outlook::kWeekly, 2, 1 | 4, 1, 1, 1, Day(2003, 5, 6)}, 4));
}

TEST(Recurrence, TheLastFridayOfTheMonthAndTheSecondTuesdayOfMay)
{
    EXPECT_EQ(L"20030530 20030627 20030725 ",
              DaysOf({outlook::kMonthNth, 1, 32, 1, 1, 5, Day(2003, 5, 6)}, 3));
    EXPECT_EQ(L"20030513 20040511 ", DaysOf({outlook::kYearNth, 1, 4, 1, 5, 2, Day(2003, 5, 6)}, 2));
}

TEST(Recurrence, DaysAreCountedUpToTheLastOneIncluded)
{
    const Recurrence daily{outlook::kDaily, 2, 0, 1, 1, 1, Day(2003, 5, 6)};
    EXPECT_EQ(1, OccurrencesUntil(daily, Day(2003, 5, 7)));
    EXPECT_EQ(2, OccurrencesUntil(daily, Day(2003, 5, 8)));
    EXPECT_EQ(0, OccurrencesUntil(daily, Day(2003, 5, 5)));
}

TEST(Recurrence, ThereIsNoneAfterTheEndOfTheCalendar)
{
    const Recurrence yearly{outlook::kYearly, 1, 0, 1, 1, 1, Day(4498, 1, 1)};
    EXPECT_EQ(L"44990101 ", DaysOf({outlook::kYearly, 1, 0, 1, 1, 1, Day(4499, 1, 1)}, 1));
    EXPECT_EQ(automation::kOutlookNoDate, OccurrenceOf(yearly, 5));
    EXPECT_EQ(automation::kOutlookNoDate,
              OccurrenceOf({outlook::kWeekly, 1, 0, 1, 1, 1, Day(2003, 5, 6)}, 1));
}

} // namespace sandbox
