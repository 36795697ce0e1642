// For tests of dialogs: the test's own thread shows them, a robot uses them.
#pragma once

#include "tools/robot/Robot.h"

#include <functional>
#include <string>

namespace test_support
{

using tools::Robot;
using tools::ShownDialog;

// Runs action on this thread while the script uses the dialogs that it shows; throws what the script threw.
void Drive(Robot::Script script, const std::function<void()>& action);

// Saves a picture of the dialog as NAME.png in the directory that the environment variable TELVIX_PICTURES
// names; without the variable it does nothing.
void Photograph(const ShownDialog& dialog, const std::string& name);

// Checks that a dialog is readable in its language and font: each visible text fits its
// control, each control lies inside the dialog, no two visible controls share an accelerator (letters that
// the host contract gives twice excepted, in upper case). Failures are reported as test failures.
void ExpectReadable(const ShownDialog& dialog, const std::wstring& sharedLetters = {});

// Runs functions on the thread that made it, whatever modal loop that thread is in.
class MainThread
{
  public:
    MainThread();
    MainThread(const MainThread&) = delete;
    MainThread& operator=(const MainThread&) = delete;
    ~MainThread();

    // Returns when the function has; for the script of a robot.
    void Invoke(const std::function<void()>& function) const;
    // Returns at once.
    void Post(std::function<void()> function) const;

  private:
    HWND mWindow;
};

} // namespace test_support
