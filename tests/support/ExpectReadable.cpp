#include "tests/support/Drive.h"

#include "automation/Text.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

namespace test_support
{

namespace
{

using automation::ToUtf8;

constexpr int kLongestText = 2048; // characters

struct ShownControl
{
    HWND window;
    int id;
    std::wstring className;
    std::wstring text;
    RECT place; // in the dialog's client area
};

struct Collection
{
    const ShownDialog& dialog;
    std::vector<ShownControl> controls;
};

BOOL CALLBACK Collect(HWND window, LPARAM parameter)
{
    auto& collection = *reinterpret_cast<Collection*>(parameter);
    const HWND dialog = collection.dialog.Handle();
    if (GetParent(window) != dialog || !IsWindowVisible(window))
    {
        return TRUE;
    }
    std::array<wchar_t, 64> className = {};
    GetClassNameW(window, className.data(), static_cast<int>(className.size()));
    std::array<wchar_t, kLongestText> text = {};
    collection.dialog.Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    RECT place = {};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    collection.controls.push_back({window, GetDlgCtrlID(window), className.data(), text.data(), place});
    return TRUE;
}

std::vector<ShownControl> ControlsOf(const ShownDialog& dialog)
{
    Collection collection = {dialog, {}};
    EnumChildWindows(dialog.Handle(), Collect, reinterpret_cast<LPARAM>(&collection));
    return collection.controls;
}

bool IsA(const ShownControl& control, const wchar_t* className)
{
    return lstrcmpiW(control.className.c_str(), className) == 0;
}

DWORD ButtonTypeOf(const ShownControl& control)
{
    return static_cast<DWORD>(GetWindowLongW(control.window, GWL_STYLE)) & BS_TYPEMASK;
}

// What the control takes beside its text, in pixels of width: a push button's borders, the mark of an option.
int WidthBesideText(const ShownControl& control)
{
    if (!IsA(control, L"Button"))
    {
        return 0;
    }
    const DWORD type = ButtonTypeOf(control);
    const bool isPush = type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
    return isPush ? 8 : GetSystemMetrics(SM_CXMENUCHECK) + 4;
}

SIZE TextExtent(const ShownDialog& dialog, const ShownControl& control, int width)
{
    const auto font = reinterpret_cast<HFONT>(dialog.Ask(control.window, WM_GETFONT));
    const HDC context = GetDC(control.window);
    const HGDIOBJ before = SelectObject(context, font);
    const auto style = static_cast<DWORD>(GetWindowLongW(control.window, GWL_STYLE));
    const bool isStatic = IsA(control, L"Static");
    UINT format = DT_CALCRECT | DT_EXPANDTABS;
    format |= isStatic ? DT_WORDBREAK : DT_SINGLELINE;
    format |= isStatic && (style & SS_NOPREFIX) != 0 ? DT_NOPREFIX : 0;
    RECT extent = {0, 0, width, 0};
    DrawTextW(context, control.text.c_str(), -1, &extent, format);
    SelectObject(context, before);
    ReleaseDC(control.window, context);
    return {extent.right, extent.bottom};
}

void ExpectTextFits(const ShownDialog& dialog, const ShownControl& control)
{
    const bool isFrame = IsA(control, L"Button") && ButtonTypeOf(control) == BS_GROUPBOX;
    if (control.text.empty() || isFrame || (!IsA(control, L"Static") && !IsA(control, L"Button")))
    {
        return; // lists and text boxes scroll
    }
    const int width = static_cast<int>(control.place.right - control.place.left) - WidthBesideText(control);
    const int height = static_cast<int>(control.place.bottom - control.place.top);
    const SIZE extent = TextExtent(dialog, control, width);
    EXPECT_LE(extent.cx, width) << "clipped at the right: " << ToUtf8(control.text);
    EXPECT_LE(extent.cy, height) << "clipped at the bottom: " << ToUtf8(control.text);
}

void ExpectInside(const ShownDialog& dialog, const ShownControl& control)
{
    RECT client = {};
    GetClientRect(dialog.Handle(), &client);
    EXPECT_TRUE(control.place.left >= 0 && control.place.top >= 0 && control.place.right <= client.right &&
                control.place.bottom <= client.bottom)
        << "control " << control.id << " leaves the dialog " << ToUtf8(dialog.Caption());
}

// The letter after a single "&"; 0 for none.
wchar_t AcceleratorOf(const std::wstring& text)
{
    for (size_t i = 0; i + 1 < text.size(); ++i)
    {
        if (text[i] == L'&' && text[i + 1] != L'&')
        {
            return automation::UpperCased(text.substr(i + 1, 1)).front();
        }
        i += text[i] == L'&' ? 1 : 0;
    }
    return 0;
}

bool HasPrefix(const ShownControl& control)
{
    const auto style = static_cast<DWORD>(GetWindowLongW(control.window, GWL_STYLE));
    return IsA(control, L"Button") || (IsA(control, L"Static") && (style & SS_NOPREFIX) == 0);
}

} // namespace

void ExpectReadable(const ShownDialog& dialog, const std::wstring& sharedLetters)
{
    std::map<wchar_t, std::wstring> accelerators;
    for (const ShownControl& control : ControlsOf(dialog))
    {
        ExpectTextFits(dialog, control);
        ExpectInside(dialog, control);
        const wchar_t accelerator = HasPrefix(control) ? AcceleratorOf(control.text) : L'\0';
        if (accelerator != 0 && sharedLetters.find(accelerator) == std::wstring::npos)
        {
            const auto [entry, isNew] = accelerators.emplace(accelerator, control.text);
            EXPECT_TRUE(isNew) << ToUtf8(control.text) << " and " << ToUtf8(entry->second)
                               << " share an accelerator in " << ToUtf8(dialog.Caption());
        }
    }
}

} // namespace test_support
