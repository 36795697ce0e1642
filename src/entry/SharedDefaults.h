// The values that every new instance of the component's class gives the shared state.
#pragma once

#include "state/SharedState.h"

namespace entry
{

// Calendar 06:00 to 17:30, reminders 20 minutes ahead, the font of the interface language in a new font
// object. Throws automation::Error when no font object can be made.
void SetSharedDefaults(state::SharedState& shared);

} // namespace entry
