#include "ui/Dialog.h"

#include "resources/Strings.h"
#include "tests/support/Drive.h"
#include "tests/support/HostWindow.h"
#include "tests/ui/Interface.h"
#include "ui/ApplyFormFont.h"
#include "ui/AskWhetherToWait.h"
#include "ui/Control.h"
#include "ui/ProgressBar.h"
#include "ui/SentMessage.h"
#include "ui/ShowMessageBox.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <stdexcept>

#include <commctrl.h>

namespace
{

using namespace ui_tests;
using test_support::Drive;
using test_support::MainThread;
using test_support::Robot;
using test_support::ShownDialog;

// The error dialog's template with handlers of the test's own.
class Probe : public ui::Dialog
{
  public:
    explicit Probe(std::function<void()> onCommand = {})
        : Dialog(IDD_SHOWERR), mOnCommand(std::move(onCommand))
    {
    }
    std::function<void()> Init;
    std::function<void(const NMHDR&)> Notify;
    std::function<void()> Close;
    int Unloaded = 0;

  private:
    void OnInit() override
    {
        if (Init)
        {
            Init();
        }
    }
    void OnCommand(int id, int notification) override
    {
        if (id == IDOK && mOnCommand)
        {
            mOnCommand();
        }
        Dialog::OnCommand(id, notification);
    }
    LRESULT OnNotify(const NMHDR& notification) override
    {
        if (Notify)
        {
            Notify(notification);
        }
        return 0;
    }
    void OnClose() override
    {
        if (Close)
        {
            Close();
        }
        Dialog::OnClose();
    }
    void OnUnload() override { ++Unloaded; }

