#include "ui/FrontKeeper.h"

#include <array>

namespace ui
{

namespace
{

bool IsDialog(HWND window)
{
    std::array<wchar_t, 8> name = {};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return lstrcmpW(name.data(), L"#32770") == 0;
}

// The others are disabled by it.
BOOL CALLBACK FindInnermost(HWND window, LPARAM found)
{
    if (!IsDialog(window) || !IsWindowVisible(window) || !IsWindowEnabled(window))
    {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

void BringInnermostToFront()
{
    HWND innermost = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindInnermost, reinterpret_cast<LPARAM>(&innermost));
    if (innermost != nullptr)
    {
        SetForegroundWindow(innermost);
    }
}

LRESULT CALLBACK FollowActivation(int code, WPARAM isOwn, LPARAM parameter)
{
    const auto& handled = *reinterpret_cast<const CWPRETSTRUCT*>(parameter);
    if (code == HC_ACTION && handled.message == WM_ACTIVATE && LOWORD(handled.wParam) != WA_INACTIVE &&
        !IsWindowEnabled(handled.hwnd))
    {
        BringInnermostToFront();
    }
    return CallNextHookEx(nullptr, code, isOwn, parameter);
}

} // namespace

FrontKeeper::FrontKeeper()
    : mHook(SetWindowsHookExW(WH_CALLWNDPROCRET, FollowActivation, nullptr, GetCurrentThreadId()))
{
}

FrontKeeper::~FrontKeeper()
{
    UnhookWindowsHookEx(mHook);
}

} // namespace ui
