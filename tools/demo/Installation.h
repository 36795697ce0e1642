// The set-up of a user's machine besides the component: an Outlook profile, and the settings that the user
// has made before. The demo and the end-to-end tests put them in place.
#pragma once

#include "sandbox/database/Connection.h"
#include "tools/demo/Options.h"

namespace tools::demo
{

// Where Outlook keeps its profiles.
enum class Profiles
{
    Classic, // of Windows itself, in the key of either family: Outlook up to 2010
    Modern,  // of Office 16.0, the name of the default one in the key above: Outlook since 2016
};

// One Outlook profile, the default one; no other key of profiles is left. Throws automation::Error.
void InstallOutlookProfile(Profiles where);

// Removes every key of profiles that InstallOutlookProfile makes.
void RemoveOutlookProfiles();

// Stores the direction and the conflict rule, where they are given, for every kind of the user, whose rows
// are made from the host's templates first where there are none.
void StoreSettings(sandbox::Connection& host, const std::wstring& userId, const Options& options);

} // namespace tools::demo
