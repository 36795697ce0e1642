// A run's display that keeps what it was told.
#pragma once

#include "data/RunDisplay.h"

#include <vector>

namespace test_support
{

class RecordingDisplay : public data::RunDisplay
{
  public:
    std::wstring Status;
    std::vector<double> Progress;
    bool IsShown = false;
    long TimesShown = 0;

    void SetStatus(const std::wstring& text) override { Status = text; }
    void ShowProgress(bool visible) override
    {
        IsShown = visible;
        TimesShown += visible ? 1 : 0;
    }
    void SetProgress(double fraction) override { Progress.push_back(fraction); }
    std::wstring CategoryText() const override { return L"Contact"; }
};

} // namespace test_support
