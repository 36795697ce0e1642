// A dialog is at work for the length of a scope: the pointer is an hourglass, and whatever the user does in
// the dialog is dropped, whichever message loop is running at that moment (the dialog's own, or COM's during
// a call to another process). Other dialogs that the work shows take input as always.
#pragma once

#include <windows.h>

namespace ui
{

class Dialog;

class Busy
{
  public:
    explicit Busy(Dialog& dialog);
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy();

    // Lets the thread's windows paint, at most every few hundredths of a second.
    void KeepPainted();

    static void ShowHourglass();

    // A dialog, of whatever thread, is at work.
    static bool IsIn(HWND dialog) noexcept;

  private:
    Dialog& mDialog;
    HWND mWindow;
    HHOOK mHook;
    HCURSOR mCursorBefore;
    ULONGLONG mPaintedAt = 0; // milliseconds since the system's start
};

} // namespace ui
