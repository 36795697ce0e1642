#include "tests/ui_config/AdvancedDialogs.h"

namespace
{

using namespace ui_config_tests;

class FrmAdvanced : public AdvancedDialogs
{
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
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Update"));
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
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Update"));
}

TEST_P(FrmAdvanced, ContactAndCalendarOkWriteUnchangedCodesToo)
{
    Show(L"Contact", [&](Robot&, const ShownDialog& dialog) { dialog.Click(IDOK); });
    EXPECT_EQ(1, mGround.TheHost.Failures().CallsOf(L"Update"));
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

TEST_P(FrmAdvanced, ADialogThatCouldNotLoadSaysSoAndWritesNothing)
{
    for (const wchar_t* kind : {L"Contact", L"Task", L"Calendar"})
    {
        const std::wstring before = mGround.Options(kind);
        mGround.UseKind(kind);
        mGround.RefuseNextLoad();
        Drive(
            [&](Robot& robot) {
                ReadThatNothingIsLoaded(robot);
                const auto dialog = robot.WaitForDialog();
                EXPECT_FALSE(dialog.IsEnabled(IDOK));
                Set(robot, dialog, kRule1 + 4);
                dialog.Command(IDOK); // all the same
            },
            [&] { config::ShowAdvancedOptions(kind); });
        EXPECT_EQ(before, mGround.Options(kind));
    }
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Update"));
}

TEST_P(FrmAdvanced, ARuleThatIsNullStaysNullAndResetsNoOtherCode)
{
    mGround.SetRow(L"Calendar", L"TransConflictOption=NULL");
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        for (int i = 0; i < 5; ++i)
        {
            EXPECT_FALSE(IsSet(dialog, kRule1 + i));
        }
        EXPECT_TRUE(IsSet(dialog, kRange0 + 2));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"1", mGround.Row(L"SELECT COUNT(*) FROM T_POutlookSyncParam WHERE F_UID=1 AND "
                                L"TransConflictOption IS NULL AND CalendarTransItem=2"));
}

TEST_P(FrmAdvanced, OkStoresOnlyTheCodesThatWereLoadedOrChosen)
{
    mGround.SetRow(L"Task", L"TransConflictOption=NULL,TaskTransItem=NULL");
    Show(L"Task", [&](Robot&, const ShownDialog& dialog) { dialog.Click(IDOK); });
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Update"));
    Show(L"Task", [&](Robot& robot, const ShownDialog& dialog) {
        Set(robot, dialog, kRule1 + 1);
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"2|0|0|0|", mGround.Options(L"Task")); // the range is still NULL
    Show(L"Task", [&](Robot& robot, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        Set(robot, dialog, kRange0);
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"2|0|0|0|0", mGround.Options(L"Task"));
}

TEST_P(FrmAdvanced, WithNoRuleSetTabReachesTheRulesAndChoosesNone)
{
    mGround.SetRow(L"Contact", L"TransConflictOption=NULL");
    Show(L"Contact", [&](Robot& robot, const ShownDialog& dialog) {
        for (const int id :
             {kRule1, IDC_ADV_TABS, static_cast<int>(IDOK), static_cast<int>(IDCANCEL), kRule1, IDC_ADV_TABS})
        {
            robot.WaitUntil("focus on " + std::to_string(id), [&] { return dialog.Focused() == id; });
            dialog.Press(VK_TAB);
        }
        EXPECT_FALSE(IsSet(dialog, kRule1));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Update"));
}

TEST_P(FrmAdvanced, AnOptionThatReportsAClickWithoutBeingSetIsNotChosen)
{
    for (const wchar_t* kind : {L"Contact", L"Task", L"Calendar"})
    {
        mGround.SetRow(kind, L"TransConflictOption=NULL,TaskTransItem=NULL,CalendarTransItem=NULL");
        const std::wstring before = mGround.Options(kind);
        Show(kind, [&](Robot&, const ShownDialog& dialog) {
            dialog.Command(kRule1 + 3); // as a button does that merely gets the focus
            dialog.Command(kRange0 + 1);
            dialog.Click(IDOK);
        });
        EXPECT_EQ(before, mGround.Options(kind));
        EXPECT_EQ(config::kNoCode, mGround.Record().TransConflictOption);
    }
}

TEST_P(FrmAdvanced, ARefusedUpdateIsSilentAndClosesTheDialog)
{
    mGround.TheHost.Failures().Order(L"Update", 1, {.result = -1});
    Show(L"Contact", [&](Robot& robot, const ShownDialog& dialog) {
        Set(robot, dialog, kRule1);
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"2|0|0|0|0", mGround.Options(L"Contact"));
}

} // namespace
