// Host contacts into Outlook's contacts folder. Which host column goes to which property comes from the field
// relation table; how each property is written is fixed here.
#pragma once

#include "exchange/ApplyToOutlook.h"

namespace contacts
{

// The apply pass of a contact run towards Outlook: true when an error ended it.
extern const exchange::PassToOutlook SynContactToOutlook;

// Writes the host contact on which the run's recordset stands into the item and saves it; mode 1 for a new
// item, 2 for an existing one, which makes no difference here. Throws automation::Error when Outlook refuses
// a value or the relation rows cannot be read.
void SynSynContactToOlContact(exchange::Run& run, long mode, const automation::Object& item);

} // namespace contacts