    std::function<void()> mOnCommand;
};

LOGFONTW FontOf(const ShownDialog& dialog, HWND window)
{
    LOGFONTW font = {};
    GetObjectW(reinterpret_cast<HFONT>(dialog.Ask(window, WM_GETFONT)), sizeof(font), &font);
    return font;
}

int PixelsOf(long points)
{
    const HDC screen = GetDC(nullptr);
    const int pixels = MulDiv(static_cast<int>(points), GetDeviceCaps(screen, LOGPIXELSY), 72);
    ReleaseDC(nullptr, screen);
    return pixels;
}

TEST(ApplyFormFont, EveryControlOfADialogHasTheFontOfTheSharedState)
{
    state::Shared().gFontName = L"Tahoma";
    state::Shared().gFontSize = 14;
    Probe probe;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            for (const int id : {IDOK, IDC_SHOWERR_TITLE, IDC_SHOWERR_DESCRIPTION})
            {
                const LOGFONTW font = FontOf(dialog, dialog.Control(id));
                EXPECT_STREQ(L"Tahoma", font.lfFaceName);
                EXPECT_EQ(PixelsOf(14), abs(font.lfHeight));
            }
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
    state::Shared() = {};
}

TEST(ApplyFormFont, ALargerFontMakesALargerDialog)
{
    int heights[2] = {};
    for (const int i : {0, 1})
    {
        state::Shared().gFontName = L"Arial";
        state::Shared().gFontSize = i == 0 ? 8 : 16;
        Probe probe;
        Drive(
            [&](Robot& robot) {
                const ShownDialog dialog = robot.WaitForDialog();
                RECT client = {};
                GetClientRect(dialog.Handle(), &client);
                heights[i] = static_cast<int>(client.bottom);
                dialog.Close();
            },
            [&] { probe.ShowModal(); });
    }
    EXPECT_GT(heights[1], heights[0] * 3 / 2);
    state::Shared() = {};
}

TEST(ApplyFormFont, ANameOrSizeThatIsNotUsableGivesThePlatformsFont)
{
    state::Shared() = {};
    EXPECT_EQ(L"MS Shell Dlg", ui::FontOfForms().Name);
    EXPECT_EQ(8, ui::FontOfForms().Size);
    state::Shared().gFontSize = -3;
    EXPECT_EQ(8, ui::FontOfForms().Size);
    state::Shared().gFontName.assign(100, L'x');
    EXPECT_EQ(static_cast<size_t>(LF_FACESIZE - 1), ui::FontOfForms().Name.size());
    state::Shared() = {};
}

TEST(ApplyFormFont, BytesThatAreNoDialogTemplateAreRefused)
{
    const std::vector<std::byte> zeros(64);
    EXPECT_THROW(ui::ApplyFormFont(zeros, {L"Arial", 8}), std::invalid_argument);
    EXPECT_THROW(ui::ApplyFormFont(std::span(zeros).first(3), {L"Arial", 8}), std::invalid_argument);
}

TEST(Dialog, ShowsTheComponentsIconInBothSizes)
{
    Probe probe;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            EXPECT_NE(0, dialog.Ask(dialog.Handle(), WM_GETICON, ICON_SMALL));
            EXPECT_NE(0, dialog.Ask(dialog.Handle(), WM_GETICON, ICON_BIG));
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
}

TEST(Dialog, AnExceptionOfAHandlerEndsTheDialogAndComesOutOfTheCallThatShowedIt)
{
    Probe probe([] { throw std::runtime_error("from the handler"); });
    Drive([](Robot& robot) { robot.WaitForDialog().Click(IDOK); },
          [&] { EXPECT_THROW(probe.ShowModal(), std::runtime_error); });
    EXPECT_EQ(1, probe.Unloaded);
}

TEST(Dialog, AnExceptionOfAHandlerIsTrappedWhereTheDialogAsksForIt)
{
    static constexpr ui::CaptionRow kCaptions[] = {{ui::kDialogCaption, {L"标题", L"Title"}}};
    class Trapping : public ui::Dialog
    {
      public:
        Trapping() : Dialog(IDD_SHOWERR, kCaptions, ui::Errors::AreTrapped) {}

      private:
        void OnInit() override { throw std::runtime_error("from the load step"); }
        void OnCommand(int /*id*/, int /*notification*/) override
        {
            throw std::runtime_error("from the handler");
        }
        LRESULT OnNotify(const NMHDR& /*notification*/) override
        {
            throw std::runtime_error("from a control");
        }
    };
    Trapping dialog;
    Drive(
        [](Robot& robot) {
            const ShownDialog shown = robot.WaitForDialog();
            EXPECT_EQ(resources::Choose(L"标题", L"Title"), shown.Caption());
            NMHDR notification{};
            shown.Ask(shown.Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification));
            shown.Ask(shown.Handle(), WM_COMMAND, IDOK);
            EXPECT_TRUE(IsWindow(shown.Handle()));
            shown.Close();
        },
        [&] { EXPECT_NO_THROW(dialog.ShowModal()); });
}

TEST(Dialog, AnExceptionOfTheLoadStepComesOutBeforeAnythingIsShown)
{
    Probe probe;
    probe.Init = [] { throw std::runtime_error("from the load step"); };
    EXPECT_THROW(probe.ShowModal(), std::runtime_error);
}

// List views and tree views report keys so, in 32-bit code.
TEST(Dialog, ANotificationAtAnOddAddressIsRead)
{
    UINT code = 0;
    WORD key = 0;
    Probe probe;
    probe.Notify = [&](const NMHDR& notification) {
        code = notification.code;
        std::memcpy(&key, &reinterpret_cast<const NMLVKEYDOWN&>(notification).wVKey, sizeof key);
    };
    probe.Init = [&] {
        NMLVKEYDOWN sent = {};
        sent.hdr.code = static_cast<UINT>(LVN_KEYDOWN);
        sent.wVKey = VK_SPACE;
        alignas(NMHDR) char room[sizeof sent + 1];
        std::memcpy(room + 1, &sent, sizeof sent);
        SendMessageW(probe.Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(room + 1));
    };
    Drive([](Robot& robot) { robot.WaitForDialog().Close(); }, [&] { probe.ShowModal(); });
    EXPECT_EQ(static_cast<UINT>(LVN_KEYDOWN), code);
    EXPECT_EQ(VK_SPACE, key);
}

