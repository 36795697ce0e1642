// Where a dialog's window appears, and the icon that it shows.
#pragma once

#include <windows.h>

namespace ui
{

// Centres the window over the one that was active before, whose monitor the user looks at. Without one, the
// window keeps the centring of its template.
void CenterOverActiveBefore(HWND window);

// The component's icons, before the caption and, since the dialogs have no owner, in the task bar.
void SetIcons(HWND window);

} // namespace ui
