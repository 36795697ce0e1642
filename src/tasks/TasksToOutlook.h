// Host activities into an Outlook task folder. Which host column goes to which property comes from the field
// relation table, in the order of its rows; how each property is written is fixed here.
#pragma once

#include "exchange/ApplyToOutlook.h"

namespace tasks
{

// The apply pass of a task run towards Outlook: true when an error ended it.
extern const exchange::PassToOutlook SynTaskToOutlook;

// Writes the host task on which the run's recordset stands into the item, which is saved after every relation
// row, and once more: a task that fails half-way keeps what was written before. Mode 1 is for a new item, 2
// for an existing one; any other does nothing. Throws automation::Error when Outlook refuses a value or the
// relation rows cannot be read.
void SynSynTaskToOlTask(exchange::Run& run, long mode, const automation::Object& item);

} // namespace tasks
