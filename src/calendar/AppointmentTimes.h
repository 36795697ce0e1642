// The host's own time and repeat columns of a calendar entry, from an appointment's times and recurrence
// pattern. Conversions of the calendar's mapping table from Outlook.
#pragma once

#include "exchange/MappingFromOutlook.h"

namespace calendar
{

// "Start": the day; F_ACTESTIME beside it.
exchange::HostValue ReadStart(const exchange::SourceProperty& property);

// "IsRecurring": the value as it is; F_ACTEEDATE, F_ACTEETIME, F_ACTREPTIDX and F_ACTREPTEDATE beside it, as
// far as they apply.
exchange::HostValue ReadIsRecurring(const exchange::SourceProperty& property);

} // namespace calendar
