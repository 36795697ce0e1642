#include "ui/RowPainting.h"

#include <array>

#include <commctrl.h>
#include <uxtheme.h>
#include <vsstyle.h>

namespace ui
{

namespace
{

constexpr int kPartsOfWindow = 3; // of four; the rest is the colour of a selected row with the focus

BYTE Mixed(BYTE window, BYTE highlight)
{
    return static_cast<BYTE>((window * kPartsOfWindow + highlight) / (kPartsOfWindow + 1));
}

COLORREF GroundOfSelectedRow()
{
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    return RGB(Mixed(GetRValue(window), GetRValue(highlight)), Mixed(GetGValue(window), GetGValue(highlight)),
               Mixed(GetBValue(window), GetBValue(highlight)));
}

bool IsOfClass(HWND window, const wchar_t* className)
{
    std::array<wchar_t, 32> name = {};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return lstrcmpiW(name.data(), className) == 0;
}

bool ThemePaintsRows(HWND window, const wchar_t* classes, int part)
{
    const HTHEME theme = OpenThemeData(window, classes);
    const bool paints = theme != nullptr && IsThemePartDefined(theme, part, 0);
    if (theme != nullptr)
    {
        CloseThemeData(theme);
    }
    return paints;
}

// Details: NMLVCUSTOMDRAW or NMTVCUSTOMDRAW.
template<typename Details>
LRESULT Paint(const NMHDR& notification, bool themed, bool (*isSelected)(const Details& details))
{
    auto& details = reinterpret_cast<Details&>(const_cast<NMHDR&>(notification));
    if (details.nmcd.dwDrawStage == CDDS_PREPAINT)
    {
        return themed ? CDRF_DODEFAULT : CDRF_NOTIFYITEMDRAW;
    }
    if (details.nmcd.dwDrawStage == CDDS_ITEMPREPAINT && GetFocus() != notification.hwndFrom &&
        isSelected(details))
    {
        details.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
        details.clrText = GetSysColor(COLOR_WINDOWTEXT);
        details.clrTextBk = GroundOfSelectedRow();
        return CDRF_NEWFONT;
    }
    return CDRF_DODEFAULT;
}

bool IsRowSelected(const NMLVCUSTOMDRAW& details)
{
    return SendMessageW(details.nmcd.hdr.hwndFrom, LVM_GETITEMSTATE, details.nmcd.dwItemSpec,
                        LVIS_SELECTED) != 0;
}

bool IsNodeSelected(const NMTVCUSTOMDRAW& details)
{
    return SendMessageW(details.nmcd.hdr.hwndFrom, TVM_GETNEXTITEM, TVGN_CARET, 0) ==
           static_cast<LRESULT>(details.nmcd.dwItemSpec);
}

} // namespace

LRESULT PaintRow(const NMHDR& notification)
{
    const HWND window = notification.hwndFrom;
    if (IsOfClass(window, WC_LISTVIEWW))
    {
        return Paint<NMLVCUSTOMDRAW>(notification, ThemePaintsRows(window, L"ListView", LVP_LISTITEM),
                                     &IsRowSelected);
    }
    if (IsOfClass(window, WC_TREEVIEWW))
    {
        return Paint<NMTVCUSTOMDRAW>(notification, ThemePaintsRows(window, L"TreeView", TVP_TREEITEM),
                                     &IsNodeSelected);
    }
    return CDRF_DODEFAULT;
}

} // namespace ui
