// The list of kinds: what it shows, and how its rows are chosen.
#include "tests/ui_config/KindList.h"

#include "tests/support/Fakes.h"

namespace
{

using namespace ui_config_tests;

class FrmConfigure : public KindList
{
};

INSTANTIATE_TEST_SUITE_P(, FrmConfigure, testing::ValuesIn(ui_tests::kLanguages));

TEST_P(FrmConfigure, SpeaksTheLanguageOfTheInterface)
{
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_EQ(In(GetParam(), L"Quenlar Applications", L"本系统同步项目:"),
                      dialog.Text(IDC_CONFIGURE_LABEL));
            EXPECT_EQ(In(GetParam(), L"&Advanced...", L"高级(&A)..."), dialog.Text(IDC_CONFIGURE_ADVANCE));
            EXPECT_EQ(In(GetParam(), L"Choo&se...", L"选择(&S)..."), dialog.Text(IDC_CONFIGURE_CHOOSE));
            EXPECT_EQ(In(GetParam(), L"&OK", L"确定(&O)"), dialog.Text(IDOK));
            EXPECT_EQ(In(GetParam(), L"&Cancel", L"取消(&C)"), dialog.Text(IDCANCEL));
            EXPECT_EQ(In(GetParam(), L"Contact", L"联系人"), dialog.Row(kKindList, kContact));
            EXPECT_EQ(In(GetParam(), L"Task", L"任务"), dialog.Row(kKindList, kTask));
            EXPECT_EQ(In(GetParam(), L"Calendar", L"日历"), dialog.Row(kKindList, kCalendar));
            dialog.Close();
        },
        config::ShowConfigure);
}

TEST_P(FrmConfigure, RowsShowTheirKindTheirCheckMarkAndTheirDirection)
{
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_EQ(3, dialog.Rows(kKindList));
            EXPECT_TRUE(IsChecked(dialog, kKindList, kContact));
            EXPECT_FALSE(IsChecked(dialog, kKindList, kTask));
            EXPECT_FALSE(IsChecked(dialog, kKindList, kCalendar));
            EXPECT_EQ(Pictures::IndexOf(L"contact"), PictureOf(dialog, kKindList, kContact, 0));
            EXPECT_EQ(Pictures::IndexOf(L"task"), PictureOf(dialog, kKindList, kTask, 0));
            EXPECT_EQ(Pictures::IndexOf(L"calendar"), PictureOf(dialog, kKindList, kCalendar, 0));
            EXPECT_EQ(Pictures::IndexOf(L"each"), PictureOf(dialog, kKindList, kContact, 1));
            EXPECT_EQ(-1, PictureOf(dialog, kKindList, kTask, 1));
            EXPECT_EQ(-1, PictureOf(dialog, kKindList, kCalendar, 1));
            dialog.Close();
        },
        config::ShowConfigure);
}

TEST_P(FrmConfigure, AUserWithoutRowsGetsThemFromTheTemplates)
{
    mGround.Execute(L"DELETE FROM T_POutlookSyncParam WHERE F_UID=1");
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_EQ(3, dialog.Rows(kKindList));
            dialog.Close();
        },
        config::ShowConfigure);
    EXPECT_EQ(L"3", mGround.Row(L"SELECT COUNT(*) FROM T_POutlookSyncParam WHERE F_UID=1"));
}

TEST_P(FrmConfigure, ADialogThatCouldNotLoadSaysSoAndWritesNothing)
{
    mGround.RefuseNextLoad();
    Drive(
        [&](Robot& robot) {
            ReadThatNothingIsLoaded(robot);
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_EQ(0, dialog.Rows(kKindList));
            EXPECT_FALSE(dialog.IsEnabled(IDOK));
            dialog.Command(IDOK); // all the same
        },
        config::ShowConfigure);
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Update"));
}

TEST_P(FrmConfigure, WithoutAHostAMessageIsShownAndTheDialogOpensEmpty)
{
    state::Shared().gDTC = {};
    Drive(
        [&](Robot& robot) {
            ReadThatNothingIsLoaded(robot);
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_EQ(0, dialog.Rows(kKindList));
            dialog.Press(VK_ESCAPE);
        },
        config::ShowConfigure);
}

TEST_P(FrmConfigure, TheButtonsOfARowWaitForOneToBeSelected)
{
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_FALSE(dialog.IsEnabled(IDC_CONFIGURE_CHOOSE));
            EXPECT_FALSE(dialog.IsEnabled(IDC_CONFIGURE_ADVANCE));
            dialog.ChooseRow(kKindList, kTask);
            EXPECT_TRUE(dialog.IsEnabled(IDC_CONFIGURE_CHOOSE));
            EXPECT_TRUE(dialog.IsEnabled(IDC_CONFIGURE_ADVANCE));
            dialog.Close();
        },
        config::ShowConfigure);
    EXPECT_EQ(L"Task", mGround.Record().TransObject);
    EXPECT_EQ(3, mGround.Record().TransConflictOption);
    EXPECT_EQ(1, mGround.Record().TaskTransItem);
}

