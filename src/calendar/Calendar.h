// The calendar: host calendar entries and Outlook appointments.
#pragma once

#include "exchange/Kind.h"

namespace calendar
{

// Matched by F_ACTNAME, F_ACTTYPE, F_ACTESDATE with F_ACTESTIME (to the minute) against Subject, Categories
// and Start.
extern const exchange::Kind kCalendar;

} // namespace calendar
