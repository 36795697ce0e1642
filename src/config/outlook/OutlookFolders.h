// From stored folder paths to Outlook's folders (module MdlConfigProcess). A path is the names of the folders
// from the top-level store down, joined by "\". Called by the run driver before it touches Outlook and after
// a change of the Outlook profile. Both routines trap their own errors.
#pragma once

#include "automation/Object.h"

#include <string>

namespace config
{

// Sets folder to the Outlook folder of a stored path. True for failure: an empty path tells the user that no
// folder has been chosen, a path that leads nowhere fails silently; folder is then left as it is.
bool ResolveOutlookFolder(const std::wstring& folderPath, automation::Object& folder);

// Deletes the current user's folder rows whose top-level store is not in the current Outlook profile. Stops
// at the first row that the host does not delete.
void PurgeMissingFolders();

} // namespace config
