// The user's part of the demo, played by the robot: for each kind of data one run in the main dialog, with
// the confirmation answered and every message read.
#pragma once

#include "tools/demo/Options.h"
#include "tools/robot/Robot.h"

#include <functional>
#include <string>
#include <vector>

namespace tools::demo
{

// The messages and the status that one run shows.
struct Outcome
{
    std::vector<std::wstring> confirmation; // the lines of the confirmation dialog
    std::vector<std::wstring> messages;     // of the message boxes and message dialogs
    std::wstring status;                    // the status line afterwards
    // With Options::Details, of a run that has something to tell: the summary, and the rows of the list,
    // cells separated by "|".
    std::wstring reportSummary;
    std::vector<std::wstring> reportRows;
    bool succeeded = false; // the status is the success text
    double seconds = 0;
};

class Conversation
{
  public:
    // robot: the running script's robot. The main dialog is about to be shown or is shown.
    Conversation(Robot& robot, const Options& options);

    // One run of a kind ("contact", "task" or "calendar").
    Outcome RunCategory(const std::wstring& category);
    // Opens every dialog of the configuration of every kind and leaves it by Cancel.
    void Tour();
    void CloseMainDialog();

  private:
    void Answer(const ShownDialog& dialog, const std::wstring& category, Outcome& outcome);
    bool AnswerConfirmation(const ShownDialog& dialog, const std::wstring& category, Outcome& outcome);
    // Opens the list of changes from the confirmation.
    void LookAtChanges(const ShownDialog& confirmation, const std::wstring& category);
    // Opens the report, if the run has something to tell.
    void LookAtReport(const std::wstring& category, Outcome& outcome);
    void TourKind(const ShownDialog& configure, int row, const std::wstring& kind);
    // The dialog that a button opens.
    ShownDialog OpenedBy(const ShownDialog& dialog, int control);
    // By Cancel.
    void Leave(const ShownDialog& dialog);
    void SavePictureOf(const ShownDialog& dialog, const std::wstring& name);

    Robot& mRobot;
    const Options& mOptions;
    ShownDialog mMain;
    int mMessages = 0;
};

} // namespace tools::demo
