// A second process presses the buttons by messages that it sends, as screen readers and test tools do.
#include "resources/Strings.h"
#include "tests/boundary/Server.h"

#include <array>

namespace boundary_tests
{

namespace
{

constexpr DWORD kPatienceWithPresser = 20'000; // milliseconds

std::wstring PresserProgram()
{
    std::array<wchar_t, MAX_PATH> path = {};
    const std::wstring own(path.data(), GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return own.substr(0, own.rfind(L'\\') + 1) + L"Presser.exe";
}

// Has the button pressed by a process of its own, whose message must be answered.
void Press(const ShownDialog& dialog, int button)
{
    const auto window = static_cast<unsigned long>(reinterpret_cast<ULONG_PTR>(dialog.Handle()));
    std::wstring command =
        L"\"" + PresserProgram() + L"\" " + std::to_wstring(window) + L" " + std::to_wstring(button);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &startup, &process));
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(process.hProcess, kPatienceWithPresser));
    DWORD status = EXIT_FAILURE;
    GetExitCodeProcess(process.hProcess, &status);
    EXPECT_EQ(static_cast<DWORD>(EXIT_SUCCESS), status) << "no answer from button " << button;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

class SentCommands : public testing::Test
{
  protected:
    static ShownDialog Open(Robot& robot, const ShownDialog& dialog, int button)
    {
        Press(dialog, button);
        return robot.WaitForDialogAfter(dialog);
    }

    static void Leave(Robot& robot, const ShownDialog& dialog, const ShownDialog& below, int button)
    {
        Press(dialog, button);
        robot.WaitUntilClosed(dialog);
        robot.WaitUntil("the dialog below", [&] { return below.TakesInput(); });
    }

    static void OpenAndLeave(Robot& robot, const ShownDialog& dialog, int button)
    {
        for (const int leave : {IDOK, IDCANCEL})
        {
            Leave(robot, Open(robot, dialog, button), dialog, leave);
        }
    }

    // The folder that the picker opens on is among the chosen ones: removes it, adds it, makes it the
    // default.
    static void UseFolderPicker(Robot& robot, const ShownDialog& choose)
    {
        const ShownDialog picker = Open(robot, choose, IDC_CHOOSE_BROWSE);
        const auto rows = [&] { return picker.Rows(IDC_CONTENT_LIST); };
        const int before = rows();
        picker.ChooseRow(IDC_CONTENT_LIST, 0);
        Press(picker, IDC_CONTENT_REMOVE);
        robot.WaitUntil("a row less", [&] { return rows() == before - 1; });
        Press(picker, IDC_CONTENT_ADD);
        robot.WaitUntil("the row again", [&] { return rows() == before; });
        Press(picker, IDC_CONTENT_DEFAULT);
        Leave(robot, picker, choose, IDCANCEL);
    }

    static void Configure(Robot& robot, const User& user)
    {
        const ShownDialog configure = Open(robot, user.Main(), IDC_SYNC_CONFIGURE);
        configure.ChooseRow(IDC_CONFIGURE_LIST, 0);
        robot.WaitUntil("Choose is enabled", [&] { return configure.IsEnabled(IDC_CONFIGURE_CHOOSE); });
        OpenAndLeave(robot, configure, IDC_CONFIGURE_ADVANCE);
        const ShownDialog choose = Open(robot, configure, IDC_CONFIGURE_CHOOSE);
        OpenAndLeave(robot, choose, IDC_CHOOSE_OPTION);
        OpenAndLeave(robot, choose, IDC_CHOOSE_BROWSE);
        UseFolderPicker(robot, choose);
        Leave(robot, choose, configure, IDOK);
        Leave(robot, configure, user.Main(), IDOK);
    }

    static void Synchronize(Robot& robot, const User& user)
    {
        Leave(robot, Open(robot, user.Main(), IDC_SYNC_START), user.Main(), IDCANCEL);
        robot.WaitUntil("the dialog is at rest", [&] { return user.Main().IsAtRest(); });
        Leave(robot, Open(robot, user.Main(), IDC_SYNC_START), user.Main(), IDOK);
        robot.WaitUntil("the outcome", [&] { return user.Main().Text(IDC_SYNC_STATE) == SuccessStatus(); });
    }
};

} // namespace

TEST_F(SentCommands, EveryButtonDoesItsWorkAndTheSenderHasItsAnswerBefore)
{
    const Task task{L"contact", kExport};
    Site site;
    site.Prepare(task.direction);
    const Server server(site);
    site.SynLoad([&](Robot& robot) {
        const User user(robot);
        user.ChooseKind(task.kind);
        Configure(robot, user);
        Synchronize(robot, user);
        Press(user.Main(), IDCANCEL);
        robot.WaitUntilClosed(user.Main());
    });
    site.ExpectNothingLeft();
    ExpectReached(site.Look(), UndisturbedCourse(task).after);
}

} // namespace boundary_tests
