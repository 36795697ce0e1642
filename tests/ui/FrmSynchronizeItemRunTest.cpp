// The main dialog while a run is going.
#include "run/FrmMessage.h"
#include "tests/ui/MainDialog.h"
#include "ui/Dialog.h"

#include <commctrl.h>

namespace
{

using namespace ui_tests;

TEST(FrmSynchronizeItem, DuringARunNothingStartsASecondOneOrClosesTheDialog)
{
    const Interface english(Language::English);
    Recorder recorder;
    recorder.DuringRun = [](exchange::RunDisplay& display) {
        const ShownDialog dialog(ui::Dialog::Shown(IDD_SYNCHRONIZEITEM)->Handle());
        const HWND list = dialog.Control(IDC_SYNC_CATEGORY);
        dialog.Click(IDC_SYNC_START);
        dialog.Click(IDCANCEL);
        dialog.Close();
        dialog.Press(VK_RETURN);
        dialog.Press(VK_ESCAPE);
        PostMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
        const ULONGLONG end = GetTickCount64() + 10000;
        while (GetQueueStatus(QS_POSTMESSAGE) != 0 && GetTickCount64() < end)
        {
            display.SetProgress(0.5);
        }
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Press(VK_RETURN); // still waiting when the run ends
    };
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kTaskRow);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
        EXPECT_TRUE(dialog.TakesInput());
        EXPECT_EQ(L"SynchroniztionTask", dialog.Caption());
        EXPECT_EQ(kTaskRow, dialog.Ask(dialog.Control(IDC_SYNC_CATEGORY), LVM_GETNEXTITEM,
                                       static_cast<WPARAM>(-1), LVNI_SELECTED));
    });
    EXPECT_EQ(L"tasks ", recorder.Ran);
}

// The host's database, or a call to a busy Outlook, may let the thread handle its messages.
TEST(FrmSynchronizeItem, WhileItsParametersAreReadNothingStartsASecondRunOrClosesTheDialog)
{
    const Interface english(Language::English);
    Recorder recorder;
    recorder.DuringLoading = [] {
        const ShownDialog dialog(ui::Dialog::Shown(IDD_SYNCHRONIZEITEM)->Handle());
        dialog.Click(IDC_SYNC_START);
        dialog.Click(IDCANCEL);
        dialog.Close();
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            DispatchMessageW(&message);
        }
        EXPECT_TRUE(dialog.IsOpen());
    };
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kTaskRow);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
    });
    EXPECT_EQ(L"Task ", recorder.Loaded);
    EXPECT_EQ(L"tasks ", recorder.Ran);
}

TEST(FrmSynchronizeItem, DuringARunTheConfirmationTakesInputAsAlways)
{
    const Interface english(Language::English);
    Recorder recorder;
    std::atomic<bool> accepted{false};
    recorder.DuringRun = [&](exchange::RunDisplay& display) {
        run::ShowConfirmation(display.CategoryText(), {});
        accepted = state::Shared().gChangesAccepted;
    };
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kCalendarRow);
        const ShownDialog confirmation = robot.WaitForDialogAfter(dialog);
        EXPECT_EQ(L"Confirm Calendar Change", confirmation.Caption());
        EXPECT_FALSE(dialog.TakesInput());
        confirmation.Press(VK_RETURN);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
        EXPECT_TRUE(dialog.TakesInput());
    });
    EXPECT_TRUE(accepted);
}

TEST(FrmSynchronizeItem, DuringARunThePointerIsAnHourglassAndAfterItAnArrow)
{
    const Interface english(Language::English);
    Recorder recorder;
    HCURSOR during = nullptr;
    HCURSOR after = nullptr;
    const auto pointerOver = [](HWND dialog) {
        SendMessageW(dialog, WM_SETCURSOR, reinterpret_cast<WPARAM>(dialog),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    };
    recorder.DuringRun = [&](exchange::RunDisplay&) {
        during = pointerOver(ui::Dialog::Shown(IDD_SYNCHRONIZEITEM)->Handle());
    };
    const MainThread main;
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kTaskRow);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
        main.Invoke([&] { after = pointerOver(dialog.Handle()); });
    });
    EXPECT_EQ(LoadCursorW(nullptr, IDC_WAIT), during);
    EXPECT_EQ(LoadCursorW(nullptr, IDC_ARROW), after);
}

TEST(FrmSynchronizeItem, ARunShowsItsStatusAndProgressAtOnceAndNamesItsCategory)
{
    const Interface english(Language::English);
    Recorder recorder;
    std::wstring category;
    bool shown = false;
    bool hidden = true;
    bool painted = false;
    recorder.DuringRun = [&](exchange::RunDisplay& display) {
        const ShownDialog dialog(ui::Dialog::Shown(IDD_SYNCHRONIZEITEM)->Handle());
        category = display.CategoryText();
        {
            const exchange::ProgressScope progress(display);
            display.SetStatus(L"Collecting information...");
            display.SetProgress(0.5);
            shown = dialog.IsVisible(IDC_SYNC_PROGRESS);
            painted = GetUpdateRect(dialog.Control(IDC_SYNC_STATE), nullptr, FALSE) == FALSE;
            EXPECT_EQ(L"Collecting information...", dialog.Text(IDC_SYNC_STATE));
            test_support::Photograph(dialog, "FrmSynchronizeItem-running-en");
        }
        hidden = !dialog.IsVisible(IDC_SYNC_PROGRESS);
    };
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kContactRow);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
    });
    EXPECT_EQ(L"Contact", category);
    EXPECT_TRUE(shown);
    EXPECT_TRUE(painted);
    EXPECT_TRUE(hidden);
}

// As where another window has covered the dialog.
TEST(FrmSynchronizeItem, IsPaintedAgainWhileARunReportsItsProgress)
{
    const Interface english(Language::English);
    Recorder recorder;
    bool isPainted = false;
    recorder.DuringRun = [&](exchange::RunDisplay& display) {
        const ShownDialog dialog(ui::Dialog::Shown(IDD_SYNCHRONIZEITEM)->Handle());
        const HWND list = dialog.Control(IDC_SYNC_CATEGORY);
        InvalidateRect(list, nullptr, TRUE);
        const ULONGLONG end = GetTickCount64() + 5000;
        while (!isPainted && GetTickCount64() < end)
        {
            display.SetProgress(0.5);
            isPainted = GetUpdateRect(list, nullptr, FALSE) == FALSE;
        }
    };
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kTaskRow);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
    });
    EXPECT_TRUE(isPainted);
}

LRESULT CALLBACK CountPositions(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                DWORD_PTR counter)
{
    *reinterpret_cast<int*>(counter) += message == PBM_SETPOS ? 1 : 0;
    return DefSubclassProc(window, message, wParam, lParam);
}

TEST(FrmSynchronizeItem, ProgressThatWouldNotChangeThePictureDoesNotReachTheBar)
{
    const Interface english(Language::English);
    Recorder recorder;
    int positions = 0;
    recorder.DuringRun = [&](exchange::RunDisplay& display) {
        const ShownDialog dialog(ui::Dialog::Shown(IDD_SYNCHRONIZEITEM)->Handle());
        const HWND bar = dialog.Control(IDC_SYNC_PROGRESS);
        SetWindowSubclass(bar, CountPositions, 1, reinterpret_cast<DWORD_PTR>(&positions));
        for (int i = 0; i < 1000; ++i)
        {
            display.SetProgress(0.5 + i * 1e-9);
        }
        RemoveWindowSubclass(bar, CountPositions, 1);
    };
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kTaskRow);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
    });
    EXPECT_EQ(1, positions);
}

} // namespace
