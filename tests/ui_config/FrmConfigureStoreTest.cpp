// The list of kinds: what its inner dialogs change, and what OK stores.
#include "tests/ui_config/KindList.h"

namespace
{

using namespace ui_config_tests;

class FrmConfigureStore : public KindList
{
};

INSTANTIATE_TEST_SUITE_P(, FrmConfigureStore, testing::ValuesIn(ui_tests::kLanguages));

TEST_P(FrmConfigureStore, OkWritesEveryRow)
{
    Drive([&](Robot& robot) { robot.WaitForDialog(Caption()).Click(IDOK); }, config::ShowConfigure);
    EXPECT_EQ(L"1|Outlook|3|each", mGround.Translation(L"Contact"));
    EXPECT_EQ(L"0|Outlook|1|left", mGround.Translation(L"Task"));
    EXPECT_EQ(L"0|Null|2|right", mGround.Translation(L"Calendar"));
    EXPECT_EQ(3, mGround.TheHost.Failures().CallsOf(L"Update"));
}

TEST_P(FrmConfigureStore, CancelEscapeAndTheCloseButtonWriteNothing)
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
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Update"));
    EXPECT_EQ(L"1|Outlook|3|each", mGround.Translation(L"Contact"));
}

TEST_P(FrmConfigureStore, AdvancedOpensTheDialogOfTheSelectedKind)
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

TEST_P(FrmConfigureStore, ARowIsRedrawnAfterItsTranslatorHasBeenChosenAndWrittenOnOk)
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

TEST_P(FrmConfigureStore, NoneChosenAndTwiceOkTakesTheKindOutOfTheTable)
{
    Drive(
        [&](Robot& robot) {
            const auto dialog = robot.WaitForDialog(Caption());
            dialog.ChooseRow(kKindList, kContact);
            dialog.Click(IDC_CONFIGURE_CHOOSE);
            const auto choose = robot.WaitForDialog(In(GetParam(), L"Contact", L"联系人"));
            ChooseEntry(choose, IDC_CHOOSE_TRANSLATORS, 0);
            choose.Click(IDOK);
            robot.WaitUntilClosed(choose);
            robot.WaitUntil("no check mark", [&] { return !IsChecked(dialog, kKindList, kContact); });
            EXPECT_EQ(-1, PictureOf(dialog, kKindList, kContact, 1));
            EXPECT_EQ(L"1|Outlook|3|each", mGround.Translation(L"Contact")); // not yet
            dialog.Click(IDOK);
        },
        config::ShowConfigure);
    EXPECT_EQ(L"0|Null|3|each", mGround.Translation(L"Contact"));
}

TEST_P(FrmConfigureStore, EditsAreKeptWhileAnotherRowIsSelected)
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
