#include "automation/Dates.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <oleauto.h>

namespace automation
{

namespace
{

// 1 January 100 and 31 December 9999, between which the system knows every day.
constexpr double kFirstDay = -657434;
constexpr double kLastDay = 2958465;

void AppendPadded(std::wstring& text, int number, size_t digits)
{
    const std::wstring decimal = DecimalText(number);
    text.append(digits - std::min(digits, decimal.size()), L'0');
    text += decimal;
}

// The number that a letter of a pattern stands for, and how many of the letter make a field of it; none make
// one where the letter stands for itself.
std::pair<int, size_t> FieldOf(wchar_t letter, const Moment& moment, bool afterHour)
{
    switch (letter)
    {
    case L'y': return {moment.year, 4};
    case L'm': return {afterHour ? moment.minute : moment.month, 2};
    case L'd': return {moment.day, 2};
    case L'h': return {moment.hour, 2};
    case L's': return {moment.second, 2};
    default: return {0, 0};
    }
}

// Seconds since the zero date, as one number that runs on evenly also before it (where a DATE's fraction
// counts away from zero).
double SecondsOf(Date date)
{
    const double day = std::trunc(date.days);
    return std::round((day + std::abs(date.days - day)) * 86400.0);
}

// Made by the system like every date here: a fraction computed otherwise can differ in its last bit, and then
// equals no date that a host or a script has made.
Date DateOfSeconds(double seconds)
{
    const double day = std::floor(seconds / 86400.0);
    const auto second = static_cast<int>(seconds - day * 86400.0);
    Moment moment = MomentOf(Date{day});
    moment.hour = second / 3600;
    moment.minute = second / 60 % 60;
    moment.second = second % 60;
    return DateOf(moment);
}

} // namespace

Moment MomentOf(Date date)
{
    SYSTEMTIME time{};
    // The system takes a date that is no number for some day.
    if (!std::isfinite(date.days) || VariantTimeToSystemTime(date.days, &time) == 0)
    {
        throw Error(DISP_E_OVERFLOW, L"date");
    }
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

Date DateOf(const Moment& moment)
{
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(moment.year);
    time.wMonth = static_cast<WORD>(moment.month);
    time.wDay = static_cast<WORD>(moment.day);
    time.wHour = static_cast<WORD>(moment.hour);
    time.wMinute = static_cast<WORD>(moment.minute);
    time.wSecond = static_cast<WORD>(moment.second);
    Date date;
    if (SystemTimeToVariantTime(&time, &date.days) == 0)
    {
        throw Error(DISP_E_OVERFLOW, L"date");
    }
    // The conversion carries surplus days and months over. A moment that does not come back does not exist.
    if (MomentOf(date) != moment)
    {
        throw Error(DISP_E_OVERFLOW, L"date");
    }
    return date;
}

std::wstring Formatted(Date date, std::wstring_view pattern)
{
    const Moment moment = MomentOf(date);
    std::wstring result;
    bool afterHour = false;
    while (!pattern.empty())
    {
        const auto [number, digits] = FieldOf(pattern.front(), moment, afterHour);
        const size_t letters = std::min(pattern.find_first_not_of(pattern.front()), pattern.size());
        const bool isField = digits != 0 && letters >= digits;
        if (isField)
        {
            AppendPadded(result, number, digits);
            afterHour = afterHour || pattern.front() == L'h';
        }
        else
        {
            result += pattern.front();
        }
        pattern.remove_prefix(isField ? digits : 1);
    }
    return result;
}

Date DayOf(Date date)
{
    // The system rounds to the second: only the last second of a day may belong to the next one.
    constexpr double kLastSecond = 1 - 1.0 / 86400;
    const double day = std::trunc(date.days);
    if (day > kFirstDay && day < kLastDay && std::abs(date.days - day) < kLastSecond)
    {
        return Date{day + 0.0}; // no negative zero
    }
    const Moment moment = MomentOf(date);
    return DateOf(Moment{moment.year, moment.month, moment.day});
}

Date MinuteOfDay(Date date)
{
    const Moment moment = MomentOf(date);
    return DateOf(Moment{.hour = moment.hour, .minute = moment.minute});
}

Date ToTheMinute(Date date)
{
    Moment moment = MomentOf(date);
    moment.second = 0;
    return DateOf(moment);
}

Date PlusMinutes(Date date, long long minutes)
{
    return DateOfSeconds(SecondsOf(date) + 60.0 * static_cast<double>(minutes));
}

Date PlusTime(Date date, Date timeOfDay)
{
    return DateOfSeconds(SecondsOf(date) + SecondsOf(timeOfDay));
}

bool IsEarlier(Date left, Date right)
{
    return SecondsOf(left) < SecondsOf(right);
}

int WeekdayOf(Date date)
{
    // The zero date was a Saturday.
    const double day = std::floor(SecondsOf(date) / 86400.0) + 6;
    return static_cast<int>(day - 7 * std::floor(day / 7)) + 1;
}

Value WithoutNoDate(Date date)
{
    const double day = std::trunc(date.days);
    return day == kOutlookNoDate.days || day == kZeroDate.days ? Value::Null() : Value(date);
}

} // namespace automation