TEST_P(FrmConfigure, WhenARowIsSelectedNoLongerItsButtonsAreDisabled)
{
    mGround.UseKind(L"Task");
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_TRUE(dialog.IsEnabled(IDC_CONFIGURE_CHOOSE));
            LVITEMW none = {};
            none.stateMask = LVIS_SELECTED;
            dialog.Ask(dialog.Control(kKindList), LVM_SETITEMSTATE, static_cast<WPARAM>(-1),
                       reinterpret_cast<LPARAM>(&none));
            EXPECT_FALSE(dialog.IsEnabled(IDC_CONFIGURE_CHOOSE));
            EXPECT_FALSE(dialog.IsEnabled(IDC_CONFIGURE_ADVANCE));
            dialog.Close();
        },
        config::ShowConfigure);
}

TEST_P(FrmConfigure, TheDirectionIsWrittenBesideItsArrow)
{
    mGround.SetRow(L"Task", L"IsTrans=1");
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_EQ(In(GetParam(), L"Synchronize", L"同步"), dialog.Row(kKindList, kContact, 1));
            EXPECT_EQ(In(GetParam(), L"Import", L"输入"), dialog.Row(kKindList, kTask, 1));
            EXPECT_EQ(L"", dialog.Row(kKindList, kCalendar, 1)); // without a translator
            dialog.ChooseRow(kKindList, kTask);
            dialog.Press(VK_SPACE);
            robot.WaitUntil("no check mark", [&] { return !IsChecked(dialog, kKindList, kTask); });
            EXPECT_EQ(L"", dialog.Row(kKindList, kTask, 1));
            dialog.Close();
        },
        config::ShowConfigure);
}

TEST_P(FrmConfigure, TheRowOfTheRecordsKindIsSelectedAtFirst)
{
    mGround.UseKind(L"Calendar");
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_EQ(kCalendar, SelectedRow(dialog, kKindList));
            EXPECT_TRUE(dialog.IsEnabled(IDC_CONFIGURE_CHOOSE));
            dialog.Close();
        },
        config::ShowConfigure);
}

TEST_P(FrmConfigure, TheRecordOfARowWithoutATranslatorHasNone)
{
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            dialog.ChooseRow(kKindList, kCalendar);
            dialog.Close();
        },
        config::ShowConfigure);
    EXPECT_EQ(L"", mGround.Record().TransSource);
    EXPECT_EQ(L"calendar", mGround.Record().TransObjectPic);
}

TEST_P(FrmConfigure, ARowThatCannotBeLoadedShowsNoFolderOfAnotherKind)
{
    mGround.AddFolderRow(10, L"Store\\Contacts", true);
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            dialog.ChooseRow(kKindList, kContact);
            mGround.RefuseNextLoad();
            dialog.ChooseRow(kKindList, kTask);
            dialog.Close();
        },
        config::ShowConfigure);
    EXPECT_EQ(L"Task", mGround.Record().TransObject);
    EXPECT_EQ(L"", mGround.Record().CurrentFolder);
    EXPECT_EQ(L"", mGround.Record().DefaultFolder);
}

TEST_P(FrmConfigure, TheSpaceBarSetsAndTakesCheckMarksAndTheArrowFollows)
{
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            robot.WaitUntil("focus on the list", [&] { return dialog.Focused() == kKindList; });
            dialog.ChooseRow(kKindList, kTask);
            dialog.Press(VK_SPACE);
            robot.WaitUntil("a check mark", [&] { return IsChecked(dialog, kKindList, kTask); });
            EXPECT_EQ(Pictures::IndexOf(L"left"), PictureOf(dialog, kKindList, kTask, 1));
            dialog.ChooseRow(kKindList, kContact);
            dialog.Press(VK_SPACE);
            robot.WaitUntil("no check mark", [&] { return !IsChecked(dialog, kKindList, kContact); });
            EXPECT_EQ(-1, PictureOf(dialog, kKindList, kContact, 1));
            dialog.Press(VK_RETURN);
        },
        config::ShowConfigure);
    EXPECT_EQ(L"0|Outlook|3|each", mGround.Translation(L"Contact"));
    EXPECT_EQ(L"1|Outlook|1|left", mGround.Translation(L"Task"));
}

TEST_P(FrmConfigure, TabGoesFromTheListOverTheButtonsAndBackToIt)
{
    mGround.UseKind(L"Contact");
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            for (const int id :
                 {kKindList, IDC_CONFIGURE_CHOOSE, IDC_CONFIGURE_ADVANCE, IDOK, IDCANCEL, kKindList})
            {
                robot.WaitUntil("focus on " + std::to_string(id), [&] { return dialog.Focused() == id; });
                dialog.Press(VK_TAB);
            }
            dialog.Close();
        },
        config::ShowConfigure);
}

} // namespace
