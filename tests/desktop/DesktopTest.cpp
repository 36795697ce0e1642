// On a desktop with a window manager, where windows are activated from outside: the dialogs have no owner,
// and the host's window, which takes no input meanwhile, must never hide them.
#include "automation/Text.h"
#include "resources/ids.h"
#include "tests/support/Drive.h"
#include "ui/Dialog.h"
#include "ui/ShowMessageBox.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace
{

using test_support::Drive;
using test_support::Robot;
using test_support::ShownDialog;

constexpr wchar_t kHostTitle[] = L"Window of the host";
constexpr wchar_t kDialogTitle[] = L"Dialog without an owner";
constexpr wchar_t kOtherTitle[] = L"Window of another program"; // shown by run.sh

class Probe : public ui::Dialog
{
  public:
    explicit Probe(std::function<void()> onOk = {}) : Dialog(IDD_SHOWERR), mOnOk(std::move(onOk)) {}

  private:
    void OnInit() override { SetWindowTextW(Handle(), kDialogTitle); }
    void OnCommand(int id, int notification) override
    {
        if (id == IDOK && mOnOk)
        {
            mOnOk();
        }
        Dialog::OnCommand(id, notification);
    }

    std::function<void()> mOnOk;
};

class HostWindow
{
  public:
    HostWindow()
        : mWindow(CreateWindowW(L"STATIC", kHostTitle, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 900, 700,
                                nullptr, nullptr, nullptr, nullptr))
    {
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow() { DestroyWindow(mWindow); }

  private:
    HWND mWindow;
};

std::wstring Variable(const wchar_t* name)
{
    wchar_t text[MAX_PATH] = {};
    GetEnvironmentVariableW(name, text, ARRAYSIZE(text));
    return text;
}

// Has run.sh ask the window manager for something. Does not wait: Wine gives no handle of a program outside.
void AskDesktop(const std::wstring& question, const std::wstring& argument)
{
    std::wstring line = Variable(L"TELVIX_DESKTOP_SCRIPT") + L" " + question + L" \"" + argument + L"\"";
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                               &process))
        << GetLastError();
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

// As the user does on the task bar: the window manager activates and raises the window.
void Choose(const std::wstring& title)
{
    AskDesktop(L"choose", title);
}

// The title of the window that the window manager has in front of all others.
std::wstring TitleInFront(Robot& robot)
{
    const std::filesystem::path answer = Variable(L"TELVIX_DESKTOP_ANSWER");
    std::filesystem::remove(answer);
    AskDesktop(L"front", L"");
    robot.WaitUntil("the window manager's answer", [&] { return std::filesystem::exists(answer); });
    std::string title;
    std::getline(std::ifstream(answer), title);
    return automation::FromUtf8(title);
}

void WaitUntilInFront(Robot& robot, const std::wstring& title)
{
    robot.WaitUntil(automation::ToUtf8(title) + " in front", [&] { return TitleInFront(robot) == title; });
}

// Comes to the front when the host's window is chosen after another program's, and when it is chosen again.
void ExpectInFrontOfTheHost(Robot& robot, const ShownDialog& dialog, const std::wstring& title)
{
    WaitUntilInFront(robot, title);
    Choose(kOtherTitle);
    WaitUntilInFront(robot, kOtherTitle);
    for (int i = 0; i < 2; ++i)
    {
        Choose(kHostTitle);
        WaitUntilInFront(robot, title);
        robot.WaitUntil("the dialog takes the keys",
                        [&] { return GetForegroundWindow() == dialog.Handle(); });
    }
}

} // namespace

TEST(DialogOnADesktop, IsInFrontOfTheHostWhenTheUserChoosesTheHostsWindow)
{
    const HostWindow host;
    Probe probe;
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
    const HostWindow host;
    Probe probe([] { ui::ShowMessageBox(L"Over the dialog", MB_OK); });
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
