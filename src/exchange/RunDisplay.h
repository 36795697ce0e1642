// The user as a run sees them: the status line and progress bar of the main dialog, the confirmation, and the
// report at the end. The main dialog implements it.
#pragma once

#include <string>

namespace exchange
{

class Report;
struct Kind;
struct Run;

class RunDisplay
{
  public:
    virtual ~RunDisplay() = default;

    // The status line.
    virtual void SetStatus(const std::wstring& text) = 0;
    // The progress bar, hidden outside a run.
    virtual void ShowProgress(bool visible) = 0;
    // The part of the work that is done, from 0 to 1. Cheap when the picture would not change.
    virtual void SetProgress(double fraction) = 0;
    // The text of the category row that the run is for.
    virtual std::wstring CategoryText() const = 0;
    // Asks whether the run's pending changes are to be written; the answer is the shared state's
    // gChangesAccepted, and stays as it is when the user closes the question. Changes that the user leaves
    // out are pending no longer.
    virtual void Confirm(const Kind& kind, Run& run) = 0;
    // The run is over, and this is its report.
    virtual void TakeReport(Report&& report) = 0;
};

// The progress bar is shown from 0 on for the length of a scope.
class ProgressScope
{
  public:
    explicit ProgressScope(RunDisplay& display) : mDisplay(display)
    {
        mDisplay.SetProgress(0);
        mDisplay.ShowProgress(true);
    }
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;
    ~ProgressScope() { mDisplay.ShowProgress(false); }

  private:
    RunDisplay& mDisplay;
};

// Calls act for the positions 1 to count; the progress bar advances with each of them, whatever act does.
template<typename Act>
void WalkWithProgress(RunDisplay& display, long count, Act&& act)
{
    display.SetProgress(0);
    for (long position = 1; position <= count; ++position)
    {
        act(position);
        display.SetProgress(static_cast<double>(position) / static_cast<double>(count));
    }
}

} // namespace exchange
