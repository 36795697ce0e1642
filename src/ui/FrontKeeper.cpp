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

// Two windows of a thread: its innermost dialog, to which alone the user can turn, and the uppermost of the
// others.
struct Windows
{
    HWND innermost = nullptr;
    HWND next = nullptr;
};

// Windows are enumerated from the front to the back.
BOOL CALLBACK Find(HWND window, LPARAM found)
{
    auto& windows = *reinterpret_cast<Windows*>(found);
    if (IsWindowVisible(window))
    {
        const bool takesInput = IsDialog(window) && IsWindowEnabled(window);
        HWND& place = takesInput ? windows.innermost : windows.next;
        place = place == nullptr ? window : place;
    }
    return windows.innermost == nullptr || windows.next == nullptr;
}

Windows OfThisThread()
{
    Windows windows;
    EnumThreadWindows(GetCurrentThreadId(), Find, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

void Raise(HWND window)
{
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// Some systems give the input to the dialog when the user chooses the host's window, and leave that in front
// of the dialog. They raise a dialog only if it is not the first window already, so the other one is raised
// before.
void RaiseOverOthers(const Windows& windows)
{
    if (windows.next != nullptr)
    {
        Raise(windows.next);
    }
    Raise(windows.innermost);
}

void KeepInFront(HWND activated, HWND before)
{
    const Windows windows = OfThisThread();
    if (windows.innermost == nullptr)
    {
        return;
    }
    if (!IsWindowEnabled(activated))
    {
        SetForegroundWindow(windows.innermost);
    }
    else if (activated == windows.innermost &&
             GetWindowThreadProcessId(before, nullptr) != GetCurrentThreadId())
    {
        RaiseOverOthers(windows);
    }
}

LRESULT CALLBACK FollowActivation(int code, WPARAM isOwn, LPARAM parameter)
{
    const auto& handled = *reinterpret_cast<const CWPRETSTRUCT*>(parameter);
    if (code == HC_ACTION && handled.message == WM_ACTIVATE && LOWORD(handled.wParam) != WA_INACTIVE)
    {
        KeepInFront(handled.hwnd, reinterpret_cast<HWND>(handled.lParam));
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
