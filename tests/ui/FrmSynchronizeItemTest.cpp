// How the main dialog looks, how it is chosen from and left.
#include "sandbox/dispatch/DispatchObject.h"
#include "tests/support/Fakes.h"
#include "tests/ui/MainDialog.h"

namespace
{

using namespace ui_tests;

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

TEST(FrmSynchronizeItem, TheConfigurationOpensOnTheChosenKind)
{
    const std::pair<int, const wchar_t*> kinds[] = {
        {kTaskRow, L"Task"}, {kCalendarRow, L"Calendar"}, {kContactRow, L"Contact"}};
    for (const auto& [row, kind] : kinds)
    {
        const Interface chinese(Language::Chinese);
        Recorder recorder;
        Use(recorder, [&, chosen = row](Robot& robot, const ShownDialog& dialog) {
            dialog.ChooseRow(IDC_SYNC_CATEGORY, chosen);
            dialog.Click(IDC_SYNC_CONFIGURE);
            robot.WaitUntil("the configuration", [&] { return recorder.Configured == 1; });
        });
        EXPECT_EQ(kind, recorder.ConfiguredKind);
    }
}

// The colour of a row right of its text.
COLORREF GroundOf(const ShownDialog& dialog, int list, int row)
{
    const HWND window = dialog.Control(list);
    RECT place = {LVIR_BOUNDS, 0, 0, 0};
    dialog.Ask(window, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    const HDC context = GetDC(window);
    const COLORREF color = GetPixel(context, place.right - 10, (place.top + place.bottom) / 2);
    ReleaseDC(window, context);
    return color;
}

int Difference(COLORREF a, COLORREF b)
{
    return abs(GetRValue(a) - GetRValue(b)) + abs(GetGValue(a) - GetGValue(b)) +
           abs(GetBValue(a) - GetBValue(b));
}

TEST(FrmSynchronizeItem, TheChosenRowStaysVisibleWhileAButtonHasTheFocus)
{
    const Interface english(Language::English);
    Recorder recorder;
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        dialog.ChooseRow(IDC_SYNC_CATEGORY, kCalendarRow);
        dialog.Ask(dialog.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Control(IDCANCEL)), TRUE);
        robot.WaitUntil("focus on a button", [&] { return dialog.Focused() == IDCANCEL; });
        dialog.Ask(dialog.Handle(), WM_NULL);
        RedrawWindow(dialog.Control(IDC_SYNC_CATEGORY), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        robot.WaitUntil("a row that differs from the others", [&] {
            return Difference(GroundOf(dialog, IDC_SYNC_CATEGORY, kCalendarRow),
                              GroundOf(dialog, IDC_SYNC_CATEGORY, kTaskRow)) >= 40;
        });
    });
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
