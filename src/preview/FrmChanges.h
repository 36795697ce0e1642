// The list of changes as a window: every proposed record of a run before it is written, its fields as they
// are and as they will be, and a check box that leaves it out. Opened from the confirmation.
#pragma once

#include "preview/ChangeList.h"

#include <string>

namespace ui
{
class Dialog;
}

namespace preview
{

// Shows the window over its owner until the user closes it; the list has the user's choice then. Nothing is
// written to the host or to Outlook. Throws when the window cannot be shown.
void ShowChanges(const ui::Dialog& owner, ChangeList& list, const std::wstring& categoryText);

} // namespace preview
