#include "automation/Dates.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <cmath>

#include <oleauto.h>

namespace automation
{

namespace
{

// 1 January 100 and 31 December 9999, between which the system knows every day.
constexpr double kFirstDay = -657434;
constexpr double kLastDay = 2958465;

std::wstring Padded(int number, size_t digits)
{
    std::wstring text = DecimalText(number);
    return text.size() < digits ? std::wstring(digits - text.size(), L'0') + text : text;
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
        size_t length = 2;
        if (pattern.starts_with(L"yyyy"))
        {
            result += Padded(moment.year, length = 4);
        }
        else if (pattern.starts_with(L"mm"))
        {
            result += Padded(afterHour ? moment.minute : moment.month, 2);
        }
        else if (pattern.starts_with(L"dd"))
        {
            result += Padded(moment.day, 2);
        }
        else if (pattern.starts_with(L"hh"))
        {
            result += Padded(moment.hour, 2);
            afterHour = true;
        }
        else if (pattern.starts_with(L"ss"))
        {
            result += Padded(moment.second, 2);
        }
        else
        {
            result += pattern.front();
            length = 1;
        }
        pattern.remove_prefix(length);
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
