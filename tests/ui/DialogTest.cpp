#include "ui/Dialog.h"

#include "resources/Strings.h"
#include "tests/support/Drive.h"
#include "tests/support/ProbeDialog.h"
#include "ui/SentMessage.h"
#include "ui/ShowMessageBox.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <stdexcept>

#include <commctrl.h>

namespace
{

using test_support::Drive;
using test_support::MainThread;
using test_support::ProbeDialog;
using test_support::Robot;
using test_support::ShownDialog;

TEST(Dialog, ShowsTheComponentsIconInBothSizes)
{
    ProbeDialog probe;
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
    ProbeDialog probe([] { throw std::runtime_error("from the handler"); });
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
    ProbeDialog probe;
    probe.Init = [] { throw std::runtime_error("from the load step"); };
    EXPECT_THROW(probe.ShowModal(), std::runtime_error);
}

// List views and tree views report keys so, in 32-bit code.
TEST(Dialog, ANotificationAtAnOddAddressIsRead)
{
    UINT code = 0;
    WORD key = 0;
    ProbeDialog probe;
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
    ProbeDialog probe([&] {
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
    ProbeDialog probe;
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
    ProbeDialog probe;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            main.Invoke([] { EXPECT_THROW(ProbeDialog().ShowModal(), std::logic_error); });
            EXPECT_TRUE(dialog.TakesInput());
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
}

TEST(Dialog, CanBeShownAgainAfterItHasClosed)
{
    ProbeDialog probe;
    for (int i = 1; i <= 2; ++i)
    {
        Drive([](Robot& robot) { robot.WaitForDialog().Close(); }, [&] { probe.ShowModal(); });
        EXPECT_EQ(i, probe.Unloaded);
        EXPECT_EQ(nullptr, probe.Handle());
    }
}

TEST(Dialog, WithAnOwnerTheOwnerTakesNoInputMeanwhile)
{
    class Second : public ui::Dialog
    {
      public:
        Second() : Dialog(IDD_SHOWINFOR) {}
    };
    ProbeDialog owner;
    owner.Init = [] {};
    ProbeDialog* const ownerPointer = &owner;
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

} // namespace
