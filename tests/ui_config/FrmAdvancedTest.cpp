#include "config/FrmAdvanced.h"

#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

namespace
{

using namespace ui_config_tests;

constexpr int kRule1 = IDC_ADV_CONFLICT;
constexpr int kRange0 = IDC_ADV_RANGE;
constexpr int kPrior = IDC_ADVCALENDAR_PRIOR;
constexpr int kAfter = IDC_ADVCALENDAR_AFTER;

class FrmAdvanced : public testing::TestWithParam<Language>
{
  protected:
    void Show(const wchar_t* kind, const std::function<void(Robot&, const ShownDialog&)>& script)
    {
        mGround.UseKind(kind);
        Drive([&](Robot& robot) { script(robot, robot.WaitForDialog()); },
              [&] { config::ShowAdvancedOptions(kind); });
    }

    static void ShowPage(const ShownDialog& dialog, int page)
    {
        const HWND tabs = dialog.Control(IDC_ADV_TABS);
        dialog.Ask(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(page)); // with its notification
    }

    static void Set(Robot& robot, const ShownDialog& dialog, int option)
    {
        dialog.Click(option);
        robot.WaitUntil("the option", [&] { return IsSet(dialog, option); });
    }

    static void Type(const ShownDialog& dialog, int box, const wchar_t* text)
    {
        for (; *text != 0; ++text)
        {
            dialog.Ask(dialog.Control(box), WM_CHAR, *text);
        }
    }

    static void Focus(Robot& robot, const ShownDialog& dialog, int id)
    {
        dialog.Ask(dialog.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Control(id)), TRUE);
        robot.WaitUntil("the focus", [&] { return dialog.Focused() == id; });
    }

    Ground mGround{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, FrmAdvanced, testing::ValuesIn(ui_tests::kLanguages));

TEST_P(FrmAdvanced, AnyOtherKindShowsNothing)
{
    config::ShowAdvancedOptions(L"Notes");
    config::ShowAdvancedOptions(L"");
}

TEST_P(FrmAdvanced, CaptionsAndTabsAreThoseOfTheKind)
{
    struct Expected
    {
        const wchar_t* kind;
        std::wstring caption;
        int tabs;
        std::wstring rangeTab;
    };
    const Language language = GetParam();
    const Expected forms[] = {
        {L"Contact", In(language, L"Advanced settings for contact", L"联系人高级设置"), 1, L""},
        {L"Task", In(language, L"Advanced Settings for Activities", L"任务高级设置"), 2,
         In(language, L"Activities", L"任务")},
        {L"Calendar", In(language, L"Advanced Settings for Calendar", L"日历高级设置"), 2,
         In(language, L"Date Range", L"日期范围")},
    };
    for (const Expected& form : forms)
    {
        Show(form.kind, [&](Robot&, const ShownDialog& dialog) {
            EXPECT_EQ(form.caption, dialog.Caption());
            EXPECT_EQ(form.tabs, dialog.Ask(dialog.Control(IDC_ADV_TABS), TCM_GETITEMCOUNT));
            EXPECT_EQ(resources::String(IDS_CONFLICT_TAB), dialog.Tab(IDC_ADV_TABS, 0));
            EXPECT_EQ(form.rangeTab, dialog.Tab(IDC_ADV_TABS, 1));
            EXPECT_EQ(resources::String(IDS_OPTIONS), dialog.Text(IDC_ADV_CONFLICT_FRAME));
            EXPECT_EQ(resources::String(IDS_CONFLICT_EXPLANATION), dialog.Text(IDC_ADV_CONFLICT_EXPLANATION));
            dialog.Close();
        });
    }
}

TEST_P(FrmAdvanced, OptionsKeepTheirMisspeltCaptions)
{
    const wchar_t* const rules[][2] = {{L"Add all confliction items", L"添加冲突的项目"},
                                       {L"Igore all conflictiongitems", L"忽略冲突的所有项目"},
                                       {L"Notfy me when conflicts occur", L"显示冲突信息"},
                                       {L"Quelar Wins", L"本系统优先级高"},
                                       {L"MS Outlook Wins", L"MS Outlook 优先级高"}};
    const wchar_t* const ranges[][2] = {
        {L"Transfer all scheduled items", L"传输所有的日历"},
        {L"Transfer only future items", L"传输将来的日历"},
        {L"Transfer items within a range of Days", L"传输一个指定日期范围的日历"}};
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        for (int i = 0; i < 5; ++i)
        {
            EXPECT_EQ(In(GetParam(), rules[i][0], rules[i][1]), dialog.Text(kRule1 + i));
        }
        for (int i = 0; i < 3; ++i)
        {
            EXPECT_EQ(In(GetParam(), ranges[i][0], ranges[i][1]), dialog.Text(kRange0 + i));
        }
        dialog.Close();
    });
    Show(L"Task", [&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(In(GetParam(), L"Transfer all items", L"传输所有的任务"), dialog.Text(kRange0));
        EXPECT_EQ(In(GetParam(), L"Transfer only pending items", L"传输未完成的的任务"),
                  dialog.Text(kRange0 + 1));
        dialog.Close();
    });
}

