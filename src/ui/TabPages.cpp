#include "ui/TabPages.h"

#include <commctrl.h>

namespace ui
{

namespace
{

constexpr UINT_PTR kTabPagesSubclass = 1;

// Text boxes that are disabled ask like labels do, but keep their own ground.
bool IsTextBox(HWND control)
{
    return (SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
}

bool LiesOn(HWND tabs, HWND control)
{
    RECT frame;
    RECT place;
    RECT common;
    GetWindowRect(tabs, &frame);
    GetWindowRect(control, &place);
    return IntersectRect(&common, &frame, &place) && EqualRect(&common, &place);
}

} // namespace

// Paints the frame into the context of a control that lies on it, or of the dialog.
void TabPages::PaintInto(HWND target, HDC context)
{
    if (mPainting) // the frame asks the dialog for the ground around its tabs
    {
        return;
    }
    mPainting = true;
    POINT origin = {};
    MapWindowPoints(Handle(), target, &origin, 1);
    POINT before;
    OffsetViewportOrgEx(context, origin.x, origin.y, &before);
    Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context), PRF_CLIENT | PRF_ERASEBKGND);
    SetViewportOrgEx(context, before.x, before.y, nullptr);
    mPainting = false;
}

// Labels ask the dialog for their ground; option buttons and frames let it paint its client area instead.
LRESULT CALLBACK TabPages::GiveGround(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR /*id*/, DWORD_PTR pages)
{
    auto& self = *reinterpret_cast<TabPages*>(pages);
    const auto context = reinterpret_cast<HDC>(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (message == WM_NCDESTROY)
    {
        RemoveWindowSubclass(dialog, GiveGround, kTabPagesSubclass);
    }
    const LRESULT result = DefSubclassProc(dialog, message, wParam, lParam);
    if (message == WM_PRINTCLIENT)
    {
        self.PaintInto(dialog, context);
    }
    else if (message == WM_CTLCOLORSTATIC && LiesOn(self.Handle(), control) && !IsTextBox(control))
    {
        self.PaintInto(control, context);
        SetBkMode(context, TRANSPARENT);
        return reinterpret_cast<LRESULT>(GetStockObject(NULL_BRUSH));
    }
    return result;
}

void TabPages::AddPage(const std::wstring& caption, std::initializer_list<Range> controls)
{
    AddTab(caption);
    SetWindowSubclass(GetParent(Handle()), GiveGround, kTabPagesSubclass, reinterpret_cast<DWORD_PTR>(this));
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
