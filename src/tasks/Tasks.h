// Tasks: rows of the host's TBLACTIVITY and Outlook tasks. Which column belongs to which property comes from
// the field relation table; how each property is converted is fixed here.
#pragma once

#include "exchange/Kind.h"

namespace tasks
{

// Matched by F_ACTNAME, F_ACTTYPE and F_ACTPSTIME (by day) against Subject, Categories and StartDate; then by
// ACC_SNAME against Companies.
extern const exchange::Kind kTasks;

// The two passes of a run: true when an error ended the pass. Towards the host, a task that cannot be written
// is rolled back and the pass continues.
extern const exchange::PassToOutlook SynTaskToOutlook;
extern const exchange::PassFromOutlook SynTaskFromOutlook;

// Writes the run's current host task into the item, which is saved after every relation
// row, and once more: a task that fails half-way keeps what was written before. An unknown mode does nothing.
// Throws automation::Error when Outlook refuses a value or the relation rows cannot be read.
void SynSynTaskToOlTask(exchange::Run& run, data::RecordMode mode, const automation::Object& item);

// Writes one task item, with its links, in one host transaction: a new row, or over the row on which the
// run's recordset stands. Returns 0, or -1 when the task is not written: the host refused, or the item has no
// subject. Another mode shows a message and writes nothing.
long SynOlTaskToSynTask(exchange::Run& run, data::RecordMode mode, const automation::ItemView& item);

} // namespace tasks