TEST_P(FrmAdvanced, OnlyTheChosenTabsPageIsVisible)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        EXPECT_TRUE(dialog.IsVisible(kRule1));
        EXPECT_FALSE(dialog.IsVisible(kRange0));
        EXPECT_FALSE(dialog.IsVisible(kPrior));
        ShowPage(dialog, 1);
        EXPECT_FALSE(dialog.IsVisible(kRule1));
        EXPECT_TRUE(dialog.IsVisible(kRange0));
        EXPECT_TRUE(dialog.IsVisible(kPrior));
        EXPECT_TRUE(dialog.IsVisible(IDOK));
        dialog.Close();
    });
}

TEST_P(FrmAdvanced, ContactsStoreTheIndexOfTheChosenRule)
{
    for (int rule = 1; rule <= 5; ++rule)
    {
        Show(L"Contact", [&](Robot& robot, const ShownDialog& dialog) {
            Set(robot, dialog, kRule1 + rule - 1);
            dialog.Click(IDOK);
        });
        EXPECT_EQ(std::to_wstring(rule) + L"|0|0|0|0", mGround.Options(L"Contact"));
        EXPECT_EQ(rule, mGround.Record().TransConflictOption);
    }
}

TEST_P(FrmAdvanced, TheStoredRuleIsSetAtFirstAndHasTheFocus)
{
    Show(L"Contact", [&](Robot& robot, const ShownDialog& dialog) {
        EXPECT_TRUE(IsSet(dialog, kRule1 + 1));
        robot.WaitUntil("the focus", [&] { return dialog.Focused() == kRule1 + 1; });
        dialog.Press(VK_DOWN);
        robot.WaitUntil("the next rule", [&] { return IsSet(dialog, kRule1 + 2); });
        dialog.Press(VK_RETURN);
    });
    EXPECT_EQ(3, mGround.Record().TransConflictOption);
}

TEST_P(FrmAdvanced, CancelWritesNothing)
{
    for (const wchar_t* kind : {L"Contact", L"Task", L"Calendar"})
    {
        Show(kind, [&](Robot& robot, const ShownDialog& dialog) {
            Set(robot, dialog, kRule1 + 4);
            dialog.Press(VK_ESCAPE);
        });
    }
    EXPECT_EQ(0, mGround.Host.Failures().CallsOf(L"Update"));
}

TEST_P(FrmAdvanced, TasksStoreBothCodesWhenOneDiffers)
{
    Show(L"Task", [&](Robot& robot, const ShownDialog& dialog) {
        EXPECT_TRUE(IsSet(dialog, kRange0 + 1));
        ShowPage(dialog, 1);
        Set(robot, dialog, kRange0);
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"3|0|0|0|0", mGround.Options(L"Task"));
    EXPECT_EQ(0, mGround.Record().TaskTransItem);
}

TEST_P(FrmAdvanced, TaskOkWithoutChangesWritesNothing)
{
    Show(L"Task", [&](Robot&, const ShownDialog& dialog) { dialog.Click(IDOK); });
    EXPECT_EQ(0, mGround.Host.Failures().CallsOf(L"Update"));
}

TEST_P(FrmAdvanced, ContactAndCalendarOkWriteUnchangedCodesToo)
{
    Show(L"Contact", [&](Robot&, const ShownDialog& dialog) { dialog.Click(IDOK); });
    EXPECT_EQ(1, mGround.Host.Failures().CallsOf(L"Update"));
}

TEST_P(FrmAdvanced, CalendarDaysAreFilledCrosswiseAndOkExchangesThem)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        EXPECT_TRUE(IsSet(dialog, kRange0 + 2));
        EXPECT_TRUE(dialog.IsEnabled(kPrior));
        EXPECT_EQ(L"3", dialog.Text(kPrior));
        EXPECT_EQ(L"7", dialog.Text(kAfter));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|3|7|0", mGround.Options(L"Calendar"));
    EXPECT_EQ(3, mGround.Record().CalendarPrior);
    EXPECT_EQ(7, mGround.Record().CalendarAfter);
}

