#include "calendar/CalendarRange.h"

#include "tests/calendar/CalendarFixture.h"

namespace test_support
{

using automation::Date;
using calendar::EntrySpan;

namespace
{

// Wednesday 2003-05-07, noon.
const Date kNow = Day(2003, 5, 7, 12, 0);

state::SynParameter Range(long code, short prior = 0, short after = 0)
{
    state::SynParameter parameter;
    parameter.CalendarTransItem = code;
    parameter.CalendarPrior = prior;
    parameter.CalendarAfter = after;
    return parameter;
}

bool IsFuture(Date first, Date last)
{
    return calendar::IsWithinRange({first, last}, Range(state::kFutureEntries), kNow);
}

bool IsWithinDays(Date first, Date last, short prior, short after)
{
    return calendar::IsWithinRange({first, last}, Range(state::kEntriesWithinDays, prior, after), kNow);
}

} // namespace

TEST(CalendarRange, CodeZeroAndUnknownCodesKeepEverything)
{
    const EntrySpan longAgo{Day(1900, 1, 1), Day(1900, 1, 2)};
    for (const long code : {0L, 3L, -1L})
    {
        EXPECT_TRUE(calendar::IsWithinRange(longAgo, Range(code), kNow));
    }
}

TEST(CalendarRange, CodeOneKeepsEntriesThatEndAfterNow)
{
    EXPECT_TRUE(IsFuture(Day(2003, 5, 8), Day(2003, 5, 9)));
    EXPECT_TRUE(IsFuture(Day(2003, 5, 7, 11, 0), Day(2003, 5, 7, 12, 1)));
    EXPECT_FALSE(IsFuture(Day(2003, 5, 7, 11, 0), Day(2003, 5, 7, 12, 0)));
    EXPECT_FALSE(IsFuture(Day(2003, 5, 6), Day(2003, 5, 7)));
}

TEST(CalendarRange, CodeTwoIncludesBothOfItsOuterDays)
{
    EXPECT_TRUE(IsWithinDays(Day(2003, 5, 5, 0, 0), Day(2003, 5, 5, 0, 30), 2, 3));
    EXPECT_TRUE(IsWithinDays(Day(2003, 5, 10, 23, 30), Day(2003, 5, 11, 0, 30), 2, 3));
    EXPECT_FALSE(IsWithinDays(Day(2003, 5, 4, 23, 0), Day(2003, 5, 5), 2, 3));
    EXPECT_FALSE(IsWithinDays(Day(2003, 5, 11), Day(2003, 5, 11, 1, 0), 2, 3));
}

TEST(CalendarRange, CodeTwoKeepsEntriesThatOverlapItsDays)
{
    EXPECT_TRUE(IsWithinDays(Day(2003, 5, 4, 23, 0), Day(2003, 5, 5, 0, 1), 2, 3));
    EXPECT_TRUE(IsWithinDays(Day(2003, 1, 1), Day(2003, 12, 31), 2, 3));
}

TEST(CalendarRange, CodeTwoWithoutDaysIsToday)
{
    EXPECT_TRUE(IsWithinDays(Day(2003, 5, 7, 1, 0), Day(2003, 5, 7, 2, 0), 0, 0));
    EXPECT_FALSE(IsWithinDays(Day(2003, 5, 6, 1, 0), Day(2003, 5, 6, 2, 0), 0, 0));
    EXPECT_FALSE(IsWithinDays(Day(2003, 5, 8, 1, 0), Day(2003, 5, 8, 2, 0), 0, 0));
}

TEST(CalendarRange, CodeTwoKeepsAMomentAtTheFirstMidnight)
{
    EXPECT_TRUE(IsWithinDays(Day(2003, 5, 5), Day(2003, 5, 5), 2, 3));
    EXPECT_FALSE(IsWithinDays(Day(2003, 5, 11), Day(2003, 5, 11), 2, 3));
}

TEST(CalendarRange, CodeTwoCountsDaysOverTheEndOfAMonthAndAChangeOfTheClocks)
{
    const auto parameter = Range(state::kEntriesWithinDays, 1, 1);
    const EntrySpan leapDay{Day(2004, 2, 29, 9, 0), Day(2004, 2, 29, 10, 0)};
    EXPECT_TRUE(calendar::IsWithinRange(leapDay, parameter, Day(2004, 3, 1, 8, 0)));
    EXPECT_FALSE(calendar::IsWithinRange(leapDay, parameter, Day(2004, 3, 2, 8, 0)));
    const EntrySpan lateOnTheLongDay{Day(2003, 10, 26, 23, 0), Day(2003, 10, 26, 23, 59)};
    EXPECT_TRUE(calendar::IsWithinRange(lateOnTheLongDay, parameter, Day(2003, 10, 27, 23, 30)));
    EXPECT_FALSE(calendar::IsWithinRange(lateOnTheLongDay, parameter, Day(2003, 10, 28, 0, 0)));
}

class CalendarSpan : public CalendarFixture
{
  protected:
    EntrySpan SpanOfEntry(const Pairs& columns)
    {
        Execute(L"DELETE FROM HostRows");
        AddEntry(columns);
        const exchange::Run run = NewRun();
        return calendar::SpanOfRow(run.HostRows);
    }

