#include "benchmarks/DialogWatch.h"

#include <cwchar>

#include <commctrl.h>

namespace benchmarks
{

namespace
{

constexpr UINT kShown = WM_APP + 0x2A7; // posted to a dialog by its activation

DialogWatch* gWatch = nullptr;

bool IsDialog(HWND window)
{
    wchar_t name[16] = {};
    GetClassNameW(window, name, ARRAYSIZE(name));
    return std::wcscmp(name, L"#32770") == 0;
}

} // namespace

DialogWatch::DialogWatch(Action action)
    : mAction(std::move(action)),
      mActivations(SetWindowsHookExW(WH_CBT, OnActivation, nullptr, GetCurrentThreadId())),
      mMessages(SetWindowsHookExW(WH_GETMESSAGE, OnMessage, nullptr, GetCurrentThreadId()))
{
    gWatch = this;
}

DialogWatch::~DialogWatch()
{
    gWatch = nullptr;
    UnhookWindowsHookEx(mMessages);
    UnhookWindowsHookEx(mActivations);
}

LRESULT CALLBACK DialogWatch::OnActivation(int code, WPARAM wParam, LPARAM lParam)
{
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && IsDialog(window))
    {
        PostMessageW(window, kShown, 0, 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK DialogWatch::OnMessage(int code, WPARAM wParam, LPARAM lParam)
{
    auto& message = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && (wParam & PM_REMOVE) != 0 && message.message == kShown && gWatch != nullptr)
    {
        message.message = WM_NULL;
        RedrawWindow(message.hwnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        gWatch->mAction(message.hwnd);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void DialogWatch::Press(HWND dialog, int button)
{
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, button)));
}

void DialogWatch::PressUntilClosed(HWND dialog, int button)
{
    constexpr UINT kInterval = 20; // milliseconds
    // The timer's number is the button's, and the timer goes with the window.
    SetTimer(dialog, static_cast<UINT_PTR>(button), kInterval,
             [](HWND window, UINT, UINT_PTR id, DWORD) { Press(window, static_cast<int>(id)); });
}

void DialogWatch::SelectFirstRow(HWND dialog, int list)
{
    LVITEMW row{};
    row.state = LVIS_SELECTED | LVIS_FOCUSED;
    row.stateMask = row.state;
    SendMessageW(GetDlgItem(dialog, list), LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&row));
}

} // namespace benchmarks
