#include "calendar/Calendar.h"
#include "calendar/Recurrence.h"
#include "resources/Strings.h"
#include "tests/calendar/CalendarFixture.h"
#include "tests/support/CallWatch.h"
#include "tests/support/WithLanguage.h"

namespace test_support
{

namespace
{

// The calls of recurrence patterns, in their order.
std::vector<std::wstring> PatternMembers(const CallWatch& calls)
{
    const std::wstring pattern = L"RecurrencePattern.";
    std::vector<std::wstring> members =
        calls.Those([&](const std::wstring& name) { return name.starts_with(pattern); });
    for (std::wstring& member : members)
    {
        member.erase(0, pattern.size());
    }
    return members;
}

struct Rule
{
    const wchar_t* name;
    long type;
    long interval;
    long mask;
    long day;
    long month;
};

// On Tuesday 2003-05-06; 0 for a member that does not go with the type.
constexpr Rule kRules[] = {
    {L"每天", 0, 1, 0, 0, 0}, {L"每周", 1, 1, 4, 0, 0},   {L"每月", 2, 1, 0, 6, 0},
    {L"每季", 2, 3, 0, 6, 0}, {L"每半年", 2, 6, 0, 6, 0}, {L"每年", 5, 0, 0, 6, 5},
};

} // namespace

TEST(WeekdayToDayMask, SundayIsTheFirstBitAndSaturdayTheSeventh)
{
    const short expected[] = {1, 2, 4, 8, 16, 32, 64};
    for (short weekday = 1; weekday <= 7; ++weekday)
    {
        EXPECT_EQ(expected[weekday - 1], calendar::WeekdayToDayMask(weekday));
    }
}

TEST(WeekdayToDayMask, AnyOtherNumberHasNoBit)
{
    for (const short weekday : {short{0}, short{8}, short{-1}, short{32767}, short{-32768}})
    {
        EXPECT_EQ(0, calendar::WeekdayToDayMask(weekday));
    }
}

class RecurrenceToOutlook : public CalendarFixture
{
  protected:
    void AddRepeatingEntry(const std::wstring& rule, Pairs columns = {})
    {
        columns.insert(columns.begin(), {{L"F_ACTCOMPLETED", L"1"}, {L"FR_NAME", L"'" + rule + L"'"}});
        AddEntry(columns);
    }

    static Object PatternOf(const Object& appointment)
    {
        EXPECT_TRUE(Truth(appointment, L"IsRecurring"));
        return appointment.GetObject(L"GetRecurrencePattern");
    }

    // A fresh pattern on Tuesday 2003-05-06, 09:30 to 10:30.
    Object NewPattern() const
    {
        return AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 10, 30))
            .GetObject(L"GetRecurrencePattern");
    }
};

TEST_F(RecurrenceToOutlook, EachOfTheSixRulesGivesItsPatternInBothLanguages)
{
    for (const auto language : {resources::Language::Chinese, resources::Language::English})
    {
        const WithLanguage inLanguage(language);
        for (const Rule& rule : kRules)
        {
            const Object pattern = NewPattern();
            EXPECT_EQ(0, calendar::SetRecurrenceByName(pattern, rule.name, Day(2003, 5, 6)));
            EXPECT_EQ(rule.type, Number(pattern, L"RecurrenceType"));
            EXPECT_EQ(rule.interval, Number(pattern, L"Interval"));
            EXPECT_EQ(rule.mask, Number(pattern, L"DayOfWeekMask"));
            EXPECT_EQ(rule.day, Number(pattern, L"DayOfMonth"));
            EXPECT_EQ(rule.month, Number(pattern, L"MonthOfYear"));
        }
    }
}

TEST_F(RecurrenceToOutlook, AReferenceDateOnAWednesdayGivesTheFourthBit)
{
    const Object pattern = NewPattern();
    calendar::SetRecurrenceByName(pattern, L"每周", Day(2003, 5, 7));
    EXPECT_EQ(8, Number(pattern, L"DayOfWeekMask"));
}