    static std::wstring Written(const EntrySpan& span) { return At(span.First) + L" - " + At(span.Last); }
};

TEST_F(CalendarSpan, ASingleEntryLastsFromItsStartToItsEndTime)
{
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-06 11:00", Written(SpanOfEntry({})));
}

TEST_F(CalendarSpan, ASingleEntryWithoutAnEndTimeIsAMoment)
{
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-06 09:30", Written(SpanOfEntry({{L"F_ACTEETIME", L"NULL"}})));
}

TEST_F(CalendarSpan, ASingleEntryWithoutTimesIsTheMidnightOfItsDay)
{
    EXPECT_EQ(L"2003-05-06 00:00 - 2003-05-06 00:00",
              Written(SpanOfEntry({{L"F_ACTESTIME", L"NULL"}, {L"F_ACTEETIME", L"NULL"}})));
}

TEST_F(CalendarSpan, AnEndBeforeTheStartIsOneOnTheNextDay)
{
    EXPECT_EQ(L"2003-05-06 22:00 - 2003-05-07 01:00",
              Written(SpanOfEntry(
                  {{L"F_ACTESTIME", L"'1899-12-30 22:00:00'"}, {L"F_ACTEETIME", L"'1899-12-30 01:00:00'"}})));
}

TEST_F(CalendarSpan, ARepeatingEntryLastsToTheEndOfItsLastDay)
{
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-06-01 00:00",
              Written(SpanOfEntry({{L"FR_NAME", L"'每天'"}, {L"F_ACTREPTEDATE", L"'2003-05-31 00:00:00'"}})));
}

TEST_F(CalendarSpan, ARepeatingEntryWithoutALastDayNeverEnds)
{
    EXPECT_GT(SpanOfEntry({{L"FR_NAME", L"'每天'"}}).Last, Day(9999, 12, 31));
}

TEST_F(CalendarSpan, ALastDayWithoutARuleDoesNotCount)
{
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-06 11:00",
              Written(SpanOfEntry({{L"F_ACTREPTEDATE", L"'2003-05-31 00:00:00'"}})));
}

TEST_F(CalendarSpan, ASingleAppointmentLastsFromItsStartToItsEnd)
{
    EXPECT_EQ(L"2003-05-06 22:00 - 2003-05-07 01:00",
              Written(calendar::SpanOfItem(AddAppointment(Day(2003, 5, 6, 22, 0), Day(2003, 5, 7, 1, 0)))));
}

TEST_F(CalendarSpan, AnAllDayAppointmentLastsToMidnight)
{
    EXPECT_EQ(L"2003-05-06 00:00 - 2003-05-07 00:00",
              Written(calendar::SpanOfItem(AddAllDay(Day(2003, 5, 6)))));
}

TEST_F(CalendarSpan, ARepeatingAppointmentLastsToTheEndOfItsLastDay)
{
    const Object appointment =
        AddRepeating(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0),
                     [](const Object& pattern) { pattern.Put(L"PatternEndDate", Day(2003, 5, 20)); });
    EXPECT_EQ(L"2003-05-06 09:00 - 2003-05-21 00:00", Written(calendar::SpanOfItem(appointment)));
}

TEST_F(CalendarSpan, AnEndlessAppointmentNeverEnds)
{
    const Object appointment =
        AddRepeating(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0), [](const Object&) {});
    EXPECT_GT(calendar::SpanOfItem(appointment).Last, Day(9999, 12, 31));
}

TEST_F(CalendarSpan, AskingForItDoesNotMakeASingleAppointmentRecurring)
{
    const Object appointment = AddAppointment(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0));
    calendar::SpanOfItem(appointment);
    EXPECT_FALSE(Truth(appointment, L"IsRecurring"));
}

TEST_F(CalendarSpan, TheFiltersKeepEverythingForCodeZeroWithoutAskingForTheTime)
{
    const exchange::Filters filters = calendar::WithinCalendarRange(Range(state::kAllEntries), data::Host());
    EXPECT_FALSE(filters.KeepsRow);
    EXPECT_FALSE(filters.KeepsItem);
    EXPECT_TRUE(CallsOf(L"SysDateTime").empty());
}

// The recording host's clock shows noon of 2003-05-06.
TEST_F(CalendarSpan, TheFiltersGoByTheHostsClockWhichTheyReadOnce)
{
    AddEntry({{L"F_ACTESTIME", L"'1899-12-30 09:30:00'"}, {L"F_ACTEETIME", L"'1899-12-30 11:00:00'"}});
    AddEntry({{L"F_ACTESTIME", L"'1899-12-30 11:30:00'"}, {L"F_ACTEETIME", L"'1899-12-30 12:30:00'"}});
    const exchange::Run run = NewRun();
    const exchange::Filters filters =
        calendar::WithinCalendarRange(Range(state::kFutureEntries), data::Host());
    EXPECT_FALSE(filters.KeepsRow(run.HostRows));
    run.HostRows.MoveNext();
    EXPECT_TRUE(filters.KeepsRow(run.HostRows));
    EXPECT_FALSE(filters.KeepsItem(AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 12, 0))));
    EXPECT_TRUE(filters.KeepsItem(AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 12, 1))));
    EXPECT_EQ(1u, CallsOf(L"SysDateTime").size());
}

} // namespace test_support
