#include "tools/demo/Conversation.h"

#include "resources/Strings.h"
#include "tools/robot/Picture.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <stdexcept>

namespace tools::demo
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr int kConfirmationLines[] = {
    IDC_MESSAGE_TITLE,        IDC_MESSAGE_TO_OL_TITLE, IDC_MESSAGE_TO_OL_NEW,    IDC_MESSAGE_TO_OL_MODIFY,
    IDC_MESSAGE_TO_SYN_TITLE, IDC_MESSAGE_TO_SYN_NEW,  IDC_MESSAGE_TO_SYN_MODIFY};

// The order of the main dialog's rows.
constexpr const wchar_t* kRows[] = {L"task", L"calendar", L"contact"};

int RowOf(const std::wstring& category)
{
    const auto row = std::find(std::begin(kRows), std::end(kRows), category);
    if (row == std::end(kRows))
    {
        throw std::runtime_error("unknown category");
    }
    return static_cast<int>(row - std::begin(kRows));
}

bool IsFinal(const std::wstring& status)
{
    return status == resources::String(IDS_RUN_SUCCEEDED) ||
           status == resources::String(IDS_RUN_NO_PROFILE) ||
           status == resources::Choose(L"传输操作失败!", L"Translate fail!");
}

bool Has(const ShownDialog& dialog, int control)
{
    return dialog.Control(control) != nullptr;
}

std::wstring RowOfReport(const ShownDialog& report, int row)
{
    constexpr int kColumns = 6;
    std::wstring text = report.Row(IDC_REPORT_LIST, row);
    for (int column = 1; column < kColumns; ++column)
    {
        text += L"|" + report.Row(IDC_REPORT_LIST, row, column);
    }
    return text;
}

} // namespace

Conversation::Conversation(Robot& robot, const Options& options)
    : mRobot(robot), mOptions(options), mMain(robot.WaitForDialog())
{
}

Outcome Conversation::RunCategory(const std::wstring& category)
{
    mMain.Ask(mMain.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(mMain.Control(IDC_SYNC_CATEGORY)),
              TRUE);
    mMain.ChooseRow(IDC_SYNC_CATEGORY, RowOf(category));
    mRobot.WaitUntil("Synchronize is enabled", [&] { return mMain.IsEnabled(IDC_SYNC_START); });
    // The outcome of the run before says nothing about this one.
    mMain.Ask(mMain.Control(IDC_SYNC_STATE), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
    SavePictureOf(mMain, L"main-" + category);

    Outcome outcome;
    const auto start = Clock::now();
    mMain.Click(IDC_SYNC_START);
    mRobot.WaitUntil("the run ends", [&] {
        for (const ShownDialog& dialog : mRobot.Dialogs())
        {
            if (dialog.Handle() != mMain.Handle())
            {
                Answer(dialog, category, outcome);
            }
        }
        const bool isAtRest = mMain.IsAtRest();
        outcome.status = mMain.Text(IDC_SYNC_STATE);
        const bool wasRefused = outcome.status.empty() && !outcome.messages.empty() && isAtRest;
        return IsFinal(outcome.status) || wasRefused;
    });
    outcome.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    outcome.succeeded = outcome.status == resources::String(IDS_RUN_SUCCEEDED);
    SavePictureOf(mMain, L"main-" + category + L"-done");
    if (mOptions.Details)
    {
        LookAtReport(category, outcome);
    }
    return outcome;
}

void Conversation::LookAtChanges(const ShownDialog& confirmation, const std::wstring& category)
{
    const ShownDialog changes = OpenedBy(confirmation, IDC_MESSAGE_DETAILS);
    const auto isRead = [&](int row) { return !changes.Row(IDC_CHANGES_LIST, row, 1).empty(); };
    if (changes.Rows(IDC_CHANGES_LIST) > 0)
    {
        mRobot.WaitUntil("the changes are shown", [&] { return isRead(0); });
        mRobot.WaitUntil("the fields are shown", [&] { return changes.Rows(IDC_CHANGES_FIELDS) > 0; });
    }
    SavePictureOf(changes, L"changes-" + category);
    Leave(changes);
}

void Conversation::LookAtReport(const std::wstring& category, Outcome& outcome)
{
    if (mMain.IsVisible(IDC_SYNC_REPORT))
    {
        const ShownDialog report = OpenedBy(mMain, IDC_SYNC_REPORT);
        outcome.reportSummary = report.Text(IDC_REPORT_SUMMARY);
        for (int row = 0; row < report.Rows(IDC_REPORT_LIST); ++row)
        {
            outcome.reportRows.push_back(RowOfReport(report, row));
        }
        SavePictureOf(report, L"report-" + category);
        Leave(report);
    }
}

void Conversation::Answer(const ShownDialog& dialog, const std::wstring& category, Outcome& outcome)
{
    if (AnswerConfirmation(dialog, category, outcome))
    {
        return;
    }
    SavePictureOf(dialog, L"message-" + category + L"-" + std::to_wstring(++mMessages));
    const int description =
        Has(dialog, IDC_SHOWINFOR_DESCRIPTION) ? IDC_SHOWINFOR_DESCRIPTION : IDC_SHOWERR_DESCRIPTION;
    outcome.messages.push_back(dialog.IsMessageBox() ? dialog.Message() : dialog.Text(description));
    dialog.Click(dialog.IsMessageBox() ? dialog.Buttons().front() : IDOK);
    mRobot.WaitUntilClosed(dialog);
}

bool Conversation::AnswerConfirmation(const ShownDialog& dialog, const std::wstring& category,
                                      Outcome& outcome)
{
    if (!Has(dialog, IDC_MESSAGE_TITLE))
    {
        return false;
    }
    for (const int line : kConfirmationLines)
    {
        if (dialog.IsVisible(line))
        {
            outcome.confirmation.push_back(dialog.Text(line));
        }
    }
    SavePictureOf(dialog, L"confirm-" + category);
    if (mOptions.Details)
    {
        LookAtChanges(dialog, category);
    }
    dialog.Click(mOptions.Decline ? IDCANCEL : IDOK);
    mRobot.WaitUntilClosed(dialog);
    return true;
}

void Conversation::SavePictureOf(const ShownDialog& dialog, const std::wstring& name)
{
    if (!mOptions.ScreensFolder.empty())
    {
        SavePicture(dialog, mOptions.ScreensFolder + L"\\" + name + L".png");
    }
}

void Conversation::CloseMainDialog()
{
    Leave(mMain);
}

} // namespace tools::demo
