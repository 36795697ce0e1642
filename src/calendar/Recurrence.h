// The host's repeat rules and Outlook's recurrence patterns. Called by the writers of calendar entries, in
// both directions.
#pragma once

#include "automation/Recordset.h"

#include <string>

namespace calendar
{

// Outlook's OlRecurrenceType, as far as used.
inline constexpr long kDailyPattern = 0;
inline constexpr long kWeeklyPattern = 1;
inline constexpr long kMonthlyPattern = 2;
inline constexpr long kYearlyPattern = 5;

// The bit of a weekday in Outlook's DayOfWeekMask: 1 (Sunday) to 7 give 1, 2, 4, ... 64, anything else 0.
short WeekdayToDayMask(short weekday);

// Whether the repeat rule of this name takes a weekday, a day or a month from a reference date.
bool NeedsReferenceDate(const std::wstring& name);

// How a pattern is written. Writing a pattern cancels the exceptions that the user has made of the series, so
// an existing series gets changes only.
enum class Writes
{
    Everything,
    ChangesOnly,
};

// Makes the pattern that of the host's repeat rule of this name; what the rule leaves open (the weekday, the
// day, the month) is the reference date's. A name that is no rule leaves the pattern as it is. Always 0;
// throws automation::Error when Outlook refuses, or the rule needs a reference date and there is none.
long SetRecurrenceByName(const automation::Object& pattern, const std::wstring& name,
                         const automation::Value& reference, Writes writes = Writes::Everything);

// Makes the appointment repeat as the recordset's current row says. The order of the members
// is part of the host contract: Outlook ties them together, so that another order gives another pattern.
// Throws automation::Error when Outlook refuses.
void WritePattern(const automation::Object& appointment, const automation::Recordset& rows);

} // namespace calendar
