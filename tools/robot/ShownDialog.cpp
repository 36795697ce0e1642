#include "tools/robot/ShownDialog.h"

#include "ui/Busy.h"

#include <algorithm>
#include <array>

#include <commctrl.h>
#include <dlgs.h>

namespace tools
{

namespace
{

constexpr UINT kPatience = 5000;     // milliseconds for an answer
constexpr int kLongestText = 8192;   // characters
constexpr int kMessageText = 0xFFFF; // the text of a message box
constexpr LPARAM kAltIsDown = LPARAM{1} << 29;

bool IsButton(HWND window)
{
    std::array<wchar_t, 16> name = {};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return lstrcmpiW(name.data(), L"Button") == 0;
}

bool IsPushButton(HWND window)
{
    const LONG type = GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK;
    return IsButton(window) && (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON);
}

BOOL CALLBACK CollectButtons(HWND window, LPARAM collected)
{
    if (IsButton(window) && IsWindowVisible(window))
    {
        reinterpret_cast<std::vector<HWND>*>(collected)->push_back(window);
    }
    return TRUE;
}

// Within the window alone: when it closes meanwhile, its key must not reach the dialog below.
HWND FocusOf(HWND window)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return IsChild(window, info.hwndFocus) ? info.hwndFocus : window;
}

int LeftOf(HWND window)
{
    RECT place = {};
    GetWindowRect(window, &place);
    return static_cast<int>(place.left);
}

} // namespace

LRESULT ShownDialog::Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const
{
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kPatience, &result);
    return static_cast<LRESULT>(result);
}

bool ShownDialog::IsOpen() const
{
    return IsWindow(mWindow) != FALSE && IsWindowVisible(mWindow) != FALSE;
}

bool ShownDialog::TakesInput() const
{
    return IsOpen() && IsWindowEnabled(mWindow) != FALSE;
}

bool ShownDialog::IsAtRest() const
{
    const bool atRest = TakesInput() && !ui::Busy::IsIn(mWindow);
    Ask(mWindow, WM_NULL); // answered when the thread is back in a loop of messages
    return atRest;
}

std::wstring ShownDialog::Caption() const
{
    std::array<wchar_t, kLongestText> text = {};
    Ask(mWindow, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

HWND ShownDialog::Control(int id) const
{
    return GetDlgItem(mWindow, id);
}

bool ShownDialog::IsEnabled(int id) const
{
    return IsWindowEnabled(Control(id)) != FALSE;
}

bool ShownDialog::IsVisible(int id) const
{
    return IsWindowVisible(Control(id)) != FALSE;
}

std::wstring ShownDialog::Text(int id) const
{
    std::array<wchar_t, kLongestText> text = {};
    Ask(Control(id), WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

void ShownDialog::Click(int id) const
{
    const HWND control = Control(id);
    if (IsPushButton(control) && IsWindowEnabled(control))
    {
        // As the mouse does: the button takes the focus, and from the others the border of a default button.
        PostMessageW(mWindow, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    }
    PostMessageW(control, BM_CLICK, 0, 0);
}

int ShownDialog::Focused() const
{
    return GetDlgCtrlID(FocusOf(mWindow));
}

void ShownDialog::Press(WORD key) const
{
    PostMessageW(FocusOf(mWindow), WM_KEYDOWN, key, 1);
}

void ShownDialog::PressAlt(wchar_t letter) const
{
    PostMessageW(FocusOf(mWindow), WM_SYSCHAR, letter, kAltIsDown | 1);
}

void ShownDialog::Close() const
{
    PostMessageW(mWindow, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void ShownDialog::Command(int id) const
{
    PostMessageW(mWindow, WM_COMMAND, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(Control(id)));
}

int ShownDialog::Rows(int id) const
{
    return static_cast<int>(Ask(Control(id), LVM_GETITEMCOUNT));
}

std::wstring ShownDialog::Row(int id, int row, int column) const
{
    std::array<wchar_t, kLongestText> text = {};
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    Ask(Control(id), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text.data();
}

std::wstring ShownDialog::ColumnHeader(int id, int column) const
{
    std::array<wchar_t, kLongestText> text = {};
    LVCOLUMNW header = {};
    header.mask = LVCF_TEXT;
    header.pszText = text.data();
    header.cchTextMax = static_cast<int>(text.size());
    Ask(Control(id), LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&header));
    return text.data();
}

void ShownDialog::ChooseRow(int id, int row) const
{
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = item.stateMask;
    Ask(Control(id), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

std::wstring ShownDialog::Tab(int id, int tab) const
{
    std::array<wchar_t, kLongestText> text = {};
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    Ask(Control(id), TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
    return text.data();
}

bool ShownDialog::IsMessageBox() const
{
    return Control(kMessageText) != nullptr;
}

std::wstring ShownDialog::Message() const
{
    return Text(kMessageText);
}

bool ShownDialog::ShowsIcon(const wchar_t* icon) const
{
    for (const int id : {stc1, ico1}) // the number differs between systems
    {
        const HWND picture = Control(id);
        const auto shown = reinterpret_cast<HICON>(Ask(picture, STM_GETICON));
        if (picture != nullptr && shown != nullptr && shown == LoadIconW(nullptr, icon))
        {
            return true;
        }
    }
    return false;
}

std::vector<int> ShownDialog::Buttons() const
{
    std::vector<HWND> buttons;
    EnumChildWindows(mWindow, CollectButtons, reinterpret_cast<LPARAM>(&buttons));
    std::sort(buttons.begin(), buttons.end(), [](HWND a, HWND b) { return LeftOf(a) < LeftOf(b); });
    std::vector<int> ids;
    std::transform(buttons.begin(), buttons.end(), std::back_inserter(ids), GetDlgCtrlID);
    return ids;
}

} // namespace tools