TEST_F(RecurrenceToOutlook, ANameThatIsNoRuleLeavesThePatternUntouched)
{
    const Object pattern = NewPattern();
    const CallWatch calls;
    for (const wchar_t* name : {L"", L"每两周", L"Daily", L"每天 ", L"每 天"})
    {
        EXPECT_EQ(0, calendar::SetRecurrenceByName(pattern, name, Value::Null()));
    }
    EXPECT_TRUE(PatternMembers(calls).empty());
}

TEST_F(RecurrenceToOutlook, ARuleThatNeedsAReferenceDateFailsWithoutOne)
{
    const Object pattern = NewPattern();
    EXPECT_EQ(0, calendar::SetRecurrenceByName(pattern, L"每天", Value::Null()));
    EXPECT_THROW(calendar::SetRecurrenceByName(pattern, L"每周", Value::Null()), automation::Error);
}

TEST_F(RecurrenceToOutlook, TheStepsAreTakenInTheirOrder)
{
    AddRepeatingEntry(L"每年", {{L"F_ACTREPTEDATE", L"'2010-12-31 00:00:00'"}});
    const CallWatch calls;
    WriteNewItem();
    const std::vector<std::wstring> expected{L"StartTime",      L"EndTime",       L"PatternStartDate",
                                             L"RecurrenceType", L"MonthOfYear",   L"DayOfMonth",
                                             L"NoEndDate",      L"PatternEndDate"};
    EXPECT_EQ(expected, PatternMembers(calls));
}

TEST_F(RecurrenceToOutlook, APatternThatWouldNotChangeIsReadAndNotRewritten)
{
    AddRepeatingEntry(L"每年", {{L"F_ACTREPTEDATE", L"'2010-12-31 00:00:00'"}});
    WriteNewItem();
    const CallWatch calls;
    WriteExistingItem();
    const std::vector<std::wstring> once{L"StartTime",      L"EndTime",       L"PatternStartDate",
                                         L"RecurrenceType", L"MonthOfYear",   L"DayOfMonth",
                                         L"NoEndDate",      L"PatternEndDate"};
    EXPECT_EQ(once, PatternMembers(calls));
}

TEST_F(RecurrenceToOutlook, ValuesThatTheEntryLacksAreLeftToOutlook)
{
    AddRepeatingEntry(L"", {{L"F_ACTESTIME", L"NULL"}, {L"F_ACTEETIME", L"NULL"}});
    const CallWatch calls;
    const Object pattern = PatternOf(WriteNewItem());
    EXPECT_EQ((std::vector<std::wstring>{L"PatternStartDate", L"NoEndDate"}), PatternMembers(calls));
    EXPECT_EQ(L"00:00", TimeOf(pattern, L"StartTime"));
    EXPECT_EQ(L"01:30", TimeOf(pattern, L"EndTime"));
}

TEST_F(RecurrenceToOutlook, AnEntryRepeatsBetweenItsTimesFromItsFirstToItsLastDay)
{
    AddRepeatingEntry(L"每天", {{L"F_ACTREPTEDATE", L"'2003-05-20 00:00:00'"}});
    const Object appointment = WriteNewItem();
    const Object pattern = PatternOf(appointment);
    EXPECT_EQ(L"09:30", TimeOf(pattern, L"StartTime"));
    EXPECT_EQ(L"11:00", TimeOf(pattern, L"EndTime"));
    EXPECT_EQ(90, Number(pattern, L"Duration"));
    EXPECT_EQ(L"2003-05-06", DayOf(pattern, L"PatternStartDate"));
    EXPECT_EQ(L"2003-05-20", DayOf(pattern, L"PatternEndDate"));
    EXPECT_FALSE(Truth(pattern, L"NoEndDate"));
    EXPECT_EQ(15, Number(pattern, L"Occurrences"));
    EXPECT_EQ(L"2003-05-06 09:30", At(appointment.Get(L"Start")));
}

