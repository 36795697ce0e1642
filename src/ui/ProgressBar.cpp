#include "ui/ProgressBar.h"

#include <commctrl.h>

namespace ui
{

int ProgressBar::StepOf(double fraction, int steps) noexcept
{
    if (!(fraction > 0))
    {
        return 0; // a division of nothing by nothing included
    }
    return fraction < 1 ? static_cast<int>(fraction * steps) : steps;
}

void ProgressBar::SetFraction(double fraction)
{
    if (mSteps == 0)
    {
        const RECT place = Place();
        mSteps = static_cast<int>(place.right - place.left);
        Send(PBM_SETRANGE32, 0, mSteps);
    }
    const int step = StepOf(fraction, mSteps);
    if (step != mStep)
    {
        mStep = step;
        Send(PBM_SETPOS, static_cast<WPARAM>(step));
    }
}

} // namespace ui
