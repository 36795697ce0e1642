// Host calendar entries into an Outlook calendar folder, with their repetition. Which host column goes to
// which property comes from the field relation table; how each property is written is fixed here.
#pragma once

#include "exchange/ApplyToOutlook.h"

namespace calendar
{

// The apply pass of a calendar run towards Outlook: true when an error ended it.
extern const exchange::PassToOutlook SynCalendarToOutlook;

// Writes the host entry on which the run's recordset stands into the appointment and saves it, once, at the
// end. Mode 1 is for a new appointment, 2 for an existing one; any other does nothing. True when an error
// ended the writer; the appointment is then left unsaved.
bool SynSynCalendarToOlCalendar(exchange::Run& run, long mode, const automation::Object& item);

} // namespace calendar
