#include "ui/ProgressBar.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

TEST(ProgressBar, AFractionIsAStepAndOtherNumbersAreTheNearerEnd)
{
    using ui::ProgressBar;
    EXPECT_EQ(0, ProgressBar::StepOf(0, 200));
    EXPECT_EQ(100, ProgressBar::StepOf(0.5, 200));
    EXPECT_EQ(199, ProgressBar::StepOf(0.999, 200));
    EXPECT_EQ(200, ProgressBar::StepOf(1, 200));
    EXPECT_EQ(200, ProgressBar::StepOf(1e9, 200));
    EXPECT_EQ(0, ProgressBar::StepOf(-1, 200));
    EXPECT_EQ(0, ProgressBar::StepOf(std::numeric_limits<double>::quiet_NaN(), 200));
}

} // namespace
