// The folder picker: its list and what it stores.
#include "tests/ui_config/FolderPicker.h"

namespace
{

using namespace ui_config_tests;
using sandbox::ItemKind;

class FrmSynContent : public FolderPicker
{
};

INSTANTIATE_TEST_SUITE_P(, FrmSynContent, testing::ValuesIn(ui_tests::kLanguages));

TEST_P(FrmSynContent, SpeaksTheLanguageOfTheInterface)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(In(GetParam(), L"Choose", L"选择"), dialog.Text(IDC_CONTENT_TREE_LABEL));
        EXPECT_EQ(In(GetParam(), L"Selected Folder(s):", L"选择目录："), dialog.Text(IDC_CONTENT_LIST_LABEL));
        EXPECT_EQ(In(GetParam(), L"Folder(s)", L"目录"), dialog.ColumnHeader(kFolderList, 0));
        EXPECT_EQ(In(GetParam(), L"&Add", L"添加(&A)"), dialog.Text(IDC_CONTENT_ADD));
        EXPECT_EQ(In(GetParam(), L"&Default", L"缺省(&D)"), dialog.Text(IDC_CONTENT_DEFAULT));
        EXPECT_EQ(In(GetParam(), L"&Remove", L"移除(&R)"), dialog.Text(IDC_CONTENT_REMOVE));
        dialog.Close();
    });
}

TEST_P(FrmSynContent, ThePromptIsThatOfTheKind)
{
    const std::pair<const wchar_t*, UINT> prompts[] = {{L"Contact", 101}, {L"Calendar", 103}, {L"Task", 104}};
    for (const auto& [kind, prompt] : prompts)
    {
        mGround.UseKind(kind);
        Show([&, prompt = prompt](Robot&, const ShownDialog& dialog) {
            EXPECT_EQ(resources::String(prompt), dialog.Text(IDC_CONTENT_PROMPT));
            dialog.Close();
        });
    }
}

TEST_P(FrmSynContent, OkWithoutAChangeChangesNothingNotEvenTheShownFolder)
{
    mGround.AddFolderRow(10, L"Store\\A", false);
    mGround.AddFolderRow(10, L"Store\\B", true);
    const Texts before = mGround.Folders(10);
    for (const wchar_t* shown : {L"Store\\A", L"Store\\B", L""})
    {
        mGround.Record().CurrentFolder = shown;
        Show([&](Robot&, const ShownDialog& dialog) { dialog.Click(IDOK); });
        EXPECT_EQ(before, mGround.Folders(10));
        EXPECT_EQ(shown, mGround.Record().CurrentFolder);
    }
}

TEST_P(FrmSynContent, ReplacingTheDefaultLeavesADefault)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    mGround.Mailbox->AddFolder(kStore + L"\\Friends", ItemKind::Contact);
    Show([&](Robot& robot, const ShownDialog& dialog) {
        Add(robot, dialog, {kStore, L"Friends"});
        dialog.ChooseRow(kFolderList, 0);
        dialog.Click(IDC_CONTENT_REMOVE);
        robot.WaitUntil("one row", [&] { return dialog.Rows(kFolderList) == 1; });
        dialog.Click(IDOK);
    });
    EXPECT_EQ(Texts{kStore + L"\\Friends|1"}, mGround.Folders(10));
}

TEST_P(FrmSynContent, AfterARefusedLoadItSaysSoAndKeepsTheStoredFolders)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    mGround.Record().CurrentFolder = L"Store\\A";
    mGround.RefuseNextLoad();
    Drive(
        [&](Robot& robot) {
            ReadThatNothingIsLoaded(robot);
            const auto dialog = robot.WaitForDialog();
            EXPECT_EQ(0, dialog.Rows(kFolderList));
            for (const int id :
                 {IDC_CONTENT_ADD, IDC_CONTENT_REMOVE, IDC_CONTENT_DEFAULT, static_cast<int>(IDOK)})
            {
                EXPECT_FALSE(dialog.IsEnabled(id)) << id;
            }
            dialog.Command(IDC_CONTENT_ADD);
            dialog.Command(IDOK); // all the same
        },
        [&] { config::ShowSynContent(mGround.Record()); });
    EXPECT_EQ(Texts{L"Store\\A|1"}, mGround.Folders(10));
    EXPECT_EQ(L"Store\\A", mGround.Record().CurrentFolder);
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Delete"));
}

