#include "ui/ModalScope.h"

namespace ui
{

namespace
{

BOOL CALLBACK CollectEnabled(HWND window, LPARAM collected)
{
    if (IsWindowVisible(window) && IsWindowEnabled(window))
    {
        reinterpret_cast<std::vector<HWND>*>(collected)->push_back(window);
    }
    return TRUE;
}

} // namespace

ModalScope::ModalScope() : mActiveBefore(GetActiveWindow())
{
    EnumThreadWindows(GetCurrentThreadId(), CollectEnabled, reinterpret_cast<LPARAM>(&mDisabled));
    for (const HWND window : mDisabled)
    {
        EnableWindow(window, FALSE);
    }
}

ModalScope::~ModalScope()
{
    for (const HWND window : mDisabled)
    {
        EnableWindow(window, TRUE); // fails harmlessly for a window that has gone
    }
    // Before the dialog goes, or the system would activate a window of some other program.
    if (mActiveBefore != nullptr && IsWindowVisible(mActiveBefore) &&
        GetForegroundWindow() == GetActiveWindow())
    {
        SetActiveWindow(mActiveBefore);
    }
}

} // namespace ui
