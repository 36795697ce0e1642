// Contacts from Outlook: the accepted items of a run become rows of the host's TBLCONTACT, each in one host
// transaction together with its account and address. Called by the run driver after the confirmation.
#pragma once

#include "automation/Object.h"
#include "exchange/ApplyFromOutlook.h"

namespace contacts
{

// The apply pass over the run's new and changed Outlook items. A contact that cannot be written is rolled
// back and the pass goes on; True when an error ended the pass itself, False otherwise.
extern const exchange::PassFromOutlook SynContactFromOutlook;

// Writes one contact item: data::kNewRecord, or data::kExistingRecord with run.HostRows on the row to update.
// Returns 0 when the contact is written, or skipped for want of a name; -1 when nothing of it was written.
long SynOlContactToSynContact(exchange::Run& run, long mode, const automation::Object& item);

} // namespace contacts
