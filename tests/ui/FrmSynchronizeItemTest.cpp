#include "run/FrmSynchronizeItem.h"

#include "data/FrmMessage.h"
#include "sandbox/dispatch/DispatchObject.h"
#include "tests/support/Drive.h"
#include "tests/support/StandIns.h"
#include "tests/ui/Interface.h"
#include "ui/Dialog.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <stdexcept>

#include <commctrl.h>

namespace
{

using namespace ui_tests;
using test_support::Drive;
using test_support::MainThread;
using test_support::Robot;
using test_support::ShownDialog;

constexpr int kTaskRow = 0;
constexpr int kCalendarRow = 1;
constexpr int kContactRow = 2;

// Services that record what the dialog asked of them.
struct Recorder
{
    bool NoProfile = false;
    bool IsTrans = true;
    bool Fails = false;
    std::function<void(data::RunDisplay&)> DuringRun;
    std::wstring Loaded; // names whose parameters were loaded, each followed by a blank
    std::wstring Ran;    // procedures that ran, likewise
    std::atomic<int> Configured{0};
    std::atomic<int> Runs{0};

    run::SynchronizeServices Services()
    {
        const auto runs = [this](const wchar_t* name) {
            return [this, name](data::RunDisplay& display) {
                Ran += name;
                if (DuringRun)
                {
                    DuringRun(display);
                }
                ++Runs;
                return Fails;
            };
        };
        return {
            .CheckOutlookProfiles = [this] { return NoProfile; },
            .SetSynParamenter =
                [this](state::SynParameter& parameter, const std::wstring& name) {
                    Loaded += name + L" ";
                    parameter.IsTrans = IsTrans;
                },
            .ShowConfigure = [this] { ++Configured; },
            .RunTaskSync = runs(L"tasks "),
            .RunCalendarSync = runs(L"calendar "),
            .RunContactSync = runs(L"contacts "),
        };
    }
};

// Shows the main dialog over the recorder and lets the script use it; the dialog is closed at the end.
void Use(Recorder& recorder, const std::function<void(Robot&, const ShownDialog&)>& script)
{
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            script(robot, dialog);
            dialog.Click(IDCANCEL);
        },
        [&] { run::ShowSynchronizeItem(recorder.Services()); });
}

void ChooseAndStart(const ShownDialog& dialog, int row)
{
    dialog.ChooseRow(IDC_SYNC_CATEGORY, row);
    dialog.Click(IDC_SYNC_START);
}

void WaitForStatus(Robot& robot, const ShownDialog& dialog, const std::wstring& text)
{
    robot.WaitUntil("the status line", [&] { return dialog.Text(IDC_SYNC_STATE) == text; });
}

TEST(FrmSynchronizeItem, LoadsItsCaptionsAndTheThreeCategoriesInBothLanguages)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        Use(recorder, [&](Robot&, const ShownDialog& dialog) {
            EXPECT_EQ(In(language, L"Synchronization", L"同步"), dialog.Caption());
            EXPECT_EQ(In(language, L"Synchronization Item", L"同步项"), dialog.Tab(IDC_SYNC_OPTION, 0));
            EXPECT_EQ(In(language, L"Con&figuare", L"配置(&F)"), dialog.Text(IDC_SYNC_CONFIGURE));
            EXPECT_EQ(In(language, L"&Synchronization", L"同步(&S)"), dialog.Text(IDC_SYNC_START));
            EXPECT_EQ(In(language, L"&Close", L"关闭(&C)"), dialog.Text(IDCANCEL));
            EXPECT_EQ(In(language, L"Category", L"目录"), dialog.ColumnHeader(IDC_SYNC_CATEGORY, 0));
            ASSERT_EQ(3, dialog.Rows(IDC_SYNC_CATEGORY));
            EXPECT_EQ(In(language, L"Task", L"任务"), dialog.Row(IDC_SYNC_CATEGORY, kTaskRow));
            EXPECT_EQ(In(language, L"Calendar", L"日历"), dialog.Row(IDC_SYNC_CATEGORY, kCalendarRow));
            EXPECT_EQ(In(language, L"Contact", L"联系人"), dialog.Row(IDC_SYNC_CATEGORY, kContactRow));
            EXPECT_EQ(L"", dialog.Text(IDC_SYNC_STATE));
            EXPECT_FALSE(dialog.IsVisible(IDC_SYNC_PROGRESS));
        });
    }
}

