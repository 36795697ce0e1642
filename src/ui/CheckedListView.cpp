#include "ui/CheckedListView.h"

#include <algorithm>

#include <commctrl.h>
#include <windowsx.h>

namespace ui
{

namespace
{

constexpr UINT_PTR kSubclass = 1;
constexpr UINT kUnchecked = 1;
constexpr UINT kChecked = 2;

} // namespace

void CheckedListView::UseCheckBoxes(IsRowChecked isChecked, Toggled toggled)
{
    mIsChecked = std::move(isChecked);
    mToggled = std::move(toggled);
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    Send(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
    SetWindowSubclass(Handle(), HandleInput, kSubclass, reinterpret_cast<DWORD_PTR>(this));
}

bool CheckedListView::AnswerCell(const NMHDR& notification) const
{
    if (!Answer(notification))
    {
        return false;
    }
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(notification)).item;
    if ((item.mask & LVIF_STATE) != 0 && item.iSubItem == 0 && mIsChecked)
    {
        item.stateMask |= LVIS_STATEIMAGEMASK;
        item.state = INDEXTOSTATEIMAGEMASK(mIsChecked(item.iItem) ? kChecked : kUnchecked);
    }
    return true;
}

std::pair<int, int> CheckedListView::RowsInSight() const
{
    const auto first = static_cast<int>(Send(LVM_GETTOPINDEX));
    const auto last = first + static_cast<int>(Send(LVM_GETCOUNTPERPAGE)); // and one that is in sight in part
    return {first, std::min(last, Count() - 1)};
}

std::optional<int> CheckedListView::Focused() const
{
    const auto row = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    return row >= 0 && row < Count() ? std::optional(row) : std::nullopt;
}

std::vector<int> CheckedListView::SelectedRows() const
{
    std::vector<int> rows;
    auto row = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    while (row >= 0)
    {
        rows.push_back(row);
        row = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED));
    }
    return rows;
}

void CheckedListView::SelectAll()
{
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED;
    item.state = LVIS_SELECTED;
    SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), &item);
}

void CheckedListView::SelectFirst()
{
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    for (const int row : SelectedRows()) // a few, where all of them would take long
    {
        SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(row), &item);
    }
    if (Count() > 0)
    {
        Select(0);
        Send(LVM_ENSUREVISIBLE, 0, FALSE);
    }
}

void CheckedListView::Redraw(int first, int last)
{
    Send(LVM_REDRAWITEMS, static_cast<WPARAM>(first), last);
}

std::optional<int> CheckedListView::ClickedHeader(const NMHDR& notification) const
{
    if (notification.hwndFrom != Handle() || notification.code != LVN_COLUMNCLICK)
    {
        return std::nullopt;
    }
    return reinterpret_cast<const NMLISTVIEW&>(notification).iSubItem;
}

void CheckedListView::ShowOrder(int column, bool isDescending)
{
    const auto header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
    const auto count = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    for (int i = 0; i < count; ++i)
    {
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        item.fmt |= i != column ? 0 : isDescending ? HDF_SORTDOWN : HDF_SORTUP;
        SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    }
}

std::vector<int> CheckedListView::ColumnWidths() const
{
    const auto header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
    const auto count = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    std::vector<int> widths;
    widths.reserve(static_cast<size_t>(count));
    for (int column = 0; column < count; ++column)
    {
        widths.push_back(ColumnWidth(column));
    }
    return widths;
}

LRESULT CALLBACK CheckedListView::HandleInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                              UINT_PTR /*id*/, DWORD_PTR list)
{
    auto& self = *reinterpret_cast<CheckedListView*>(list);
    switch (message)
    {
    case WM_NCDESTROY: RemoveWindowSubclass(window, HandleInput, kSubclass); break;
    case WM_KEYDOWN:
        if (self.HandleKey(wParam))
        {
            return 0;
        }
        break;
    case WM_CHAR:
        if (wParam == L' ')
        {
            return 0; // it has toggled; the list would look for a text
        }
        break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (self.HandleClick(lParam))
        {
            return 0;
        }
        break;
    default: break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

bool CheckedListView::HandleKey(WPARAM key)
{
    if (key == VK_SPACE && Focused())
    {
        Toggle(*Focused());
        return true;
    }
    if (key == L'A' && GetKeyState(VK_CONTROL) < 0)
    {
        SelectAll();
        return true;
    }
    return false;
}

bool CheckedListView::HandleClick(LPARAM place)
{
    LVHITTESTINFO hit = {};
    hit.pt = {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    const auto row = static_cast<int>(SendPointer(LVM_HITTEST, 0, &hit));
    if (row < 0 || (hit.flags & LVHT_ONITEMSTATEICON) == 0 || (hit.flags & LVHT_ONITEMLABEL) != 0)
    {
        return false;
    }
    SetFocus(Handle());
    Toggle(row);
    return true;
}

// Screen readers are told what a list with marks of its own would tell them.
void CheckedListView::Toggle(int row)
{
    mToggled(row);
    NotifyWinEvent(EVENT_OBJECT_STATECHANGE, Handle(), OBJID_CLIENT, row + 1);
}

} // namespace ui
