// Uses the dialogs of the thread that makes it, from a second thread and along a script, where no user does.
// The script waits for what must appear, with a deadline; when it fails, the robot closes everything that is
// shown, so that the thread comes out of its dialogs, and the failure comes out of Finish.
#pragma once

#include "tools/robot/ShownDialog.h"

#include <atomic>
#include <chrono>
#include <exception>
#include <functional>
#include <string>
#include <thread>

namespace tools
{

class Robot
{
  public:
    using Script = std::function<void(Robot& robot)>;

    // The script starts at once.
    explicit Robot(Script script, std::chrono::milliseconds patience = std::chrono::seconds(20));
    Robot(const Robot&) = delete;
    Robot& operator=(const Robot&) = delete;
    // Finishes, without the failure.
    ~Robot();

    // Waits for the script's end; throws what the script threw, std::runtime_error for a passed deadline.
    void Finish();

    // For the script: the dialog that takes input, when there is one; with this caption; other than one that
    // is known already.
    ShownDialog WaitForDialog();
    ShownDialog WaitForDialog(const std::wstring& caption);
    ShownDialog WaitForDialogAfter(const ShownDialog& known);
    void WaitUntilClosed(const ShownDialog& dialog);
    // what: for the text of the failure.
    void WaitUntil(const std::string& what, const std::function<bool()>& condition);

    // The dialogs that take input on the robot's thread at this moment.
    std::vector<ShownDialog> Dialogs() const;

  private:
    void RunScript(const Script& script);
    void CloseEverything();
    ShownDialog WaitForDialogThat(const std::string& what,
                                  const std::function<bool(const ShownDialog&)>& matches);

    DWORD mDriven; // the thread whose dialogs are used
    std::chrono::milliseconds mPatience;
    std::atomic<bool> mEnded{false};
    std::atomic<bool> mFinishing{false};
    std::exception_ptr mFailure;
    std::thread mThread;
};

} // namespace tools
