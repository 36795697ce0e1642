#include "tests/boundary/User.h"

#include "resources/Strings.h"

#include <algorithm>
#include <array>

namespace boundary_tests
{

namespace
{

// The order of the main dialog's rows.
constexpr std::array<const wchar_t*, 3> kRows = {L"task", L"calendar", L"contact"};

int RowOf(const std::wstring& kind)
{
    return static_cast<int>(std::ranges::find(kRows, kind) - kRows.begin());
}

bool Has(const ShownDialog& dialog, int control)
{
    return dialog.Control(control) != nullptr;
}

} // namespace

std::wstring SuccessStatus()
{
    return resources::String(IDS_RUN_SUCCEEDED);
}

std::wstring FailureStatus()
{
    return resources::Choose(L"传输操作失败!", L"Translate fail!");
}

std::wstring NoProfileStatus()
{
    return resources::String(IDS_RUN_NO_PROFILE);
}

User::User(Robot& robot) : mRobot(robot), mMain(robot.WaitForDialog()) {}

void User::ChooseKind(const std::wstring& kind) const
{
    mMain.ChooseRow(IDC_SYNC_CATEGORY, RowOf(kind));
    mRobot.WaitUntil("the buttons are enabled", [&] { return mMain.IsEnabled(IDC_SYNC_START); });
}

Seen User::Run(const std::wstring& kind, const std::function<void()>& atConfirmation)
{
    ChooseKind(kind);
    // The outcome of the run before says nothing about this one.
    mMain.Ask(mMain.Control(IDC_SYNC_STATE), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
    Seen seen;
    mMain.Click(IDC_SYNC_START);
    mRobot.WaitUntil("the run ends", [&] {
        for (const ShownDialog& dialog : mRobot.Dialogs())
        {
            if (dialog.Handle() != mMain.Handle())
            {
                Answer(dialog, seen, atConfirmation);
            }
        }
        return HasEnded(seen);
    });
    return seen;
}

bool User::HasEnded(Seen& seen) const
{
    if (!mMain.IsOpen())
    {
        return true;
    }
    const bool isAtRest = mMain.IsAtRest();
    seen.status = mMain.Text(IDC_SYNC_STATE);
    const bool isFinal =
        seen.status == SuccessStatus() || seen.status == FailureStatus() || seen.status == NoProfileStatus();
    return isFinal || (seen.status.empty() && !seen.messages.empty() && isAtRest);
}

void User::Answer(const ShownDialog& dialog, Seen& seen, const std::function<void()>& atConfirmation) const
{
    if (Has(dialog, IDC_MESSAGE_TITLE))
    {
        seen.wasAsked = true;
        if (atConfirmation)
        {
            atConfirmation();
        }
        dialog.Click(IDOK);
    }
    else
    {
        const int description =
            Has(dialog, IDC_SHOWINFOR_DESCRIPTION) ? IDC_SHOWINFOR_DESCRIPTION : IDC_SHOWERR_DESCRIPTION;
        seen.messages.push_back(dialog.IsMessageBox() ? dialog.Message() : dialog.Text(description));
        dialog.Click(dialog.IsMessageBox() && !Has(dialog, mBoxAnswer) ? dialog.Buttons().front()
                                                                       : mBoxAnswer);
    }
    mRobot.WaitUntilClosed(dialog);
}

void User::Leave(const ShownDialog& dialog) const
{
    mRobot.WaitUntil("Escape closes the dialog", [&] {
        if (dialog.TakesInput())
        {
            dialog.Press(VK_ESCAPE);
        }
        return !dialog.IsOpen();
    });
}

ShownDialog User::Open(const ShownDialog& dialog, int button) const
{
    dialog.Click(button);
    return mRobot.WaitForDialogAfter(dialog);
}

} // namespace boundary_tests
