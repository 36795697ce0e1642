// While a dialog or a message box without an owner is on the screen: a user who activates one of the thread's
// windows that take no input (by the task bar, by Alt+Tab) gets the innermost dialog in front of it, instead
// of a window that does not answer.
#pragma once

#include <windows.h>

namespace ui
{

class FrontKeeper
{
  public:
    FrontKeeper();
    FrontKeeper(const FrontKeeper&) = delete;
    FrontKeeper& operator=(const FrontKeeper&) = delete;
    ~FrontKeeper();

  private:
    HHOOK mHook;
};

} // namespace ui
