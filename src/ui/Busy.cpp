#include "ui/Busy.h"

#include "ui/Dialog.h"

namespace ui
{

namespace
{

constexpr wchar_t kBusyProperty[] = L"Telvix.Busy";
constexpr ULONGLONG kPaintInterval = 40; // milliseconds
constexpr ULONGLONG kPaintAtMost = 40;   // milliseconds; a flood of messages must not stop the work

bool IsUserInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

bool IsInBusyDialog(HWND window)
{
    const HWND root = window != nullptr ? GetAncestor(window, GA_ROOT) : nullptr;
    return root != nullptr && Busy::IsIn(root);
}

LRESULT CALLBACK DropInput(int code, WPARAM removal, LPARAM parameter)
{
    auto& message = *reinterpret_cast<MSG*>(parameter);
    if (code == HC_ACTION && IsUserInput(message.message) && IsInBusyDialog(message.hwnd))
    {
        message.message = WM_NULL;
    }
    return CallNextHookEx(nullptr, code, removal, parameter);
}

// Handles waiting messages; the hook has dropped the busy dialog's input from them.
void HandleWaitingMessages()
{
    const ULONGLONG end = GetTickCount64() + kPaintAtMost;
    MSG message;
    while (GetTickCount64() < end && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        if (message.message == WM_QUIT)
        {
            PostQuitMessage(static_cast<int>(message.wParam)); // for the loop that it is meant for
            return;
        }
        DispatchMessageW(&message);
    }
}

void RemoveWaiting(UINT first, UINT last)
{
    MSG message;
    while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE | PM_NOYIELD))
    {
        if (message.message == WM_QUIT) // comes whatever is asked for, and is meant for another loop
        {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
    }
}

} // namespace

Busy::Busy(Dialog& dialog)
    : mDialog(dialog),
      mWindow(dialog.Handle()),
      mHook(SetWindowsHookExW(WH_GETMESSAGE, DropInput, nullptr, GetCurrentThreadId())),
      mCursorBefore(SetCursor(LoadCursorW(nullptr, IDC_WAIT)))
{
    SetPropW(mWindow, kBusyProperty, mWindow);
    mDialog.mBusy = this;
}

Busy::~Busy()
{
    // Clicks and keys from the time of the work must not take effect after it.
    HandleWaitingMessages();
    RemoveWaiting(WM_KEYFIRST, WM_KEYLAST);
    RemoveWaiting(WM_MOUSEFIRST, WM_MOUSELAST);
    UnhookWindowsHookEx(mHook);
    RemovePropW(mWindow, kBusyProperty);
    mDialog.mBusy = nullptr;
    SetCursor(mCursorBefore);
}

void Busy::KeepPainted()
{
    const ULONGLONG now = GetTickCount64();
    if (now - mPaintedAt >= kPaintInterval)
    {
        HandleWaitingMessages();
        mPaintedAt = GetTickCount64();
    }
}

void Busy::ShowHourglass()
{
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
}

bool Busy::IsIn(HWND dialog) noexcept
{
    return GetPropW(dialog, kBusyProperty) != nullptr;
}

} // namespace ui
