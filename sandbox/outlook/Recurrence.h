// The days on which a recurring appointment falls: plain calendar arithmetic, free of time zones.
#pragma once

#include "automation/Dates.h"

namespace sandbox::outlook
{

// OlRecurrenceType.
enum RecurrenceKind : long
{
    kDaily = 0,
    kWeekly = 1,
    kMonthly = 2,
    kMonthNth = 3,
    kYearly = 5,
    kYearNth = 6,
};

// The last day on which anything recurs, and what Outlook shows as the end of a pattern that has none:
// 4500-08-31.
inline constexpr automation::Date kLastRecurrenceDay{949875};

struct Recurrence
{
    long kind = kWeekly;
    long interval = 1;      // days, weeks or months; years recur each
    long dayOfWeekMask = 0; // bit 0 is Sunday
    long dayOfMonth = 1;    // a month that is shorter takes its last day
    long monthOfYear = 1;
    long instance = 1; // 1 to 4, 5 is the last
    automation::Date start;
};

// The n-th day (from 1) on or after the start; kOutlookNoDate where the calendar ends before it.
automation::Date OccurrenceOf(const Recurrence& recurrence, long n);
// How many days there are from the start to the last day, both included.
long OccurrencesUntil(const Recurrence& recurrence, automation::Date last);

// The bit of a day's weekday: 1 for Sunday to 64 for Saturday.
long WeekdayBit(automation::Date day);

} // namespace sandbox::outlook