TEST_P(FrmSynContent, AButtonThatHasDoneItsWorkGivesTheFocusBackToItsList)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        const HTREEITEM store = FindNode(dialog, kTree, nullptr, kStore);
        SelectNode(dialog, kTree, FindNode(dialog, kTree, store, L"Contacts"));
        dialog.Click(IDC_CONTENT_ADD);
        robot.WaitUntil("focus on the tree", [&] { return dialog.Focused() == kTree; });
        robot.WaitUntil("disabled buttons", [&] {
            return !dialog.IsEnabled(IDC_CONTENT_ADD) && !dialog.IsEnabled(IDC_CONTENT_DEFAULT);
        }); // the folder is listed, and the default, already
        robot.WaitUntil("a row to remove", [&] { return dialog.IsEnabled(IDC_CONTENT_REMOVE); });
        dialog.Click(IDC_CONTENT_REMOVE);
        robot.WaitUntil("focus on the list", [&] { return dialog.Focused() == kFolderList; });
        robot.WaitUntil("a folder to add, none to remove", [&] {
            return dialog.IsEnabled(IDC_CONTENT_ADD) && !dialog.IsEnabled(IDC_CONTENT_REMOVE);
        });
        dialog.Close();
    });
}

TEST_P(FrmSynContent, StoredFoldersAreListedWithTheDefaultMarked)
{
    mGround.AddFolderRow(10, L"Store\\A", false);
    mGround.AddFolderRow(10, L"Store\\B", true);
    mGround.AddFolderRow(20, L"Store\\Tasks", true);
    Show([&](Robot&, const ShownDialog& dialog) {
        ASSERT_EQ(2, dialog.Rows(kFolderList));
        EXPECT_EQ(L"Store\\A", dialog.Row(kFolderList, 0));
        EXPECT_EQ(L"Store\\B", dialog.Row(kFolderList, 1));
        EXPECT_EQ(kEmpty, PictureOf(dialog, kFolderList, 0, 0)); // so that both texts begin in one place
        EXPECT_EQ(kMark, PictureOf(dialog, kFolderList, 1, 0));
        dialog.Close();
    });
}

TEST_P(FrmSynContent, AddedFoldersReplaceTheStoredOnesOnOk)
{
    mGround.AddFolderRow(20, L"Store\\Tasks", true);
    mGround.Mailbox->AddFolder(kStore + L"\\Friends", ItemKind::Contact);
    Show([&](Robot& robot, const ShownDialog& dialog) {
        Add(robot, dialog, {kStore, L"Contacts"});
        Add(robot, dialog, {kStore, L"Friends"});
        dialog.Click(IDOK);
    });
    EXPECT_EQ((Texts{kStore + L"\\Contacts|1", kStore + L"\\Friends|0"}), mGround.Folders(10));
    EXPECT_EQ(Texts{L"Store\\Tasks|1"}, mGround.Folders(20));
    EXPECT_EQ(kStore + L"\\Friends", mGround.Record().CurrentFolder); // the selected one
}

TEST_P(FrmSynContent, AFolderThatIsListedAlreadyIsNotAddedAgain)
{
    mGround.AddFolderRow(10, kStore + L"\\Contacts", true);
    mGround.Mailbox->AddFolder(kStore + L"\\Friends", ItemKind::Contact);
    Show([&](Robot& robot, const ShownDialog& dialog) {
        const HTREEITEM store = FindNode(dialog, kTree, nullptr, kStore);
        SelectNode(dialog, kTree, FindNode(dialog, kTree, store, L"Contacts"));
        EXPECT_FALSE(dialog.IsEnabled(IDC_CONTENT_ADD));
        dialog.Command(IDC_CONTENT_ADD);
        Add(robot, dialog, {kStore, L"Friends"}); // and nothing else has been added before
        dialog.Click(IDOK);
    });
    EXPECT_EQ((Texts{kStore + L"\\Contacts|1", kStore + L"\\Friends|0"}), mGround.Folders(10));
}

