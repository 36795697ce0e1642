// The body of ClsSynOutlook.SynLoad.
#pragma once

#include "automation/Object.h"

#include <string>

namespace entry
{

// Keeps the host's objects in the shared state, starts Outlook, and shows the synchronization dialog until
// the user closes it. True when an argument is missing (nothing was done), False otherwise, also when Outlook
// cannot be reached. While a call of this thread has not returned, another one does nothing.
bool SynLoad(const automation::Object& dtc, const std::wstring& connection);

} // namespace entry