TEST_P(FrmAdvanced, SwitchingToTheRangeFromAnotherOptionFillsTheDaysCrosswiseAgain)
{
    Show(L"Calendar", [&](Robot& robot, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        Set(robot, dialog, kRange0 + 1);
        robot.WaitUntil("disabled boxes", [&] { return !dialog.IsEnabled(kPrior); });
        EXPECT_FALSE(dialog.IsEnabled(kAfter));
        Set(robot, dialog, kRange0 + 2);
        robot.WaitUntil("enabled boxes",
                        [&] { return dialog.IsEnabled(kPrior) && dialog.IsEnabled(kAfter); });
        EXPECT_EQ(L"3", dialog.Text(kPrior));
        EXPECT_EQ(L"7", dialog.Text(kAfter));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|3|7|0", mGround.Options(L"Calendar"));
}

TEST_P(FrmAdvanced, CalendarOkWithAnotherRangeLeavesTheStoredDaysAndForgetsThoseInMemory)
{
    for (const int range : {0, 1})
    {
        mGround.SetRow(L"Calendar", L"CalendarTransItem=2");
        Show(L"Calendar", [&](Robot& robot, const ShownDialog& dialog) {
            ShowPage(dialog, 1);
            Set(robot, dialog, kRange0 + range);
            dialog.Click(IDOK);
        });
        EXPECT_EQ(L"4|" + std::to_wstring(range) + L"|7|3|0", mGround.Options(L"Calendar"));
        EXPECT_EQ(0, mGround.Record().CalendarPrior);
        EXPECT_EQ(0, mGround.Record().CalendarAfter);
        EXPECT_EQ(range, mGround.Record().CalendarTransItem);
    }
}

TEST_P(FrmAdvanced, LettersTypedIntoADayBoxDoNotAppear)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        for (const int box : {kPrior, kAfter})
        {
            dialog.Ask(dialog.Control(box), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
            Type(dialog, box, L"1a-2 .xé3\x0016");
            EXPECT_EQ(L"123", dialog.Text(box));
            Type(dialog, box, L"\b");
            EXPECT_EQ(L"12", dialog.Text(box));
        }
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|12|12|0", mGround.Options(L"Calendar"));
}

TEST_P(FrmAdvanced, AnEmptyDayBoxIsZero)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        dialog.Ask(dialog.Control(kPrior), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|0|7|0", mGround.Options(L"Calendar"));
}

TEST_P(FrmAdvanced, EnterInTheFirstDayBoxMovesOnAndInTheSecondActsOnOk)
{
    Show(L"Calendar", [&](Robot& robot, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        Focus(robot, dialog, kPrior);
        dialog.Press(VK_RETURN);
        robot.WaitUntil("focus on the second box", [&] { return dialog.Focused() == kAfter; });
        EXPECT_TRUE(dialog.TakesInput());
        dialog.Press(VK_RETURN);
        robot.WaitUntilClosed(dialog);
    });
    EXPECT_EQ(1, mGround.Host.Failures().CallsOf(L"Update"));
}

TEST_P(FrmAdvanced, TabGoesThroughThePageTheTabsAndTheButtons)
{
    Show(L"Calendar", [&](Robot& robot, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        Focus(robot, dialog, kRange0 + 2);
        for (const int id : {kRange0 + 2, kPrior, kAfter, IDC_ADV_TABS, static_cast<int>(IDOK),
                             static_cast<int>(IDCANCEL), kRange0 + 2})
        {
            robot.WaitUntil("focus on " + std::to_string(id), [&] { return dialog.Focused() == id; });
            dialog.Press(VK_TAB);
        }
        dialog.Close();
    });
}

TEST_P(FrmAdvanced, ARefusedUpdateIsSilentAndClosesTheDialog)
{
    mGround.Host.Failures().Order(L"Update", 1, {.result = -1});
    Show(L"Contact", [&](Robot& robot, const ShownDialog& dialog) {
        Set(robot, dialog, kRule1);
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"2|0|0|0|0", mGround.Options(L"Contact"));
}

} // namespace
