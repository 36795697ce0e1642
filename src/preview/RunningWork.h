// The work that runs on the window of changes step by step: its progress bar and its button "Stop". There is
// one at a time.
#pragma once

#include "preview/Work.h"
#include "ui/ProgressBar.h"

#include <functional>
#include <memory>

namespace automation
{
class Error;
}

namespace preview
{

class RunningWork
{
  public:
    using EnableChoices = std::function<void(bool enabled)>;

    // enableChoices: disables, and enables again, the controls that the user must not use meanwhile.
    RunningWork(const ui::Dialog& dialog, EnableChoices enableChoices);

    // Writes the caption.
    void SetUp();

    bool IsRunning() const noexcept { return mWork != nullptr; }
    // Shows the progress and gives the button the focus. The work itself runs in DoStep.
    void Start(std::unique_ptr<Work> work);
    // Works for some hundredths of a second; true when the work has ended, by itself, by Stop or by an error,
    // which is shown. Its controls are hidden then, and the focus is where it was before. Call while it runs.
    bool DoStep();
    // The step that runs, or the next one, is the last; safe during a step, which may be waiting for Outlook.
    void Stop() noexcept { mIsStopped = true; }

    // Moves its controls down by a number of pixels, or up for a negative number.
    void MoveDown(int pixels);

    // Tells the user that the list could not be saved.
    static void ShowError(const automation::Error& error);

  private:
    bool StepOrTell();
    void End();

    const ui::Dialog& mDialog;
    EnableChoices mEnableChoices;
    ui::ProgressBar prgbarReading;
    ui::Button cmdStop;
    std::unique_ptr<Work> mWork;
    HWND mFocusBefore = nullptr;
    bool mIsStopped = false;
};

} // namespace preview