TEST_P(FrmSynContent, DefaultMovesTheMarkToTheSelectedFolder)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    mGround.AddFolderRow(10, L"Store\\B", false);
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.ChooseRow(kFolderList, 1);
        dialog.PressAlt(L'd');
        robot.WaitUntil("the mark", [&] { return PictureOf(dialog, kFolderList, 1, 0) == kMark; });
        EXPECT_EQ(kEmpty, PictureOf(dialog, kFolderList, 0, 0));
        EXPECT_EQ(1, SelectedRow(dialog, kFolderList));
        dialog.Press(VK_RETURN);
    });
    EXPECT_EQ((Texts{L"Store\\A|0", L"Store\\B|1"}), mGround.Folders(10));
    EXPECT_EQ(L"Store\\B", mGround.Record().CurrentFolder);
}

TEST_P(FrmSynContent, DefaultAndRemoveDoNothingWithoutASelectedFolder)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_FALSE(dialog.IsEnabled(IDC_CONTENT_DEFAULT));
        EXPECT_FALSE(dialog.IsEnabled(IDC_CONTENT_REMOVE));
        dialog.Command(IDC_CONTENT_DEFAULT);
        dialog.Command(IDC_CONTENT_REMOVE);
        dialog.Click(IDOK);
    });
    EXPECT_TRUE(mGround.Folders(10).empty());
}

TEST_P(FrmSynContent, OkWithAnEmptyListDeletesAllRowsOfTheKind)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    mGround.AddFolderRow(10, L"Store\\B", false);
    mGround.Record().CurrentFolder = mGround.Record().DefaultFolder = L"Store\\A";
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.Click(IDC_CONTENT_REMOVE);
        dialog.PressAlt(L'r');
        robot.WaitUntil("an empty list", [&] { return dialog.Rows(kFolderList) == 0; });
        dialog.Click(IDOK);
    });
    EXPECT_TRUE(mGround.Folders(10).empty());
    EXPECT_EQ(L"", mGround.Record().CurrentFolder);
    EXPECT_EQ(L"", mGround.Record().DefaultFolder);
}

TEST_P(FrmSynContent, CancelKeepsTheStoredFolders)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.Click(IDC_CONTENT_REMOVE);
        robot.WaitUntil("an empty list", [&] { return dialog.Rows(kFolderList) == 0; });
        dialog.Press(VK_ESCAPE);
    });
    EXPECT_EQ(Texts{L"Store\\A|1"}, mGround.Folders(10));
}

TEST_P(FrmSynContent, ARefusedDeleteKeepsTheDialogOpen)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    mGround.TheHost.Failures().Order(L"Delete", 1, {.result = -1});
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.Click(IDOK);
        robot.WaitUntil("the refusal", [&] { return mGround.TheHost.Failures().CallsOf(L"Delete") == 1; });
        dialog.Ask(dialog.Handle(), WM_NULL);
        EXPECT_TRUE(dialog.TakesInput());
        dialog.Close();
    });
    EXPECT_EQ(Texts{L"Store\\A|1"}, mGround.Folders(10));
}

TEST_P(FrmSynContent, AnUnknownKindShowsAndWritesNothing)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    mGround.Record().TransObject = L"Notes";
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_TRUE(NodesBelow(dialog, kTree, nullptr).empty());
        EXPECT_EQ(0, dialog.Rows(kFolderList));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(0, mGround.TheHost.Failures().CallsOf(L"Delete"));
    EXPECT_EQ(Texts{L"Store\\A|1"}, mGround.Folders(10));
}

TEST_P(FrmSynContent, TabFollowsTheLayout)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    mGround.AddFolderRow(10, L"Store\\B", false);
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.ChooseRow(kFolderList, 1); // now every button has something to do
        for (const int id : {kTree, IDC_CONTENT_ADD, IDC_CONTENT_REMOVE, IDC_CONTENT_DEFAULT, kFolderList,
                             static_cast<int>(IDOK), static_cast<int>(IDCANCEL), kTree})
        {
            robot.WaitUntil("focus on " + std::to_string(id), [&] { return dialog.Focused() == id; });
            dialog.Press(VK_TAB);
        }
        dialog.Close();
    });
}

} // namespace
