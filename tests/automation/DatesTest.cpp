#include "automation/Dates.h"

#include "automation/Error.h"
#include "tests/automation/WithThreadLocale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include <oleauto.h>

namespace
{

using namespace automation;

std::wstring Shown(Date date)
{
    return Formatted(date, L"yyyy/mm/dd hh:mm:ss");
}

TEST(Dates, AreFormattedByTheirPatternWithTwoDigitsEach)
{
    const Date date = DateOf(Moment{2003, 5, 6, 7, 8, 9});
    EXPECT_EQ(L"2003/05/06", Formatted(date, L"yyyy/mm/dd"));
    EXPECT_EQ(L"07:08", Formatted(date, L"hh:mm"));
    EXPECT_EQ(L"2003/05/06 07:08:00", Formatted(date, L"yyyy/mm/dd hh:mm:00"));
    EXPECT_EQ(L"05/06/2003 07:08:00", Formatted(date, L"mm/dd/yyyy hh:mm:00"));
    EXPECT_EQ(L"2003-05-06 07:08:09", Formatted(date, L"yyyy-mm-dd hh:mm:ss"));
}

TEST(Dates, MmIsTheMonthBeforeTheHourAndTheMinuteAfterIt)
{
    const Date date = DateOf(Moment{2003, 5, 6, 7, 8, 9});
    EXPECT_EQ(L"05 07 08", Formatted(date, L"mm hh mm"));
    EXPECT_EQ(L"05.05", Formatted(date, L"mm.mm"));
}

TEST(Dates, AllOtherCharactersOfAPatternAreLiteral)
{
    const Date date = DateOf(Moment{2003, 5, 6});
    EXPECT_EQ(L"{d '2003-05-06'} y m", Formatted(date, L"{d 'yyyy-mm-dd'} y m"));
    EXPECT_EQ(L"", Formatted(date, L""));
}

TEST(Dates, AreFormattedAlikeUnderAllRegionalSettings)
{
    const test_support::WithThreadLocale german(test_support::kGerman);
    EXPECT_EQ(L"2003/05/06 23:59:58", Shown(DateOf(Moment{2003, 5, 6, 23, 59, 58})));
}

TEST(Dates, TheYearHasFourDigits)
{
    EXPECT_EQ(L"0100/01/01", Formatted(DateOf(Moment{100, 1, 1}), L"yyyy/mm/dd"));
    EXPECT_EQ(L"9999/12/31", Formatted(DateOf(Moment{9999, 12, 31}), L"yyyy/mm/dd"));
}

TEST(Dates, BeforeTheZeroDateTheFractionStillCountsForwardsFromMidnight)
{
    EXPECT_EQ(L"1899/12/30 00:00:00", Shown(Date{0}));
    EXPECT_EQ(L"1899/12/30 06:00:00", Shown(Date{0.25}));
    EXPECT_EQ(L"1899/12/29 06:00:00", Shown(Date{-1.25}));
    EXPECT_EQ(Date{-1.25}, DateOf(Moment{1899, 12, 29, 6, 0, 0}));
    EXPECT_EQ(L"1752/09/14 18:00:00", Shown(DateOf(Moment{1752, 9, 14, 18, 0, 0})));
}

TEST(Dates, AMomentComesBackFromItsDateToTheSecond)
{
    std::mt19937 engine(20031);
    const auto number = [&](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(engine);
    };
    for (int i = 0; i < 2000; ++i)
    {
        const Moment given{number(100, 9999), number(1, 12), number(1, 28),
                           number(0, 23),     number(0, 59), number(0, 59)};
        ASSERT_EQ(given, MomentOf(DateOf(given))) << i;
    }
}

TEST(Dates, AreRoundedToTheSecond)
{
    constexpr double kSecond = 1.0 / 86400;
    EXPECT_EQ(L"2003/05/06 00:00:01", Shown(Date{37747 + 0.9 * kSecond}));
    EXPECT_EQ(L"2003/05/07 00:00:00", Shown(Date{37748 - 0.2 * kSecond}));
}

TEST(Dates, ADateOutsideTheYears100To9999IsRefused)
{
    EXPECT_THROW(MomentOf(Date{-657435}), Error);
    EXPECT_THROW(MomentOf(Date{2958466}), Error);
    EXPECT_THROW(Formatted(Date{1e9}, L"yyyy"), Error);
}

TEST(Dates, NotANumberIsNoDate)
{
    for (const double days :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()})
    {
        EXPECT_THROW(MomentOf(Date{days}), Error);
        EXPECT_THROW(MomentOf(Date{-days}), Error);
    }
}

