#include "ui/ListView.h"

#include <array>

#include <commctrl.h>

namespace ui
{

namespace
{

constexpr int kLongestText = 1024; // characters; the control itself shows 259

} // namespace

void ListView::Prepare()
{
    UseExplorerTheme();
    constexpr LPARAM kStyles = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyles, kStyles);
    Clear();
    mColumns = 0;
}

void ListView::Clear()
{
    Send(LVM_DELETEALLITEMS);
    mKeys.clear();
}

void ListView::AddColumn(const std::wstring& header, int width)
{
    std::wstring text = header;
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = text.data();
    column.cx = width;
    SendPointer(LVM_INSERTCOLUMNW, static_cast<WPARAM>(mColumns++), &column);
}

void ListView::FillWidth()
{
    Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(mColumns) - 1, LVSCW_AUTOSIZE_USEHEADER);
}

int ListView::ColumnWidth(int column) const
{
    return static_cast<int>(Send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

void ListView::SetColumnWidth(int column, int pixels)
{
    Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), pixels);
}

int ListView::Add(const std::wstring& text, const std::wstring& key)
{
    std::wstring copy = text;
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = Count();
    item.pszText = copy.data();
    mKeys.push_back(key);
    return static_cast<int>(SendPointer(LVM_INSERTITEMW, 0, &item));
}

void ListView::SetText(int row, int column, const std::wstring& text)
{
    std::wstring copy = text;
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = copy.data();
    SendPointer(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), &item);
}

int ListView::Count() const
{
    return static_cast<int>(Send(LVM_GETITEMCOUNT));
}

std::wstring ListView::TextOf(int row, int column) const
{
    std::array<wchar_t, kLongestText> text = {};
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendPointer(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), &item);
    return text.data();
}

const std::wstring& ListView::KeyOf(int row) const
{
    return mKeys.at(static_cast<size_t>(row));
}

std::optional<int> ListView::Selected() const
{
    const auto row = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    return row >= 0 ? std::optional(row) : std::nullopt;
}

void ListView::Select(int row)
{
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = item.stateMask;
    SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(row), &item);
}

bool ListView::IsSelectionChange(const NMHDR& notification) const
{
    if (notification.hwndFrom != Handle() || notification.code != LVN_ITEMCHANGED)
    {
        return false;
    }
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
    return (change.uChanged & LVIF_STATE) != 0 &&
           ((change.uNewState ^ change.uOldState) & LVIS_SELECTED) != 0;
}

std::optional<int> ListView::NewlySelected(const NMHDR& notification) const
{
    if (!IsSelectionChange(notification))
    {
        return std::nullopt;
    }
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
    return (change.uNewState & LVIS_SELECTED) != 0 && change.iItem >= 0 ? std::optional(change.iItem)
                                                                        : std::nullopt;
}

} // namespace ui
