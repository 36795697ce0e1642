#include "tests/ui_config/Look.h"

#include <array>

namespace ui_config_tests
{

namespace
{

template<typename T>
LPARAM Pointer(T* data)
{
    return reinterpret_cast<LPARAM>(data);
}

HTREEITEM NextNode(const ShownDialog& dialog, int tree, WPARAM which, HTREEITEM from)
{
    return reinterpret_cast<HTREEITEM>(
        dialog.Ask(dialog.Control(tree), TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(from)));
}

HTREEITEM FirstBelow(const ShownDialog& dialog, int tree, HTREEITEM parent)
{
    return NextNode(dialog, tree, parent != nullptr ? TVGN_CHILD : TVGN_ROOT, parent);
}

} // namespace

bool IsChecked(const ShownDialog& dialog, int list, int row)
{
    const auto state =
        dialog.Ask(dialog.Control(list), LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
    return (state >> 12) == 2;
}

int PictureOf(const ShownDialog& dialog, int list, int row, int column)
{
    LVITEMW item = {};
    item.mask = LVIF_IMAGE;
    item.iItem = row;
    item.iSubItem = column;
    dialog.Ask(dialog.Control(list), LVM_GETITEMW, 0, Pointer(&item));
    return item.iImage >= 0 ? item.iImage : -1;
}

int SelectedRow(const ShownDialog& dialog, int list)
{
    return static_cast<int>(
        dialog.Ask(dialog.Control(list), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

// The theme's name is a property of the window, as an atom.
BOOL CALLBACK FindExplorer(HWND /*window*/, LPWSTR /*name*/, HANDLE value, ULONG_PTR found)
{
    std::array<wchar_t, 32> text = {};
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(value));
    const bool isText = GetAtomNameW(atom, text.data(), static_cast<int>(text.size())) != 0 ||
                        GlobalGetAtomNameW(atom, text.data(), static_cast<int>(text.size())) != 0;
    *reinterpret_cast<bool*>(found) |= isText && lstrcmpiW(text.data(), L"Explorer") == 0;
    return TRUE;
}

bool HasExplorerTheme(HWND control)
{
    bool found = false;
    EnumPropsExW(control, FindExplorer, reinterpret_cast<LPARAM>(&found));
    return found;
}

int EmptyLines(const ShownDialog& dialog, int label)
{
    const HWND window = dialog.Control(label);
    RECT room = {};
    GetClientRect(window, &room);
    const HDC context = GetDC(window);
    const HGDIOBJ before = SelectObject(context, reinterpret_cast<HFONT>(dialog.Ask(window, WM_GETFONT)));
    RECT text = {0, 0, room.right, 0};
    DrawTextW(context, dialog.Text(label).c_str(), -1, &text, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(context, &metrics);
    SelectObject(context, before);
    ReleaseDC(window, context);
    return static_cast<int>((room.bottom - text.bottom) / metrics.tmHeight);
}

bool IsSet(const ShownDialog& dialog, int button)
{
    return dialog.Ask(dialog.Control(button), BM_GETCHECK) == BST_CHECKED;
}

std::vector<std::wstring> Entries(const ShownDialog& dialog, int list)
{
    std::vector<std::wstring> entries;
    const auto count = dialog.Ask(dialog.Control(list), LB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i)
    {
        std::array<wchar_t, 256> text = {};
        dialog.Ask(dialog.Control(list), LB_GETTEXT, static_cast<WPARAM>(i), Pointer(text.data()));
        entries.emplace_back(text.data());
    }
    return entries;
}

void ChooseEntry(const ShownDialog& dialog, int list, int entry)
{
    dialog.Ask(dialog.Control(list), LB_SETCURSEL, static_cast<WPARAM>(entry));
    dialog.Ask(dialog.Handle(), WM_COMMAND, MAKEWPARAM(list, LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(dialog.Control(list)));
}

std::wstring NodeText(const ShownDialog& dialog, int tree, HTREEITEM node)
{
    std::array<wchar_t, 256> text = {};
    TVITEMW item = {};
    item.mask = TVIF_TEXT;
    item.hItem = node;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    dialog.Ask(dialog.Control(tree), TVM_GETITEMW, 0, Pointer(&item));
    return text.data();
}

HTREEITEM FindNode(const ShownDialog& dialog, int tree, HTREEITEM parent, const std::wstring& text)
{
    HTREEITEM node = FirstBelow(dialog, tree, parent);
    while (node != nullptr && NodeText(dialog, tree, node) != text)
    {
        node = NextNode(dialog, tree, TVGN_NEXT, node);
    }
    return node;
}

std::vector<std::wstring> NodesBelow(const ShownDialog& dialog, int tree, HTREEITEM parent)
{
    std::vector<std::wstring> texts;
    for (HTREEITEM node = FirstBelow(dialog, tree, parent); node != nullptr;
         node = NextNode(dialog, tree, TVGN_NEXT, node))
    {
        texts.push_back(NodeText(dialog, tree, node));
    }
    return texts;
}

void SelectNode(const ShownDialog& dialog, int tree, HTREEITEM node)
{
    dialog.Ask(dialog.Control(tree), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node));
}

HTREEITEM SelectedNode(const ShownDialog& dialog, int tree)
{
    return NextNode(dialog, tree, TVGN_CARET, nullptr);
}

void DoubleClickNode(const ShownDialog& dialog, int tree, HTREEITEM node)
{
    const HWND window = dialog.Control(tree);
    RECT place = {};
    *reinterpret_cast<HTREEITEM*>(&place) = node; // where the message wants it
    dialog.Ask(window, TVM_GETITEMRECT, TRUE, Pointer(&place));
    POINT middle = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    const LPARAM at = MAKELPARAM(middle.x, middle.y);
    ClientToScreen(window, &middle);
    SetCursorPos(middle.x, middle.y); // messages carry the place of the pointer
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
    {
        PostMessageW(window, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, at);
    }
}

} // namespace ui_config_tests
