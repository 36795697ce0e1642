#include "config/FrmConfigure.h"

#include "tests/support/StandIns.h"
#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

namespace
{

using namespace ui_config_tests;
using config::Pictures;

constexpr int kKindList = IDC_CONFIGURE_LIST;
constexpr int kContact = 0;
constexpr int kTask = 1;
constexpr int kCalendar = 2;

class FrmConfigure : public testing::TestWithParam<Language>
{
  protected:
    std::wstring Caption() const { return In(GetParam(), L"Config Translation", L"配置同步传输"); }
    std::wstring ChooseCaption(const wchar_t* english, const wchar_t* chinese) const
    {
        return In(GetParam(), english, chinese);
    }

    Ground mGround{GetParam()};
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
    mGround.Host.Database().Execute(L"DELETE FROM T_POutlookSyncParam WHERE F_UID=1");
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            EXPECT_EQ(3, dialog.Rows(kKindList));
            dialog.Close();
        },
        config::ShowConfigure);
    EXPECT_EQ(L"3", mGround.Row(L"SELECT COUNT(*) FROM T_POutlookSyncParam WHERE F_UID=1"));
}

TEST_P(FrmConfigure, WithoutAHostTheListIsEmptyAndTheDialogOpens)
{
    state::Shared().gDTC = {};
    Drive(
        [&](Robot& robot) {
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

TEST_P(FrmConfigure, OkWritesEveryRow)
{
    Drive([&](Robot& robot) { robot.WaitForDialog(Caption()).Click(IDOK); }, config::ShowConfigure);
    EXPECT_EQ(L"1|Outlook|3|each", mGround.Translation(L"Contact"));
    EXPECT_EQ(L"0|Outlook|1|left", mGround.Translation(L"Task"));
    EXPECT_EQ(L"0|Null|2|right", mGround.Translation(L"Calendar"));
    EXPECT_EQ(3, mGround.Host.Failures().CallsOf(L"Update"));
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

TEST_P(FrmConfigure, CancelEscapeAndTheCloseButtonWriteNothing)
{
    const std::vector<std::function<void(const ShownDialog&)>> ways = {
        [](const ShownDialog& dialog) { dialog.Click(IDCANCEL); },
        [](const ShownDialog& dialog) { dialog.Press(VK_ESCAPE); },
        [](const ShownDialog& dialog) { dialog.Close(); },
    };
    for (const auto& way : ways)
    {
        Drive(
            [&](Robot& robot) {
                const auto dialog = robot.WaitForDialog(Caption());
                dialog.ChooseRow(kKindList, kContact);
                dialog.Press(VK_SPACE);
                robot.WaitUntil("no check mark", [&] { return !IsChecked(dialog, kKindList, kContact); });
                way(dialog);
            },
            config::ShowConfigure);
    }
    EXPECT_EQ(0, mGround.Host.Failures().CallsOf(L"Update"));
    EXPECT_EQ(L"1|Outlook|3|each", mGround.Translation(L"Contact"));
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

TEST_P(FrmConfigure, AdvancedOpensTheDialogOfTheSelectedKind)
{
    const std::wstring captions[] = {
        In(GetParam(), L"Advanced settings for contact", L"联系人高级设置"),
        In(GetParam(), L"Advanced Settings for Activities", L"任务高级设置"),
        In(GetParam(), L"Advanced Settings for Calendar", L"日历高级设置"),
    };
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            for (int row = kContact; row <= kCalendar; ++row)
            {
                dialog.ChooseRow(kKindList, row);
                dialog.PressAlt(L'a');
                const auto advanced = robot.WaitForDialog(captions[row]);
                advanced.Press(VK_ESCAPE);
                robot.WaitUntilClosed(advanced);
                robot.WaitForDialog(Caption());
            }
            dialog.Close();
        },
        config::ShowConfigure);
}

TEST_P(FrmConfigure, ARowIsRedrawnAfterItsTranslatorHasBeenChosenAndWrittenOnOk)
{
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            dialog.ChooseRow(kKindList, kCalendar);
            dialog.PressAlt(L's');
            const auto choose = robot.WaitForDialog(In(GetParam(), L"Calendar", L"日历"));
            ChooseEntry(choose, IDC_CHOOSE_TRANSLATORS, 1);
            choose.Click(IDC_CHOOSE_DIRECTION); // import
            choose.Click(IDOK);
            robot.WaitUntilClosed(choose);
            robot.WaitForDialog(Caption());
            EXPECT_TRUE(IsChecked(dialog, kKindList, kCalendar));
            EXPECT_EQ(Pictures::IndexOf(L"left"), PictureOf(dialog, kKindList, kCalendar, 1));
            EXPECT_EQ(L"0|Null|2|right", mGround.Translation(L"Calendar")); // not yet
            dialog.Click(IDOK);
        },
        config::ShowConfigure);
    EXPECT_EQ(L"1|Outlook|1|left", mGround.Translation(L"Calendar"));
}

TEST_P(FrmConfigure, WhatHasBeenEditedIsKeptWhileAnotherRowIsSelected)
{
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            dialog.ChooseRow(kKindList, kContact);
            dialog.Click(IDC_CONFIGURE_CHOOSE);
            auto choose = robot.WaitForDialog(In(GetParam(), L"Contact", L"联系人"));
            choose.Click(IDC_CHOOSE_DIRECTION + 1); // export
            choose.Click(IDOK);
            robot.WaitUntilClosed(choose);
            dialog.ChooseRow(kKindList, kTask);
            dialog.ChooseRow(kKindList, kContact);
            dialog.Click(IDC_CONFIGURE_CHOOSE);
            choose = robot.WaitForDialog(In(GetParam(), L"Contact", L"联系人"));
            EXPECT_TRUE(IsSet(choose, IDC_CHOOSE_DIRECTION + 1));
            choose.Close();
            robot.WaitUntilClosed(choose);
            dialog.Click(IDOK);
        },
        config::ShowConfigure);
    EXPECT_EQ(L"1|Outlook|2|right", mGround.Translation(L"Contact"));
}

} // namespace
