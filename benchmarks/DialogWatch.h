// Tells when a dialog of the calling thread has been shown and painted, without a second thread and without
// waiting: the action runs within the dialog's own message loop. One at a time; used to time the opening of
// dialogs and to press their buttons.
#pragma once

#include <functional>

#include <windows.h>

namespace benchmarks
{

class DialogWatch
{
  public:
    // Called for every dialog that becomes active, as soon as its first message comes out of the queue and
    // everything in it has been painted.
    using Action = std::function<void(HWND dialog)>;

    explicit DialogWatch(Action action);
    DialogWatch(const DialogWatch&) = delete;
    DialogWatch& operator=(const DialogWatch&) = delete;
    ~DialogWatch();

    static void Press(HWND dialog, int button);
    // The same, again and again until the dialog has gone: one that is at work drops what a user does.
    static void PressUntilClosed(HWND dialog, int button);
    // Selects the first row of a list as a click does.
    static void SelectFirstRow(HWND dialog, int list);

  private:
    static LRESULT CALLBACK OnActivation(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OnMessage(int code, WPARAM wParam, LPARAM lParam);

    Action mAction;
    HHOOK mActivations;
    HHOOK mMessages;
};

} // namespace benchmarks
