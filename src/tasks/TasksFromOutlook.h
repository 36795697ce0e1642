// Tasks from Outlook: the accepted items of a run become rows of the host's TBLACTIVITY, each in one host
// transaction together with its links. Called by the run driver after the confirmation.
#pragma once

#include "automation/Object.h"
#include "exchange/ApplyFromOutlook.h"

namespace tasks
{

// The apply pass over the run's new and changed Outlook items. A task that cannot be written is rolled back
// and the pass goes on; true when an error ended the pass itself, false otherwise.
extern const exchange::PassFromOutlook SynTaskFromOutlook;

// Writes one task item: data::kNewRecord, or data::kExistingRecord with run.HostRows on the row to update;
// any other mode shows a message and writes nothing. Returns 0, or -1 when the task is not written: the host
// refused, or the item has no subject.
long SynOlTaskToSynTask(exchange::Run& run, long mode, const automation::Object& item);

} // namespace tasks
