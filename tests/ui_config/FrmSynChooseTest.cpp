#include "config/dialogs/FrmSynChoose.h"

#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

namespace
{

using namespace ui_config_tests;

constexpr int kImport = IDC_CHOOSE_DIRECTION;
constexpr int kExport = IDC_CHOOSE_DIRECTION + 1;
constexpr int kBoth = IDC_CHOOSE_DIRECTION + 2;
constexpr int kNone = 0;
constexpr int kOutlook = 1;

class FrmSynChoose : public testing::TestWithParam<Language>
{
  protected:
    FrmSynChoose()
    {
        mGround.AddFolderRow(10, test_support::kContactRecords.folder, true);
        mGround.UseKind(L"Contact");
    }

    void Show(const std::function<void(Robot&, const ShownDialog&)>& script)
    {
        Drive([&](Robot& robot) { script(robot, robot.WaitForDialog()); }, [] { config::ShowSynChoose(); });
    }

    Ground mGround{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, FrmSynChoose, testing::ValuesIn(ui_tests::kLanguages));

TEST_P(FrmSynChoose, SpeaksTheLanguageOfTheInterface)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        for (const auto& [id, english, chinese] :
             std::vector<std::tuple<int, const wchar_t*, const wchar_t*>>{
                 {kImport, L"Import", L"输入"},
                 {kExport, L"Export", L"输出"},
                 {kBoth, L"Synchronize", L"同步"},
                 {IDOK, L"&OK", L"确定(&O)"},
                 {IDCANCEL, L"&Cancel", L"取消(&C)"},
             })
        {
            EXPECT_EQ(In(GetParam(), english, chinese), dialog.Text(id));
        }
        for (const auto& [id, text] : std::vector<std::pair<int, UINT>>{
                 {IDC_CHOOSE_PROMPT, IDS_CHOOSE_PROMPT},
                 {IDC_CHOOSE_TRANSLATORS_LABEL, IDS_CHOOSE_TRANSLATORS},
                 {IDC_CHOOSE_OPERATION, IDS_CHOOSE_OPERATION},
                 {IDC_CHOOSE_FOLDER_LABEL, IDS_CHOOSE_FOLDER},
                 {IDC_CHOOSE_BROWSE, IDS_CHOOSE_BROWSE},
                 {IDC_CHOOSE_OPTION, IDS_CHOOSE_OPTION},
             })
        {
            EXPECT_FALSE(resources::String(text).empty());
            EXPECT_EQ(resources::String(text), dialog.Text(id));
        }
        dialog.Close();
    });
}

TEST_P(FrmSynChoose, ShowsTheValuesOfTheRecord)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ((Texts{L"<None>", L"Ms Outlook"}), Entries(dialog, IDC_CHOOSE_TRANSLATORS));
        EXPECT_EQ(kOutlook, dialog.Ask(dialog.Control(IDC_CHOOSE_TRANSLATORS), LB_GETCURSEL));
        EXPECT_TRUE(IsSet(dialog, kBoth));
        EXPECT_EQ(test_support::kContactRecords.folder, dialog.Text(IDC_CHOOSE_FOLDER));
        dialog.Close();
    });
}

TEST_P(FrmSynChoose, WithoutATranslatorNoneIsSelectedAndNoFolderShown)
{
    mGround.Record().TransSource.clear();
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(kNone, dialog.Ask(dialog.Control(IDC_CHOOSE_TRANSLATORS), LB_GETCURSEL));
        EXPECT_EQ(L"", dialog.Text(IDC_CHOOSE_FOLDER));
        ChooseEntry(dialog, IDC_CHOOSE_TRANSLATORS, kOutlook);
        EXPECT_EQ(test_support::kContactRecords.folder, dialog.Text(IDC_CHOOSE_FOLDER));
        dialog.Close();
    });
    EXPECT_EQ(L"", mGround.Record().TransSource); // Cancel keeps the record
}

TEST_P(FrmSynChoose, ChoosingNoneAndOkTakesTheKindOut)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        ChooseEntry(dialog, IDC_CHOOSE_TRANSLATORS, kNone);
        EXPECT_EQ(L"", dialog.Text(IDC_CHOOSE_FOLDER));
        dialog.Click(IDOK);
    });
    EXPECT_FALSE(mGround.Record().IsTrans);
    EXPECT_EQ(L"", mGround.Record().TransSource);
    EXPECT_EQ(L"1|Outlook|3|each", mGround.Translation(L"Contact")); // the list dialog writes
}

TEST_P(FrmSynChoose, EachOptionHasItsCodeAndPicture)
{
    const std::tuple<int, long, const wchar_t*> options[] = {
        {kImport, 1, L"left"}, {kExport, 2, L"right"}, {kBoth, 3, L"each"}};
    for (const auto& [option, code, picture] : options)
    {
        const int id = option; // clang 14 lets no lambda capture a structured binding
        Show([&](Robot& robot, const ShownDialog& dialog) {
            dialog.Click(id);
            robot.WaitUntil("the option", [&] { return IsSet(dialog, id); });
            dialog.Click(IDOK);
        });
        EXPECT_EQ(code, mGround.Record().TransType);
        EXPECT_EQ(picture, mGround.Record().TransTypePic);
        EXPECT_TRUE(mGround.Record().IsTrans);
    }
}

