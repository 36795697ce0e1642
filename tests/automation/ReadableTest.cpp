#include "automation/Readable.h"

#include "automation/Dates.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using automation::Date;
using automation::DateOf;
using automation::Moment;
using automation::OutlookDate;
using automation::ReadableDate;
using automation::ReadableNumber;
using automation::ReadableTruth;
using automation::Value;

const Value kUnreadable[] = {Value(), Value::Null(), Value(L""), Value(L"soon"),
                             Value(std::wstring(10000, L'x'))};

TEST(Readable, AnUnreadableValueIsNoDateNoNumberAndNoTruthValue)
{
    for (const Value& value : kUnreadable)
    {
        EXPECT_FALSE(ReadableDate(value));
        EXPECT_FALSE(OutlookDate(value));
        EXPECT_FALSE(ReadableNumber(value));
        EXPECT_FALSE(ReadableTruth(value));
        EXPECT_FALSE(automation::IsTrue(value));
    }
}

TEST(Readable, ADateIsReadFromADateOrAText)
{
    const Date day = DateOf(Moment{2003, 5, 6});
    EXPECT_EQ(day, ReadableDate(day));
    EXPECT_EQ(day, ReadableDate(L"2003-05-06"));
    EXPECT_EQ(day, OutlookDate(L"2003-05-06"));
    EXPECT_FALSE(ReadableDate(Date{-657435})); // the year 99
    EXPECT_FALSE(ReadableDate(Date{2958466})); // the year 10000
    EXPECT_FALSE(ReadableDate(Date{std::numeric_limits<double>::quiet_NaN()}));
}

TEST(Readable, OutlookHoldsDatesFrom1601ToItsDateForNone)
{
    EXPECT_FALSE(OutlookDate(DateOf(Moment{1500, 5, 6})));
    EXPECT_FALSE(OutlookDate(DateOf(Moment{1601, 1, 1, 23, 59, 59})));
    EXPECT_TRUE(OutlookDate(DateOf(Moment{1601, 1, 2})));
    EXPECT_TRUE(OutlookDate(DateOf(Moment{1850, 5, 6})));
    EXPECT_TRUE(OutlookDate(DateOf(Moment{4500, 12, 31, 23, 59, 59})));
    EXPECT_FALSE(OutlookDate(automation::kOutlookNoDate));
    EXPECT_FALSE(OutlookDate(DateOf(Moment{9999, 12, 31})));
}

TEST(Readable, ADateIsNeitherANumberNorATruthValue)
{
    EXPECT_FALSE(ReadableNumber(Date{2}));
    EXPECT_FALSE(ReadableTruth(Date{2}));
}

TEST(Readable, ANumberIsFinite)
{
    EXPECT_EQ(2.5, ReadableNumber(2.5));
    EXPECT_EQ(12, ReadableNumber(L"12"));
    EXPECT_FALSE(ReadableNumber(std::numeric_limits<double>::infinity()));
}

TEST(Readable, ATruthValueIsReadFromAFlagANumberOrAWord)
{
    EXPECT_EQ(true, ReadableTruth(true));
    EXPECT_EQ(false, ReadableTruth(0L));
    EXPECT_EQ(true, ReadableTruth(L"True"));
    EXPECT_TRUE(automation::IsTrue(1L));
    EXPECT_FALSE(automation::IsTrue(L"False"));
}

} // namespace