TEST(FrmSynchronizeItem, TheButtonsStartDisabledAndStayEnabledAfterTheFirstClickOnARow)
{
    const Interface english(Language::English);
    Recorder recorder;
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        EXPECT_FALSE(dialog.IsEnabled(IDC_SYNC_START));
        EXPECT_FALSE(dialog.IsEnabled(IDC_SYNC_CONFIGURE));
        dialog.ChooseRow(IDC_SYNC_CATEGORY, kContactRow);
        EXPECT_TRUE(dialog.IsEnabled(IDC_SYNC_CONFIGURE));
        dialog.Click(IDC_SYNC_START);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
        EXPECT_TRUE(dialog.IsEnabled(IDC_SYNC_START));
        EXPECT_TRUE(dialog.IsEnabled(IDC_SYNC_CONFIGURE));
    });
}

TEST(FrmSynchronizeItem, TheCaptionNamesTheChosenCategoryWithoutASpace)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        Use(recorder, [&](Robot&, const ShownDialog& dialog) {
            dialog.ChooseRow(IDC_SYNC_CATEGORY, kCalendarRow);
            EXPECT_EQ(In(language, L"SynchroniztionCalendar", L"同步日历"), dialog.Caption());
            dialog.ChooseRow(IDC_SYNC_CATEGORY, kTaskRow);
            EXPECT_EQ(In(language, L"SynchroniztionTask", L"同步任务"), dialog.Caption());
        });
    }
}

TEST(FrmSynchronizeItem, EachCategoryLoadsItsParametersByItsKeyAndRunsItsProcedure)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        recorder.DuringRun = [](data::RunDisplay& display) { display.SetStatus(L"running"); };
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            const std::wstring done = In(language, L"Synchronize Succeed.", L"传输操作完成。");
            for (const int row : {kTaskRow, kCalendarRow, kContactRow})
            {
                ChooseAndStart(dialog, row);
                robot.WaitUntil("the run", [&] {
                    return recorder.Runs == row + 1 && dialog.Text(IDC_SYNC_STATE) == done;
                });
            }
        });
        EXPECT_EQ(L"Task Calendar Contact ", recorder.Loaded);
        EXPECT_EQ(L"tasks calendar contacts ", recorder.Ran);
    }
}

TEST(FrmSynchronizeItem, AFailedRunIsReportedInTheStatusLine)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        recorder.Fails = true;
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            ChooseAndStart(dialog, kContactRow);
            WaitForStatus(robot, dialog, In(language, L"Translate fail!", L"传输操作失败!"));
        });
    }
}

TEST(FrmSynchronizeItem, AnErrorThatEscapesARunIsAFailureAndTheDialogStaysOpen)
{
    const Interface english(Language::English);
    Recorder recorder;
    recorder.DuringRun = [](data::RunDisplay&) { throw std::runtime_error("from the run"); };
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kTaskRow);
        WaitForStatus(robot, dialog, L"Translate fail!");
        EXPECT_TRUE(dialog.TakesInput());
    });
}

TEST(FrmSynchronizeItem, WithoutAnOutlookProfileNothingIsLoadedAndTheStatusSaysWhatToCheck)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        recorder.NoProfile = true;
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            ChooseAndStart(dialog, kTaskRow);
            WaitForStatus(robot, dialog, resources::String(IDS_RUN_NO_PROFILE));
            test_support::ExpectReadable(dialog);
            test_support::Photograph(dialog, "FrmSynchronizeItem-no-profile" + Suffix(language));
        });
        EXPECT_EQ(L"", recorder.Loaded);
        EXPECT_EQ(L"", recorder.Ran);
    }
}