TEST(Dates, AMomentThatDoesNotExistIsRefused)
{
    for (const Moment& moment : {Moment{2003, 13, 1}, Moment{2003, 0, 1}, Moment{2003, 2, 29},
                                 Moment{2003, 4, 31}, Moment{2003, 5, 0}, Moment{2003, 5, 6, 24},
                                 Moment{2003, 5, 6, 7, 60}, Moment{2003, 5, 6, 7, 8, 60}})
    {
        EXPECT_THROW(DateOf(moment), Error)
            << moment.month << "/" << moment.day << " " << moment.hour << ":" << moment.minute;
    }
    EXPECT_NO_THROW(DateOf(Moment{2004, 2, 29}));
}

TEST(Dates, TheDayDropsTheTimeAlsoBeforeTheZeroDate)
{
    EXPECT_EQ(DateOf(Moment{2003, 5, 6}), DayOf(DateOf(Moment{2003, 5, 6, 23, 59, 59})));
    EXPECT_EQ(Date{-1}, DayOf(Date{-1.75}));
    EXPECT_EQ(Date{0}, DayOf(Date{0.75}));
    EXPECT_FALSE(std::signbit(DayOf(Date{-0.25}).days));
}

// The platform rounds to the second, so a moment just before midnight is of the next day.
TEST(Dates, TheDayIsThatOfThePlatformsConversionUpToTheLastMoment)
{
    std::mt19937 random(20031);
    std::uniform_real_distribution<double> anyDay(-657434, 2958466);
    for (int i = 0; i < 20000; ++i)
    {
        const double days = i % 2 == 0 ? anyDay(random) : std::trunc(anyDay(random)) + (1 - 1e-10 * i);
        const Date date{days};
        SYSTEMTIME time{};
        double day = 0;
        if (VariantTimeToSystemTime(days, &time) == 0)
        {
            EXPECT_THROW(DayOf(date), Error) << days;
            continue;
        }
        time.wHour = time.wMinute = time.wSecond = 0;
        ASSERT_NE(0, SystemTimeToVariantTime(&time, &day));
        EXPECT_EQ(day, DayOf(date).days) << days;
    }
}

TEST(Dates, TheMinuteOfTheDayDropsTheDateAndTheSeconds)
{
    EXPECT_EQ(Date{0.75}, MinuteOfDay(DateOf(Moment{2003, 5, 6, 18, 0, 59})));
    EXPECT_EQ(Date{0.25}, MinuteOfDay(Date{-1.25}));
    EXPECT_EQ(Date{0}, MinuteOfDay(DateOf(Moment{2003, 5, 6, 0, 0, 59})));
}

// The platform's own date of 1899-12-30 and this time, as scripts and hosts have it.
Date PlatformTime(int hour, int minute)
{
    std::wstring text = std::to_wstring(hour) + L":" + std::to_wstring(minute) + L":00";
    DATE date = -1;
    EXPECT_EQ(S_OK, VarDateFromStr(text.data(), 0x0409, LOCALE_NOUSEROVERRIDE | VAR_TIMEVALUEONLY, &date));
    return {date};
}