TEST_F(RecurrenceToOutlook, SecondsOfTheTimesAreDropped)
{
    AddRepeatingEntry(
        L"每天", {{L"F_ACTESTIME", L"'1899-12-30 09:30:59'"}, {L"F_ACTEETIME", L"'1899-12-30 11:00:59'"}});
    const Object pattern = PatternOf(WriteNewItem());
    EXPECT_EQ(L"09:30:00", automation::Formatted(automation::DateOf(pattern.Get(L"StartTime")), L"hh:mm:ss"));
    EXPECT_EQ(L"11:00:00", automation::Formatted(automation::DateOf(pattern.Get(L"EndTime")), L"hh:mm:ss"));
}

TEST_F(RecurrenceToOutlook, WithoutALastDayThePatternStillEnds)
{
    AddRepeatingEntry(L"每周");
    const Object pattern = PatternOf(WriteNewItem());
    EXPECT_FALSE(Truth(pattern, L"NoEndDate"));
}

TEST_F(RecurrenceToOutlook, AnEntryThatDoesNotRepeatHasNoPattern)
{
    AddEntry({{L"F_ACTCOMPLETED", L"0"}, {L"FR_NAME", L"'每天'"}});
    AddEntry({{L"FR_NAME", L"'每天'"}});
    EXPECT_FALSE(WriteAllRows());
    EXPECT_FALSE(Truth(AppointmentAt(1), L"IsRecurring"));
    EXPECT_FALSE(Truth(AppointmentAt(2), L"IsRecurring"));
}

TEST_F(RecurrenceToOutlook, AnUnknownRuleKeepsOutlooksWeeklyDefault)
{
    AddRepeatingEntry(L"每两周");
    const Object pattern = PatternOf(WriteNewItem());
    EXPECT_EQ(1, Number(pattern, L"RecurrenceType"));
    EXPECT_EQ(1, Number(pattern, L"Interval"));
    EXPECT_EQ(4, Number(pattern, L"DayOfWeekMask"));
}

TEST_F(RecurrenceToOutlook, ARecurringAppointmentKeepsItsStartAndOnlyItsPatternIsRewritten)
{
    AddRepeating(Day(2003, 1, 6, 8), Day(2003, 1, 6, 9),
                 [](const Object& pattern) { pattern.Put(L"RecurrenceType", 0L); });
    AddEntry();
    Object written = WriteExistingItem();
    EXPECT_EQ(L"2003-01-06 08:00", At(written.Get(L"Start")));
    EXPECT_EQ(0, Number(PatternOf(written), L"RecurrenceType"));

    Execute(L"UPDATE HostRows SET F_ACTCOMPLETED=1, FR_NAME='每季'");
    written = WriteExistingItem();
    const Object pattern = PatternOf(written);
    EXPECT_EQ(2, Number(pattern, L"RecurrenceType"));
    EXPECT_EQ(3, Number(pattern, L"Interval"));
    EXPECT_EQ(6, Number(pattern, L"DayOfMonth"));
    EXPECT_EQ(L"2003-05-06 09:30", At(written.Get(L"Start")));
}

TEST_F(RecurrenceToOutlook, TheStartIsLeftToThePatternWhenTheRelationRowOfTheRepetitionComesFirst)
{
    Relate({{L"F_ACTCOMPLETED", L"IsRecurring"}, {L"F_ACTESDATE", L"Start"}});
    AddRepeatingEntry(L"每月");
    EXPECT_EQ(L"2003-05-06 09:30", At(WriteNewItem().Get(L"Start")));
}

