// Dates as automation knows them: formatted in fixed patterns whatever the regional settings, reduced by the
// round trips through text that the contract asks for, and the two dates that mean "no date".
#pragma once

#include "automation/Value.h"

#include <string>
#include <string_view>

namespace automation
{

// Outlook's date for "none": 4501-01-01.
inline constexpr Date kOutlookNoDate{949998};
// The zero date of automation: 1899-12-30.
inline constexpr Date kZeroDate{0};

struct Moment
{
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const Moment&) const = default;
};

// Rounded to the second. Throw Error for a date outside the years 100 to 9999, or a moment that does not
// exist. Every Date below is made by DateOf, and so by the system: it equals the system's own to the last
// bit.
Moment MomentOf(Date date);
Date DateOf(const Moment& moment);

// The date written by a pattern of yyyy, mm (the minute after hh, else the month), dd, hh (24 hours) and ss;
// everything else is copied, two digits each: "mm/dd/yyyy hh:mm:00".
std::wstring Formatted(Date date, std::wstring_view pattern);

// The date without its time of day ("yyyy/mm/dd" and back).
Date DayOf(Date date);
// The time of day without date and seconds ("hh:mm" and back).
Date MinuteOfDay(Date date);
// Date and time without seconds ("yyyy/mm/dd hh:mm" and back).
Date ToTheMinute(Date date);
// The date so many minutes later, or earlier for a negative number; rounded to the second. Throws as DateOf.
Date PlusMinutes(Date date, long long minutes);
// A time of day added to a date; rounded to the second. Throws as DateOf.
Date PlusTime(Date date, Date timeOfDay);
// Whether left lies before right; holds before the zero date too, where a DATE's fraction counts away from
// zero and the plain numbers compare wrongly.
bool IsEarlier(Date left, Date right);
// 1 for Sunday to 7 for Saturday.
int WeekdayOf(Date date);

// Null for the two dates that mean "no date" (compared by day), else the date.
Value WithoutNoDate(Date date);

} // namespace automation
