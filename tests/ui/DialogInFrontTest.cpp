// The dialogs have no owner. The host's window, which takes no input meanwhile, must not hide them.
#include "ui/Dialog.h"

#include "tests/support/Drive.h"
#include "tests/support/HostWindow.h"
#include "tests/support/ProbeDialog.h"
#include "ui/ShowMessageBox.h"

#include <gtest/gtest.h>

#include <atomic>

#include <commctrl.h>

namespace
{

using test_support::Drive;
using test_support::ProbeDialog;
using test_support::Robot;
using test_support::ShownDialog;

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
    ProbeDialog probe;
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
    ProbeDialog probe([] { ui::ShowMessageBox(L"Over the dialog", MB_OK); });
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

} // namespace
