// What a user's machine has besides the component: an Outlook profile, and the settings that the user has
// made before. The demo and the end-to-end tests put them in place.
#pragma once

#include "sandbox/database/Connection.h"
#include "sandbox/demo/Options.h"

namespace sandbox::demo
{

// One Outlook profile, the default one, under either key that a system may use. Throws automation::Error.
void InstallOutlookProfile();

// Stores the direction and the conflict rule, where they are given, for every kind of the user, whose rows
// are made from the host's templates first where there are none.
void StoreSettings(Connection& host, const std::wstring& userId, const Options& options);

} // namespace sandbox::demo