TEST(FrmSynchronizeItem, WithoutACategoryAChineseMessageBoxSaysSoInBothLanguages)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            dialog.Command(IDC_SYNC_START); // the button is disabled
            const ShownDialog box = robot.WaitForDialogAfter(dialog);
            EXPECT_EQ(L"没有选择同步的选项！", box.Message());
            EXPECT_EQ(L"Telvix", box.Caption());
            EXPECT_TRUE(box.ShowsIcon(IDI_INFORMATION));
            EXPECT_EQ(1u, box.Buttons().size());
            EXPECT_FALSE(dialog.TakesInput());
            box.Close();
            robot.WaitUntil("the main dialog", [&] { return dialog.TakesInput(); });
            EXPECT_EQ(L"", dialog.Text(IDC_SYNC_STATE));
        });
        EXPECT_EQ(L"", recorder.Loaded);
    }
}

TEST(FrmSynchronizeItem, ACategoryThatTakesNoPartShowsTheInformationDialogAndDoesNotRun)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        recorder.IsTrans = false;
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            ChooseAndStart(dialog, kCalendarRow);
            const ShownDialog information = robot.WaitForDialogAfter(dialog);
            EXPECT_EQ(In(language, L"Message", L"信息"), information.Caption());
            EXPECT_EQ(In(language,
                         L"No item be selected to synchronize!\r\n\r\nPlease select the button of the "
                         L"configure,then selectint this item as true.",
                         L"该项目没有被确定需要进行同步!\r\n\r\n要进行同步，请选择 配置 "
                         L"按钮，选择允许同步。"),
                      information.Text(IDC_SHOWINFOR_DESCRIPTION));
            information.Click(IDOK);
            robot.WaitUntil("the main dialog", [&] { return dialog.TakesInput(); });
            EXPECT_EQ(L"", dialog.Text(IDC_SYNC_STATE));
        });
        EXPECT_EQ(L"Calendar ", recorder.Loaded);
        EXPECT_EQ(L"", recorder.Ran);
    }
}

TEST(FrmSynchronizeItem, ATextThatMatchesNoCategoryIsReportedAndEndsWithTheSuccessText)
{
    auto english = std::make_unique<Interface>(Language::English);
    Recorder recorder;
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        dialog.ChooseRow(IDC_SYNC_CATEGORY, kTaskRow);
        resources::OverrideLanguage(Language::Chinese); // the rows keep their English texts
        dialog.Click(IDC_SYNC_START);
        const ShownDialog box = robot.WaitForDialogAfter(dialog);
        EXPECT_EQ(L"没有可同步的选项。", box.Message());
        EXPECT_EQ(L"Telvix", box.Caption());
        EXPECT_TRUE(box.ShowsIcon(IDI_INFORMATION));
        box.Close();
        WaitForStatus(robot, dialog, L"传输操作完成。");
    });
    EXPECT_EQ(L"", recorder.Ran);
}

TEST(FrmSynchronizeItem, ConfigureOpensTheConfigurationAndNothingElse)
{
    const Interface english(Language::English);
    Recorder recorder;
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        dialog.ChooseRow(IDC_SYNC_CATEGORY, kTaskRow);
        dialog.PressAlt(L'f');
        robot.WaitUntil("the configuration", [&] { return recorder.Configured == 1; });
    });
    EXPECT_EQ(L"", recorder.Loaded);
    EXPECT_EQ(L"", recorder.Ran);
}