TEST(Dates, EveryTimeOfDayEqualsThePlatformsOwnToTheLastBit)
{
    const Date midnight{37747};
    for (int minute = 0; minute < 1440; ++minute)
    {
        const Date expected = PlatformTime(minute / 60, minute % 60);
        EXPECT_EQ(expected, MinuteOfDay(DateOf(Moment{2003, 5, 6, minute / 60, minute % 60, 30}))) << minute;
        EXPECT_EQ(expected, PlusMinutes(Date{0}, minute)) << minute;
        const Date onADay = DateOf(Moment{2003, 5, 6, minute / 60, minute % 60});
        EXPECT_EQ(onADay, PlusMinutes(midnight, minute)) << minute;
        EXPECT_EQ(onADay, PlusTime(midnight, expected)) << minute;
    }
}

TEST(Dates, ToTheMinuteDropsTheSecondsOnly)
{
    EXPECT_EQ(L"2003/05/06 07:08:00", Shown(ToTheMinute(DateOf(Moment{2003, 5, 6, 7, 8, 59}))));
}

TEST(Dates, MinutesAreAddedAndTakenAwayAcrossMidnightAndTheZeroDate)
{
    const Date date = DateOf(Moment{2003, 5, 6, 0, 10, 30});
    EXPECT_EQ(L"2003/05/05 23:50:30", Shown(PlusMinutes(date, -20)));
    EXPECT_EQ(L"2003/05/07 00:10:30", Shown(PlusMinutes(date, 1440)));
    EXPECT_EQ(L"2004/05/05 00:10:30", Shown(PlusMinutes(date, 365LL * 1440)));
    EXPECT_EQ(L"1899/12/29 23:40:00", Shown(PlusMinutes(Date{0}, -20)));
    EXPECT_EQ(L"1899/12/30 00:20:00", Shown(PlusMinutes(PlusMinutes(Date{0}, -20), 40)));
}

TEST(Dates, ATimeOfDayIsAddedToADateOnEitherSideOfTheZeroDate)
{
    const Date quarterPastSix = DateOf(Moment{.hour = 6, .minute = 15});
    EXPECT_EQ(L"2003/05/06 06:15:00", Shown(PlusTime(DateOf(Moment{2003, 5, 6}), quarterPastSix)));
    EXPECT_EQ(L"1850/05/06 06:15:00", Shown(PlusTime(DateOf(Moment{1850, 5, 6}), quarterPastSix)));
    EXPECT_EQ(L"2003/05/07 00:15:00", Shown(PlusTime(DateOf(Moment{2003, 5, 6, 18, 0}), quarterPastSix)));
}

TEST(Dates, EarlierIsByTimeNotByNumberBeforeTheZeroDate)
{
    const Date morning{-1.25};
    const Date evening{-1.75};
    EXPECT_TRUE(IsEarlier(morning, evening));
    EXPECT_FALSE(IsEarlier(evening, morning));
    EXPECT_FALSE(IsEarlier(morning, morning));
    EXPECT_TRUE(IsEarlier(evening, Date{0}));
}

TEST(Dates, TheWeekCountsFromSunday)
{
    EXPECT_EQ(7, WeekdayOf(Date{0}));     // Saturday
    EXPECT_EQ(1, WeekdayOf(Date{1}));     // Sunday
    EXPECT_EQ(6, WeekdayOf(Date{-1.75})); // Friday
    EXPECT_EQ(3, WeekdayOf(DateOf(Moment{2003, 5, 6, 23, 59})));
    EXPECT_EQ(1, WeekdayOf(DateOf(Moment{2004, 2, 29})));
}

TEST(Dates, TheTwoDatesForNoneAreNullByTheirDayAndAllOthersStay)
{
    EXPECT_EQ(kOutlookNoDate, DateOf(Moment{4501, 1, 1}));
    EXPECT_EQ(kZeroDate, DateOf(Moment{}));
    for (const Date none : {kOutlookNoDate, kZeroDate, Date{kOutlookNoDate.days + 0.5}, Date{0.75}})
    {
        EXPECT_EQ(VT_NULL, WithoutNoDate(none).Type());
    }
    for (const Date real :
         {Date{1}, Date{-1.5}, Date{kOutlookNoDate.days - 1}, Date{kOutlookNoDate.days + 1}})
    {
        EXPECT_EQ(real, DateOf(WithoutNoDate(real)));
    }
}

} // namespace