// While the sender waits, COM would refuse every call to Outlook.
TEST(Dialog, AButtonThatAnotherThreadPressesBySendingIsHandledWhenTheSenderHasItsAnswer)
{
    std::atomic<bool> isAnswered{false};
    std::atomic<int> pressed{0};
    Probe probe([&] {
        EXPECT_FALSE(ui::IsSenderWaiting());
        ui::ShowMessageBox(L"What the command shows", MB_OK);
        EXPECT_TRUE(isAnswered);
        ++pressed;
    });
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            dialog.Ask(dialog.Control(IDOK), BM_CLICK);
            isAnswered = true;
            robot.WaitForDialogAfter(dialog).Click(IDOK);
            robot.WaitUntil("the command", [&] { return pressed == 1; });
            robot.WaitUntil("the dialog below", [&] { return dialog.TakesInput(); });
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
}

TEST(Dialog, ACloseThatAnotherThreadSendsIsHandledWhenTheSenderHasItsAnswer)
{
    Probe probe;
    int closed = 0;
    probe.Close = [&] {
        EXPECT_FALSE(ui::IsSenderWaiting());
        ++closed;
    };
    Drive(
        [](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            dialog.Ask(dialog.Handle(), WM_CLOSE);
        },
        [&] { probe.ShowModal(); });
    EXPECT_EQ(1, closed);
}

TEST(Dialog, TheSameDialogCannotBeShownTwiceAtATime)
{
    const MainThread main;
    Probe probe;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            main.Invoke([] { EXPECT_THROW(Probe().ShowModal(), std::logic_error); });
            EXPECT_TRUE(dialog.TakesInput());
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
}

TEST(Dialog, CanBeShownAgainAfterItHasClosed)
{
    Probe probe;
    for (int i = 1; i <= 2; ++i)
    {
        Drive([](Robot& robot) { robot.WaitForDialog().Close(); }, [&] { probe.ShowModal(); });
        EXPECT_EQ(i, probe.Unloaded);
        EXPECT_EQ(nullptr, probe.Handle());
    }
}

// A window of the host, with what becomes of it.
class WatchedHostWindow : public test_support::HostWindow
{
  public:
    WatchedHostWindow() : HostWindow(L"Host", 300, 200)
    {
        SetWindowSubclass(Handle(), Count, 0, reinterpret_cast<DWORD_PTR>(this));
    }

    // As the task bar and Alt+Tab do, which know nothing of dialogs without an owner. Of any thread.
    void Activate() const { SetForegroundWindow(Handle()); }
    int TimesActivated() const { return mActivated; }

  private:
    static LRESULT CALLBACK Count(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR host)
    {
        if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE)
        {
            ++reinterpret_cast<WatchedHostWindow*>(host)->mActivated;
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }

    std::atomic<int> mActivated{0};
};

void ExpectInFrontWhenHostIsActivated(Robot& robot, const WatchedHostWindow& host, const ShownDialog& dialog)
{
    robot.WaitUntil("the dialog in front", [&] { return GetForegroundWindow() == dialog.Handle(); });
    const int before = host.TimesActivated();
    host.Activate();
    robot.WaitUntil("the host to be activated", [&] { return host.TimesActivated() > before; });
    robot.WaitUntil("the dialog in front again", [&] { return GetForegroundWindow() == dialog.Handle(); });
}

TEST(Dialog, ComesToTheFrontWhenTheHostIsActivated)
{
    const WatchedHostWindow host;
    Probe probe;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            ExpectInFrontWhenHostIsActivated(robot, host, dialog);
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
}

