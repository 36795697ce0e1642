// The parameter store (module MdlConfigProcess): loads a kind's stored settings into a parameter record and
// creates a user's rows from the templates on first use. Called by the run driver at each run and by the
// configuration dialogs as they open. Every routine traps its own errors; values that it has read or written
// stay.
#pragma once

#include "automation/Recordset.h"
#include "state/SynParameter.h"

#include <string>

namespace config
{

// Fills the record from the current user's row of the kind ("Contact", "Task" or "Calendar"). True for
// failure; a kind without any row leaves the record as it is and is no failure.
bool SetSynParamenter(state::SynParameter& record, const std::wstring& objectName);

// Sets DefaultFolder and CurrentFolder from the user's folder rows: the last one marked default, or "".
// Returns the default folder; a failure leaves both as they are and returns "".
std::wstring LoadDefaultFolder(state::SynParameter& record, const std::wstring& objectName);

// Copies the template rows (of user 0) of the kinds that the current user has no row of, and returns the
// user's rows, open; nothing on failure. The rows copied before a failure stay.
automation::Recordset CreateDefaultParameters();

} // namespace config