TEST(FrmSynchronizeItem, WorksByTheKeyboardAlone)
{
    const Interface english(Language::English);
    Recorder recorder;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            EXPECT_EQ(IDC_SYNC_CATEGORY, dialog.Focused());
            dialog.Press(VK_DOWN);
            robot.WaitUntil("a row to be chosen", [&] { return dialog.IsEnabled(IDC_SYNC_START); });
            dialog.Press(VK_RETURN); // the default button
            WaitForStatus(robot, dialog, L"Synchronize Succeed.");
            for (const int next : {IDC_SYNC_START, IDC_SYNC_CONFIGURE, IDCANCEL, IDC_SYNC_CATEGORY})
            {
                dialog.Press(VK_TAB);
                robot.WaitUntil("the focus to move on", [&] { return dialog.Focused() == next; });
            }
            dialog.Press(VK_ESCAPE);
        },
        [&] { run::ShowSynchronizeItem(recorder.Services()); });
    EXPECT_NE(L"", recorder.Ran);
}

TEST(FrmSynchronizeItem, DuringARunNothingStartsASecondOneOrClosesTheDialog)
{
    const Interface english(Language::English);
    Recorder recorder;
    recorder.DuringRun = [](data::RunDisplay& display) {
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

TEST(FrmSynchronizeItem, DuringARunTheConfirmationTakesInputAsAlways)
{
    const Interface english(Language::English);
    Recorder recorder;
    std::atomic<bool> accepted{false};
    recorder.DuringRun = [&](data::RunDisplay& display) {
        data::ShowConfirmation(display.CategoryText(), {});
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
    recorder.DuringRun = [&](data::RunDisplay&) {
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
    recorder.DuringRun = [&](data::RunDisplay& display) {
        const ShownDialog dialog(ui::Dialog::Shown(IDD_SYNCHRONIZEITEM)->Handle());
        category = display.CategoryText();
        {
            const data::ShowsProgress progress(display);
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
    recorder.DuringRun = [&](data::RunDisplay& display) {
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

// An automation object that tells when it is released.
class Releasing : public sandbox::DispatchObject
{
  public:
    Releasing(std::wstring name, std::wstring& released) : mName(std::move(name)), mReleased(released) {}

  protected:
    ~Releasing() override { mReleased += mName + L" "; }
    const wchar_t* ClassName() const override { return L"Releasing"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable none;
        return none;
    }

  private:
    std::wstring mName;
    std::wstring& mReleased;
};

TEST(FrmSynchronizeItem, ClosingReleasesTheHostTheNamespaceAndOutlookInThisOrder)
{
    const Interface english(Language::English);
    const std::function<void(const ShownDialog&)> waysOut[] = {
        [](const ShownDialog& dialog) { dialog.Click(IDCANCEL); },
        [](const ShownDialog& dialog) { dialog.Close(); },
        [](const ShownDialog& dialog) { dialog.Press(VK_ESCAPE); },
    };
    for (const auto& wayOut : waysOut)
    {
        std::wstring released;
        Recorder recorder;
        auto& shared = state::Shared();
        shared.gCnnString = L"stays";
        shared.gOlApplication = sandbox::MakeObject<Releasing>(L"application", released);
        shared.gOlNamespace = sandbox::MakeObject<Releasing>(L"namespace", released);
        shared.gDTC = sandbox::MakeObject<Releasing>(L"host", released);
        Drive([&](Robot& robot) { wayOut(robot.WaitForDialog()); },
              [&] { run::ShowSynchronizeItem(recorder.Services()); });
        EXPECT_EQ(L"host namespace application ", released);
        EXPECT_EQ(L"stays", shared.gCnnString);
    }
}

TEST(FrmSynchronizeItem, IsReadableInBothLanguagesAtEveryScale)
{
    for (const Language language : kLanguages)
    {
        for (const double scale : {1.0, 1.5, 2.0})
        {
            const Interface with(language, scale);
            Recorder recorder;
            recorder.NoProfile = true; // the longest status text
            Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
                test_support::ExpectReadable(dialog);
                ChooseAndStart(dialog, kContactRow);
                WaitForStatus(robot, dialog, resources::String(IDS_RUN_NO_PROFILE));
                test_support::ExpectReadable(dialog);
                test_support::Photograph(dialog, "FrmSynchronizeItem-" +
                                                     std::to_string(static_cast<int>(scale * 100)) +
                                                     Suffix(language));
            });
        }
    }
}

} // namespace
