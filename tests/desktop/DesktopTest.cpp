// On a desktop with a window manager, where windows are activated from outside: the dialogs have no owner,
// and the host's window, which takes no input meanwhile, must never hide them.
#include "automation/Text.h"
#include "tests/support/Drive.h"
#include "tests/support/HostWindow.h"
#include "tests/support/ProbeDialog.h"
#include "ui/ShowMessageBox.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace
{

using test_support::Drive;
using test_support::HostWindow;
using test_support::Robot;
using test_support::ShownDialog;

constexpr wchar_t kHostTitle[] = L"Window of the host";
constexpr wchar_t kDialogTitle[] = L"Dialog without an owner";
constexpr wchar_t kOtherTitle[] = L"Window of another program"; // shown by run.sh

class DesktopDialog : public test_support::ProbeDialog
{
  public:
    using ProbeDialog::ProbeDialog;

  private:
    void OnInit() override { SetWindowTextW(Handle(), kDialogTitle); }
};

std::wstring Variable(const wchar_t* name)
{
    wchar_t text[MAX_PATH] = {};
    GetEnvironmentVariableW(name, text, ARRAYSIZE(text));
    return text;
}

void Start(std::wstring commandLine)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &startup, &process))
        << GetLastError();
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

// Has run.sh ask the window manager. Its answer is a file: Wine hands out neither the end nor the output of a
// program outside.
std::wstring AskDesktop(Robot& robot, const std::wstring& question, const std::wstring& title = {})
{
    const std::filesystem::path answer = Variable(L"TELVIX_DESKTOP_ANSWER");
    std::filesystem::remove(answer);
    Start(Variable(L"TELVIX_DESKTOP_SCRIPT") + L" " + question + L" \"" + title + L"\"");
    robot.WaitUntil("the window manager's answer", [&] { return std::filesystem::exists(answer); });
    std::string line;
    std::ifstream file(answer);
    std::getline(file, line);
    return automation::FromUtf8(line);
}

// As the user does on the task bar: the window manager activates and raises the window.
void Choose(Robot& robot, const std::wstring& title)
{
    EXPECT_EQ(L"chosen", AskDesktop(robot, L"choose", title));
}

void WaitUntilInFront(Robot& robot, const std::wstring& title)
{
    robot.WaitUntil(automation::ToUtf8(title) + " in front",
                    [&] { return AskDesktop(robot, L"front") == title; });
}

// Twice, since the order of the windows differs the second time. A choice of the host's window while the
// dialog takes the keys is not tried: Wine leaves the keys with the dialog and tells the program nothing.
void ExpectInFrontOfTheHost(Robot& robot, const ShownDialog& dialog, const std::wstring& title)
{
    WaitUntilInFront(robot, title);
    for (int i = 0; i < 2; ++i)
    {
        Choose(robot, kOtherTitle);
        WaitUntilInFront(robot, kOtherTitle);
        Choose(robot, kHostTitle);
        WaitUntilInFront(robot, title);
        robot.WaitUntil("the dialog to take the keys",
                        [&] { return GetForegroundWindow() == dialog.Handle(); });
    }
}

} // namespace

TEST(DialogOnADesktop, IsInFrontOfTheHostWhenTheUserChoosesTheHostsWindow)
{
    const HostWindow host(kHostTitle, 900, 700);
    DesktopDialog probe;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            ExpectInFrontOfTheHost(robot, dialog, kDialogTitle);
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
}

TEST(DialogOnADesktop, IsBelowItsMessageBoxWhenTheUserChoosesTheHostsWindow)
{
    const HostWindow host(kHostTitle, 900, 700);
    DesktopDialog probe([] { ui::ShowMessageBox(L"Over the dialog", MB_OK); });
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            dialog.Click(IDOK);
            const ShownDialog box = robot.WaitForDialogAfter(dialog);
            ExpectInFrontOfTheHost(robot, box, ui::kApplicationTitle);
            box.Click(IDOK);
            robot.WaitUntil("the dialog below", [&] { return dialog.TakesInput(); });
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
}