TEST_P(FrmSynChoose, ADirectionChosenBeforeTheTranslatorStays)
{
    mGround.Record().TransSource.clear();
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.Click(kExport);
        robot.WaitUntil("the option", [&] { return IsSet(dialog, kExport); });
        ChooseEntry(dialog, IDC_CHOOSE_TRANSLATORS, kOutlook);
        dialog.Click(IDOK);
    });
    EXPECT_EQ(2, mGround.Record().TransType);
    EXPECT_EQ(L"right", mGround.Record().TransTypePic);
    EXPECT_EQ(L"Outlook", mGround.Record().TransSource);
}

TEST_P(FrmSynChoose, CancelKeepsTheRecord)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        dialog.Click(kImport);
        ChooseEntry(dialog, IDC_CHOOSE_TRANSLATORS, kNone);
        dialog.Press(VK_ESCAPE);
    });
    EXPECT_EQ(3, mGround.Record().TransType);
    EXPECT_EQ(L"Outlook", mGround.Record().TransSource);
}

TEST_P(FrmSynChoose, TheArrowKeysMoveThroughTheOptions)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.Press(VK_TAB); // from the list to the option that is set
        robot.WaitUntil("focus on the set option", [&] { return dialog.Focused() == kBoth; });
        dialog.Press(VK_UP);
        robot.WaitUntil("the option above", [&] { return IsSet(dialog, kExport); });
        dialog.Press(VK_RETURN);
    });
    EXPECT_EQ(2, mGround.Record().TransType);
}

TEST_P(FrmSynChoose, TabFollowsTheLayout)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        for (const int id : {IDC_CHOOSE_TRANSLATORS, kBoth, IDC_CHOOSE_FOLDER, IDC_CHOOSE_BROWSE,
                             IDC_CHOOSE_OPTION, IDOK, IDCANCEL, IDC_CHOOSE_TRANSLATORS})
        {
            robot.WaitUntil("focus on " + std::to_string(id), [&] { return dialog.Focused() == id; });
            dialog.Press(VK_TAB);
        }
        dialog.Close();
    });
}

TEST_P(FrmSynChoose, WithNoDirectionSetTabReachesTheDirectionsAndChoosesNone)
{
    mGround.Record().TransType = 0;
    mGround.Record().TransTypePic.clear();
    Show([&](Robot& robot, const ShownDialog& dialog) {
        for (const int id : {IDC_CHOOSE_TRANSLATORS, kImport, IDC_CHOOSE_FOLDER})
        {
            robot.WaitUntil("focus on " + std::to_string(id), [&] { return dialog.Focused() == id; });
            dialog.Press(VK_TAB);
        }
        EXPECT_FALSE(IsSet(dialog, kImport));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(0, mGround.Record().TransType);
    EXPECT_EQ(L"", mGround.Record().TransTypePic);
}

TEST_P(FrmSynChoose, BrowseAndOptionOnlyTellTheUserWhenThereIsNoProfile)
{
    config_tests::ProfileKey::Remove();
    const config_tests::ProfileKey empty;
    Show([&](Robot& robot, const ShownDialog& dialog) {
        for (const int id : {IDC_CHOOSE_BROWSE, IDC_CHOOSE_OPTION})
        {
            dialog.Click(id);
            const auto message = robot.WaitForDialog(In(GetParam(), L"Error", L"错误"));
            EXPECT_EQ(In(GetParam(), L"Please configue Outlook.", L"请你先配置Outlook."),
                      message.Text(IDC_SHOWINFOR_DESCRIPTION));
            message.Click(IDOK);
            robot.WaitUntilClosed(message);
            robot.WaitUntil("the dialog", [&] { return dialog.TakesInput(); });
        }
        dialog.Close();
    });
}

TEST_P(FrmSynChoose, BrowseOpensTheFolderPickerAndShowsItsFolder)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.PressAlt(L'b');
        const auto picker = robot.WaitForDialogAfter(dialog);
        EXPECT_NE(nullptr, picker.Control(IDC_CONTENT_TREE));
        EXPECT_NE(dialog.Caption(), picker.Caption());
        EXPECT_EQ(dialog.Handle(), GetWindow(picker.Handle(), GW_OWNER));
        picker.Click(IDC_CONTENT_REMOVE);
        robot.WaitUntil("an empty list", [&] { return picker.Rows(IDC_CONTENT_LIST) == 0; });
        picker.Click(IDOK);
        robot.WaitUntilClosed(picker);
        EXPECT_EQ(L"", dialog.Text(IDC_CHOOSE_FOLDER));
        dialog.Close();
    });
    EXPECT_TRUE(mGround.Folders(10).empty());
}

TEST_P(FrmSynChoose, OptionOpensTheProfileDialog)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.Click(IDC_CHOOSE_OPTION);
        const auto options = robot.WaitForDialogAfter(dialog);
        EXPECT_EQ(resources::String(IDS_PROFILE_CAPTION), options.Caption());
        options.Close();
        robot.WaitUntilClosed(options);
        dialog.Close();
    });
}

} // namespace
