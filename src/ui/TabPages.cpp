#include "ui/TabPages.h"

#include <commctrl.h>

namespace ui
{

void TabPages::AddPage(const std::wstring& caption, std::initializer_list<Range> controls)
{
    AddTab(caption);
    mPages.emplace_back(controls);
    ShowPage(0);
}

void TabPages::ShowPage(int page)
{
    Send(TCM_SETCURSEL, static_cast<WPARAM>(page));
    const HWND dialog = GetParent(Handle());
    for (size_t i = 0; i < mPages.size(); ++i)
    {
        for (const Range& range : mPages[i])
        {
            for (int id = range.FirstId; id <= range.LastId; ++id)
            {
                ShowWindow(GetDlgItem(dialog, id), static_cast<int>(i) == page ? SW_SHOW : SW_HIDE);
            }
        }
    }
}

void TabPages::Follow(const NMHDR& notification)
{
    if (notification.hwndFrom == Handle() && notification.code == static_cast<UINT>(TCN_SELCHANGE))
    {
        ShowPage(static_cast<int>(Send(TCM_GETCURSEL)));
    }
}

} // namespace ui
