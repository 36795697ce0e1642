// Dates as tests write them. Header only.
#pragma once

#include "automation/Dates.h"

namespace test_support
{

inline automation::Date Day(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return automation::DateOf(automation::Moment{year, month, day, hour, minute, second});
}

} // namespace test_support
