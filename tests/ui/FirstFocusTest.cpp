// The control that has the focus when a dialog opens. The system allows a dialog to choose it only while the
// dialog is loaded.
#include "tests/support/Drive.h"
#include "ui/Choices.h"
#include "ui/Dialog.h"

#include "resources/ids.h"

#include <gtest/gtest.h>

namespace
{

using test_support::Drive;
using test_support::Robot;

struct Focus
{
    int control = 0;
    bool isShown = false; // the dialog is on the screen
};

Focus gFirst;

LRESULT CALLBACK NoticeFocus(int code, WPARAM window, LPARAM parameter)
{
    const HWND focused = reinterpret_cast<HWND>(window);
    const HWND dialog = GetParent(focused);
    if (code == HCBT_SETFOCUS && gFirst.control == 0 && dialog != nullptr)
    {
        gFirst = {GetDlgCtrlID(focused), IsWindowVisible(dialog) != FALSE};
    }
    return CallNextHookEx(nullptr, code, window, parameter);
}

class WithFocusNoticed
{
  public:
    WithFocusNoticed() : mHook(SetWindowsHookExW(WH_CBT, NoticeFocus, nullptr, GetCurrentThreadId()))
    {
        gFirst = {};
    }
    WithFocusNoticed(const WithFocusNoticed&) = delete;
    WithFocusNoticed& operator=(const WithFocusNoticed&) = delete;
    ~WithFocusNoticed() { UnhookWindowsHookEx(mHook); }

  private:
    HHOOK mHook;
};

constexpr int kOptions = 5;
constexpr int kThird = 2;

// Five options, of which the third is set.
class Options : public ui::Dialog
{
  public:
    explicit Options(int first = 0) : Dialog(IDD_ADVCONTACTS), mFirst(first) {}

  private:
    void OnInit() override { mOptions.Select(kThird); }
    int FirstFocus() const override { return mFirst; }

    int mFirst;
    ui::OptionGroup mOptions{*this, IDC_ADV_CONFLICT, kOptions, 0};
};

void ExpectFirstFocus(int control, Options& dialog)
{
    const WithFocusNoticed noticed;
    Drive(
        [&](Robot& robot) {
            const auto shown = robot.WaitForDialog();
            EXPECT_EQ(control, shown.Focused());
            shown.Close();
        },
        [&] { dialog.ShowModal(); });
    EXPECT_EQ(control, gFirst.control);
    EXPECT_FALSE(gFirst.isShown);
}

TEST(Dialog, GivesTheFocusToTheFirstControlInTheTabOrderThatItsLoadStepLeaves)
{
    Options dialog;
    ExpectFirstFocus(IDC_ADV_CONFLICT + kThird, dialog);
}

TEST(Dialog, GivesTheFocusToTheControlThatItNames)
{
    Options dialog(IDCANCEL);
    ExpectFirstFocus(IDCANCEL, dialog);
}

} // namespace
