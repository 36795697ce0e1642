// Makes a dialog without an owner modal: while it is shown, the thread's other windows take no input.
// Afterwards they do again, and the window that was active before is active again.
#pragma once

#include "ui/FrontKeeper.h"

#include <vector>

#include <windows.h>

namespace ui
{

class ModalScope
{
  public:
    ModalScope();
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;
    ~ModalScope();

  private:
    HWND mActiveBefore;
    std::vector<HWND> mDisabled;
    FrontKeeper mFrontKeeper;
};

} // namespace ui
