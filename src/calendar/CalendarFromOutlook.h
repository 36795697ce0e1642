// Calendar entries from Outlook: the accepted appointments of a run become rows of the host's TBLACTIVITY.
// Called by the run driver after the confirmation.
#pragma once

#include "automation/Object.h"
#include "exchange/ApplyFromOutlook.h"

namespace calendar
{

// The apply pass over the run's new and changed Outlook items: true when an error ended the pass itself,
// false otherwise. An appointment that cannot be written is reported, and the pass goes on.
extern const exchange::PassFromOutlook SynCalendarFromOutlook;

// Writes one appointment, without a transaction of its own: data::kNewRecord, or data::kExistingRecord with
// run.HostRows on the row to update; any other mode does nothing. Returns -1 when the host refused the row, 0
// otherwise: the row is written, or left out for want of a subject or because of an error. A message box has
// told of an error and of a refusal, with the host column that was being processed.
long SynOlCalendarToSynCalendar(exchange::Run& run, long mode, const automation::Object& item);

} // namespace calendar
