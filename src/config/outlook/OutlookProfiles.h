// The list of Outlook's mail profiles, which Outlook keeps as sub-keys of a per-user registry key. Called by
// the main dialog before a run, by the translator dialog before it opens the folder picker or the profile
// dialog, and by the profile dialog.
#pragma once

#include "config/outlook/SysReg.h"

namespace config
{

// Opens the profile key that belongs to the running system; 0 or -2 as TSysReg. Where that key does not
// exist, opens the first key that holds a profile among those that newer versions of Outlook use: the key of
// the NT family, then those of Office, newest version first; if none holds one, the first that exists.
long OpenProfileKey(TSysReg& registry);

// Moves from the open profile key to the key that holds the value DefaultProfile: the same one, or for a
// profile key of Office the one above; 0 or -2 as TSysReg.
long MoveToDefaultProfile(TSysReg& registry);

// False when at least one Outlook profile exists. True otherwise, after a message to the user.
bool CheckOutlookProfiles();

// Tells the user about a failed registry call: the text, which ends in "code ", followed by the call's code.
void ShowRegistryFailure(const wchar_t* text, const TSysReg& registry);

} // namespace config
