#include "ui/VirtualListView.h"

#include <cwchar>
#include <utility>

#include <commctrl.h>

namespace ui
{

void VirtualListView::Show(int rows, TextOfCell textOf)
{
    mTextOf = std::move(textOf);
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(rows), LVSICF_NOINVALIDATEALL);
    Repaint();
}

bool VirtualListView::Answer(const NMHDR& notification) const
{
    if (notification.hwndFrom != Handle() || notification.code != LVN_GETDISPINFOW)
    {
        return false;
    }
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(notification)).item;
    if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0 && mTextOf)
    {
        const std::wstring text = mTextOf(item.iItem, item.iSubItem);
        const size_t length = text.copy(item.pszText, static_cast<size_t>(item.cchTextMax) - 1);
        item.pszText[length] = L'\0';
    }
    return true;
}

} // namespace ui
