// A progress bar that takes fractions and is redrawn only when its picture changes.
#pragma once

#include "ui/Control.h"

namespace ui
{

class ProgressBar : public Control
{
  public:
    using Control::Control;

    // From 0 to 1; whatever is not a number between counts as the nearer end.
    void SetFraction(double fraction);

    // The position on a scale of this many steps.
    static int StepOf(double fraction, int steps) noexcept;

  private:
    int mSteps = 0; // the bar's width in pixels
    int mStep = 0;
};

} // namespace ui
