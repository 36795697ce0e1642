// Contacts that tasks and calendar entries are linked to in Outlook: found by name in the default contacts
// folder, or created there. Called by the writers of tasks and appointments; nothing is kept between calls.
#pragma once

#include "automation/Object.h"

namespace links
{

// Whether an item was written by an Outlook whose version begins with "8", the last one before links.
bool IsOfOutlook8(const automation::Object& item);

// Says whether a contact that was found may be linked.
using AcceptsContact = bool (*)(const automation::Object& contact);

// Adds a link to the contact of this name to the item, which is then to be saved; further links stay, so that
// a second call adds a second link. Does nothing when either name is Null, Empty or the empty text, or when
// accepts (null for no condition) refuses the contact found; a contact that is not found is created. An
// Outlook without links costs the link, with a remark. Throws automation::Error when Outlook refuses anything
// else, as it does for a name with a double quote. An item of the component's own, which a preview records,
// takes the name of a contact that would be created.
void LinkContact(const automation::Object& item, const automation::Value& surname,
                 const automation::Value& givenName, AcceptsContact accepts = nullptr);

} // namespace links
