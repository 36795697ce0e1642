// A tabbed frame: tabs over an area in which other controls lie.
#pragma once

#include "ui/Control.h"

namespace ui
{

class TabFrame : public Control
{
  public:
    using Control::Control;

    // Adds a tab at the end.
    void AddTab(const std::wstring& caption);
    // The area below the tabs, in the dialog's client coordinates (pixels).
    RECT Area() const;
    // Lets a control fill that area, inside a margin of this many dialog units.
    void Fill(Control& content, int margin) const;

  private:
    int mTabs = 0;
};

} // namespace ui
