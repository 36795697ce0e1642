// A run's display that keeps what it was told.
#pragma once

#include "exchange/Run.h"

#include <functional>
#include <string>
#include <vector>

namespace test_support
{

class RecordingDisplay : public exchange::RunDisplay
{
  public:
    std::wstring Status;
    std::vector<double> Progress;
    bool IsShown = false;
    long TimesShown = 0;
    // All of it in its order: the status texts, "(shown)" and "(hidden)", and "50%".
    std::vector<std::wstring> Events;

    void SetStatus(const std::wstring& text) override
    {
        Status = text;
        Events.push_back(text);
    }
    void ShowProgress(bool visible) override
    {
        Events.emplace_back(visible ? L"(shown)" : L"(hidden)");
        IsShown = visible;
        TimesShown += visible ? 1 : 0;
    }
    void SetProgress(double fraction) override
    {
        Progress.push_back(fraction);
        Events.push_back(std::to_wstring(static_cast<int>(fraction * 100)) + L"%");
    }
    std::wstring CategoryText() const override { return L"Contact"; }
    void Confirm(const exchange::Kind& kind, exchange::Run& run) override { Ask(kind, run, CategoryText()); }
    void TakeReport(exchange::Report&& report) override { Report = std::move(report); }

    // How the user is asked; run::ConfirmChanges is the component's own way.
    std::function<void(const exchange::Kind& kind, exchange::Run& run, const std::wstring& categoryText)> Ask;
    exchange::Report Report;
};

} // namespace test_support
