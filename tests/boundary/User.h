// The user in front of the component's dialogs, for the script of a robot: starts a run, answers what comes
// up, reads what it says, leaves by Escape.
#pragma once

#include "tools/robot/Robot.h"

#include <functional>
#include <string>
#include <vector>

namespace boundary_tests
{

using tools::Robot;
using tools::ShownDialog;

// The messages and the status that one run shows.
struct Seen
{
    std::vector<std::wstring> messages; // of message boxes and message dialogs
    std::wstring status;                // empty where the run was refused
    bool wasAsked = false;              // the confirmation came up
};

// The texts of the status line after a run.
std::wstring SuccessStatus();
std::wstring FailureStatus();
std::wstring NoProfileStatus();

class User
{
  public:
    // The main dialog is about to be shown.
    explicit User(Robot& robot);

    // kind: "contact", "task" or "calendar". The function runs while the confirmation is open, which is
    // accepted afterwards.
    Seen Run(const std::wstring& kind, const std::function<void()>& atConfirmation = {});
    // The button that is pressed in a message box which has it; the first one of any other box.
    void AnswerBoxesBy(int button) { mBoxAnswer = button; }
    // Chooses a kind's row, which enables the buttons.
    void ChooseKind(const std::wstring& kind) const;
    // Presses Escape until the dialog has gone.
    void Leave(const ShownDialog& dialog) const;
    void Leave() const { Leave(mMain); }
    // The dialog that a button opens.
    ShownDialog Open(const ShownDialog& dialog, int button) const;

    const ShownDialog& Main() const noexcept { return mMain; }

  private:
    void Answer(const ShownDialog& dialog, Seen& seen, const std::function<void()>& atConfirmation) const;
    bool HasEnded(Seen& seen) const;

    Robot& mRobot;
    ShownDialog mMain;
    int mBoxAnswer = IDOK;
};

} // namespace boundary_tests
