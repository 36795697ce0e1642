// Reads a value as a date, number or flag. Unlike the coercions of Value.h, an unreadable value is no error
// but no value: one unreadable column of one record must not end a pass, or the comparison of all records.
#pragma once

#include "automation/Value.h"

#include <optional>

namespace automation
{

// Nothing for Empty, Null, a text that is no date, and a date outside the years 100 to 9999.
std::optional<Date> ReadableDate(const Value& value);
// The same, and nothing for a date that Outlook cannot hold: one before 1601, and from its date for "none"
// on.
std::optional<Date> OutlookDate(const Value& value);
// Nothing for Empty, Null, a date, and any other value that is no finite number.
std::optional<double> ReadableNumber(const Value& value);
// Nothing for Empty, Null, a date, and any other value that is neither true nor false.
std::optional<bool> ReadableTruth(const Value& value);

// Whether the value can be read as true.
bool IsTrue(const Value& value);

} // namespace automation
