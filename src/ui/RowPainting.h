// How list views and tree views paint a selected row while another control has the focus. Themes that know
// such rows paint them well; elsewhere the system's colour for them is hardly different from the ground, so
// the row gets one that is. Called by ui::Dialog.
#pragma once

#include <windows.h>

namespace ui
{

// The answer to a notification NM_CUSTOMDRAW of any control.
LRESULT PaintRow(const NMHDR& notification);

} // namespace ui
