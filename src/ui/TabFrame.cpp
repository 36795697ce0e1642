#include "ui/TabFrame.h"

#include <commctrl.h>

namespace ui
{

void TabFrame::AddTab(const std::wstring& caption)
{
    std::wstring text = caption;
    TCITEMW tab = {};
    tab.mask = TCIF_TEXT;
    tab.pszText = text.data();
    SendPointer(TCM_INSERTITEMW, static_cast<WPARAM>(mTabs++), &tab);
}

RECT TabFrame::Area() const
{
    RECT area = Place();
    SendPointer(TCM_ADJUSTRECT, FALSE, &area);
    return area;
}

void TabFrame::Fill(Control& content, int margin) const
{
    RECT units = {margin, margin, 0, 0};
    MapDialogRect(GetParent(Handle()), &units);
    RECT area = Area();
    InflateRect(&area, -static_cast<int>(units.left), -static_cast<int>(units.top));
    content.MoveTo(area);
}

} // namespace ui