TEST_F(RecurrenceToOutlook, AMonthlyEntryOnThe31stStartsThereAndFallsOnTheLastDayOfShorterMonths)
{
    AddRepeatingEntry(
        L"每月", {{L"F_ACTESDATE", L"'2003-01-31 00:00:00'"}, {L"F_ACTREPTEDATE", L"'2003-04-30 00:00:00'"}});
    const Object appointment = WriteNewItem();
    EXPECT_EQ(L"2003-01-31 09:30", At(appointment.Get(L"Start")));
    EXPECT_EQ(31, Number(PatternOf(appointment), L"DayOfMonth"));
    EXPECT_EQ(4, Number(PatternOf(appointment), L"Occurrences"));
}

TEST_F(RecurrenceToOutlook, AYearlyEntryOnThe29thOfFebruaryFallsOnTheLastDayOfFebruary)
{
    AddRepeatingEntry(
        L"每年", {{L"F_ACTESDATE", L"'2004-02-29 00:00:00'"}, {L"F_ACTREPTEDATE", L"'2008-02-29 00:00:00'"}});
    const Object appointment = WriteNewItem();
    EXPECT_EQ(L"2004-02-29 09:30", At(appointment.Get(L"Start")));
    EXPECT_EQ(29, Number(PatternOf(appointment), L"DayOfMonth"));
    EXPECT_EQ(2, Number(PatternOf(appointment), L"MonthOfYear"));
    EXPECT_EQ(5, Number(PatternOf(appointment), L"Occurrences"));
}

TEST_F(RecurrenceToOutlook, AnEntryOverMidnightRepeatsOverMidnight)
{
    AddRepeatingEntry(L"每天", {{L"F_ACTESTIME", L"'1899-12-30 22:00:00'"},
                                {L"F_ACTEETIME", L"'1899-12-30 01:00:00'"},
                                {L"ACT_DURATION", L"NULL"}});
    EXPECT_EQ(180, Number(PatternOf(WriteNewItem()), L"Duration"));
}

TEST_F(RecurrenceToOutlook, APatternOverTheChangeOfTheClocksKeepsItsLocalTimes)
{
    AddRepeatingEntry(L"每天", {{L"F_ACTESDATE", L"'2003-03-29 00:00:00'"},
                                {L"F_ACTESTIME", L"'1899-12-30 02:30:00'"},
                                {L"F_ACTEETIME", L"'1899-12-30 03:30:00'"},
                                {L"F_ACTREPTEDATE", L"'2003-03-31 00:00:00'"}});
    const Object pattern = PatternOf(WriteNewItem());
    EXPECT_EQ(L"02:30", TimeOf(pattern, L"StartTime"));
    EXPECT_EQ(60, Number(pattern, L"Duration"));
    EXPECT_EQ(3, Number(pattern, L"Occurrences"));
}

TEST_F(RecurrenceToOutlook, ASeriesThatEndsBeforeItBeginsIsLeftOutAndTheOnesBehindAreWritten)
{
    AddRepeatingEntry(L"每天", {{L"F_ACTREPTEDATE", L"'2003-05-05 23:59:00'"}});
    AddRepeatingEntry(L"每天", {{L"F_ACTREPTEDATE", L"'2003-05-06 00:00:00'"}});
    EXPECT_FALSE(WriteAllRows());
    ASSERT_EQ(1, CountItems());
    EXPECT_EQ(1, Number(PatternOf(AppointmentAt(1)), L"Occurrences"));
}

TEST_F(RecurrenceToOutlook, AnEntryWhoseRuleNeedsADayAndThatHasNoneIsLeftOut)
{
    Relate({{L"F_ACTNAME", L"Subject"}, {L"F_ACTCOMPLETED", L"IsRecurring"}});
    AddRepeatingEntry(L"每周", {{L"F_ACTESDATE", L"NULL"}});
    AddRepeatingEntry(L"每天", {{L"F_ACTESDATE", L"NULL"}});
    EXPECT_FALSE(WriteAllRows());
    ASSERT_EQ(1, CountItems());
    EXPECT_EQ(0, Number(PatternOf(AppointmentAt(1)), L"RecurrenceType"));
}

} // namespace test_support
