#include "tests/sandbox_outlook/OutlookFixture.h"

#include "sandbox/outlook/Recurrence.h"

namespace sandbox
{

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