TEST(Dialog, AMessageBoxOverItComesToTheFrontWhenTheHostIsActivated)
{
    const WatchedHostWindow host;
    Probe probe([] { ui::ShowMessageBox(L"Over the dialog", MB_OK); });
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            dialog.Click(IDOK);
            const ShownDialog box = robot.WaitForDialogAfter(dialog);
            ExpectInFrontWhenHostIsActivated(robot, host, box);
            box.Click(IDOK);
            robot.WaitUntil("the dialog below", [&] { return dialog.TakesInput(); });
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
}

TEST(Dialog, WithAnOwnerTheOwnerTakesNoInputMeanwhile)
{
    class Second : public ui::Dialog
    {
      public:
        Second() : Dialog(IDD_SHOWINFOR) {}
    };
    Probe owner;
    owner.Init = [] {};
    Probe* const ownerPointer = &owner;
    const MainThread main;
    Drive(
        [&](Robot& robot) {
            const ShownDialog first = robot.WaitForDialog();
            main.Post([=] { Second().ShowModalOver(*ownerPointer); });
            const ShownDialog second = robot.WaitForDialogAfter(first);
            EXPECT_EQ(first.Handle(), GetWindow(second.Handle(), GW_OWNER));
            EXPECT_FALSE(first.TakesInput());
            second.Close();
            robot.WaitUntil("the owner to take input again", [&] { return first.TakesInput(); });
            first.Close();
        },
        [&] { owner.ShowModal(); });
}

TEST(ShowMessageBox, HasTheApplicationsTitleAndTheIconAndButtonsAsked)
{
    int answer = 0;
    Drive(
        [&](Robot& robot) {
            const ShownDialog box = robot.WaitForDialog(L"Telvix");
            EXPECT_TRUE(box.IsMessageBox());
            EXPECT_EQ(L"Go on?", box.Message());
            EXPECT_TRUE(box.ShowsIcon(IDI_QUESTION));
            EXPECT_FALSE(box.ShowsIcon(IDI_INFORMATION));
            EXPECT_EQ((std::vector<int>{IDYES, IDNO}), box.Buttons());
            box.Click(IDNO);
        },
        [&] { answer = ui::ShowMessageBox(L"Go on?", MB_YESNO | MB_ICONQUESTION); });
    EXPECT_EQ(IDNO, answer);
}

TEST(AskWhetherToWait, AsksInTheInterfacesLanguageWhetherToTryAgain)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        for (const int button : {IDRETRY, IDCANCEL})
        {
            bool waits = false;
            Drive(
                [&](Robot& robot) {
                    const ShownDialog box = robot.WaitForDialog(L"Telvix");
                    EXPECT_EQ(
                        In(language,
                           L"Outlook is busy. A dialog box may be open in Outlook: close it, then choose "
                           L"Retry. Cancel ends what is under way.",
                           L"Outlook 正忙。Outlook 中可能有打开的对话框：请将其关闭，然后选择“重试”。"
                           L"“取消”将结束正在进行的操作。"),
                        box.Message());
                    EXPECT_TRUE(box.ShowsIcon(IDI_WARNING));
                    EXPECT_EQ((std::vector<int>{IDRETRY, IDCANCEL}), box.Buttons());
                    box.Click(button);
                },
                [&] { waits = ui::AskWhetherToWait(); });
            EXPECT_EQ(button == IDRETRY, waits);
        }
    }
}

TEST(ProgressBar, AFractionIsAStepAndOtherNumbersAreTheNearerEnd)
{
    using ui::ProgressBar;
    EXPECT_EQ(0, ProgressBar::StepOf(0, 200));
    EXPECT_EQ(100, ProgressBar::StepOf(0.5, 200));
    EXPECT_EQ(199, ProgressBar::StepOf(0.999, 200));
    EXPECT_EQ(200, ProgressBar::StepOf(1, 200));
    EXPECT_EQ(200, ProgressBar::StepOf(1e9, 200));
    EXPECT_EQ(0, ProgressBar::StepOf(-1, 200));
    EXPECT_EQ(0, ProgressBar::StepOf(std::numeric_limits<double>::quiet_NaN(), 200));
}

} // namespace
