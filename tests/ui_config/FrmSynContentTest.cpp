#include "config/FrmSynContent.h"

#include "sandbox/dispatch/DispatchObject.h"
#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>

namespace
{

using namespace ui_config_tests;
using sandbox::ItemKind;

constexpr int kTree = IDC_CONTENT_TREE;
constexpr int kFolderList = IDC_CONTENT_LIST;
const std::wstring kStore = L"Personal Folders";

class FrmSynContent : public testing::TestWithParam<Language>
{
  protected:
    FrmSynContent() { mGround.UseKind(L"Contact"); }

    void Show(const std::function<void(Robot&, const ShownDialog&)>& script)
    {
        Drive([&](Robot& robot) { script(robot, robot.WaitForDialog()); },
              [&] { config::FrmSynContent(mGround.Record()).ShowModal(); });
    }

    // Selects a folder by its names and presses Add.
    static void Add(Robot& robot, const ShownDialog& dialog, const Texts& names)
    {
        const int before = dialog.Rows(kFolderList);
        HTREEITEM node = nullptr;
        for (const std::wstring& name : names)
        {
            node = FindNode(dialog, kTree, node, name);
        }
        ASSERT_NE(nullptr, node);
        SelectNode(dialog, kTree, node);
        dialog.Click(IDC_CONTENT_ADD);
        robot.WaitUntil("a new row", [&] { return dialog.Rows(kFolderList) == before + 1; });
    }

    Ground mGround{GetParam()};
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

TEST_P(FrmSynContent, TheTreeShowsContainersAndFoldersOfTheKind)
{
    mGround.Mailbox->AddFolder(kStore + L"\\Projects\\Mail only");
    mGround.Mailbox->AddFolder(kStore + L"\\Contacts\\Friends", ItemKind::Contact);
    mGround.Mailbox->AddFolder(L"Empty store");
    Show([&](Robot& robot, const ShownDialog& dialog) {
        EXPECT_EQ(Texts{kStore}, NodesBelow(dialog, kTree, nullptr));
        const HTREEITEM store = FindNode(dialog, kTree, nullptr, kStore);
        EXPECT_EQ((Texts{L"Contacts", L"Projects"}), NodesBelow(dialog, kTree, store));
        const HTREEITEM projects = FindNode(dialog, kTree, store, L"Projects");
        dialog.Ask(dialog.Control(kTree), TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(projects));
        EXPECT_TRUE(NodesBelow(dialog, kTree, projects).empty()); // only mail in it
        const HTREEITEM contacts = FindNode(dialog, kTree, store, L"Contacts");
        SelectNode(dialog, kTree, contacts);
        dialog.Ask(dialog.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Control(kTree)), TRUE);
        dialog.Press(VK_RIGHT); // opens it
        robot.WaitUntil("an open node", [&] { return !NodesBelow(dialog, kTree, contacts).empty(); });
        EXPECT_EQ(Texts{L"Friends"}, NodesBelow(dialog, kTree, contacts));
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
        EXPECT_EQ(-1, PictureOf(dialog, kFolderList, 0, 0));
        EXPECT_NE(-1, PictureOf(dialog, kFolderList, 1, 0));
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
        dialog.Click(IDC_CONTENT_ADD);
        Add(robot, dialog, {kStore, L"Friends"}); // and nothing else has been added before
        dialog.Click(IDOK);
    });
    EXPECT_EQ((Texts{kStore + L"\\Contacts|1", kStore + L"\\Friends|0"}), mGround.Folders(10));
}

TEST_P(FrmSynContent, ADoubleClickOnANodeAddsItAndLeavesItOpen)
{
    mGround.Mailbox->AddFolder(kStore + L"\\Friends", ItemKind::Contact);
    Show([&](Robot& robot, const ShownDialog& dialog) {
        const HTREEITEM store = FindNode(dialog, kTree, nullptr, kStore);
        const HTREEITEM friends = FindNode(dialog, kTree, store, L"Friends");
        // The place of the pointer reaches the messages with some delay; a second time adds nothing.
        robot.WaitUntil("a new row", [&] {
            DoubleClickNode(dialog, kTree, friends);
            return dialog.Rows(kFolderList) == 1;
        });
        robot.WaitUntil("a second row", [&] {
            DoubleClickNode(dialog, kTree, store);
            return dialog.Rows(kFolderList) == 2;
        });
        const auto state = dialog.Ask(dialog.Control(kTree), TVM_GETITEMSTATE,
                                      reinterpret_cast<WPARAM>(store), TVIS_EXPANDED);
        EXPECT_NE(0, state & TVIS_EXPANDED);
        dialog.Click(IDOK);
    });
    EXPECT_EQ((Texts{kStore + L"\\Friends|1", kStore + L"|0"}), mGround.Folders(10));
}

TEST_P(FrmSynContent, DefaultMovesTheMarkToTheSelectedFolder)
{
    mGround.AddFolderRow(10, L"Store\\A", true);
    mGround.AddFolderRow(10, L"Store\\B", false);
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.ChooseRow(kFolderList, 1);
        dialog.PressAlt(L'd');
        robot.WaitUntil("the mark", [&] { return PictureOf(dialog, kFolderList, 1, 0) != -1; });
        EXPECT_EQ(-1, PictureOf(dialog, kFolderList, 0, 0));
        EXPECT_EQ(1, SelectedRow(dialog, kFolderList));
        dialog.Press(VK_RETURN);
    });
    EXPECT_EQ((Texts{L"Store\\A|0", L"Store\\B|1"}), mGround.Folders(10));
    EXPECT_EQ(L"Store\\B", mGround.Record().CurrentFolder);
}

TEST_P(FrmSynContent, DefaultAndRemoveDoNothingWithoutASelectedFolder)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        dialog.Click(IDC_CONTENT_DEFAULT);
        dialog.Click(IDC_CONTENT_REMOVE);
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
    mGround.Host.Failures().Order(L"Delete", 1, {.result = -1});
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.Click(IDOK);
        robot.WaitUntil("the refusal", [&] { return mGround.Host.Failures().CallsOf(L"Delete") == 1; });
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
    EXPECT_EQ(0, mGround.Host.Failures().CallsOf(L"Delete"));
    EXPECT_EQ(Texts{L"Store\\A|1"}, mGround.Folders(10));
}

TEST_P(FrmSynContent, WithoutOutlookTheDialogOpensWithoutATree)
{
    state::Shared().gOlNamespace = {};
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_TRUE(NodesBelow(dialog, kTree, nullptr).empty());
        dialog.Close();
    });
}

TEST_P(FrmSynContent, TabFollowsTheLayout)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        for (const int id : {kTree, IDC_CONTENT_ADD, IDC_CONTENT_REMOVE, IDC_CONTENT_DEFAULT, kFolderList,
                             static_cast<int>(IDOK), static_cast<int>(IDCANCEL), kTree})
        {
            robot.WaitUntil("focus on " + std::to_string(id), [&] { return dialog.Focused() == id; });
            dialog.Press(VK_TAB);
        }
        dialog.Close();
    });
}

// Counts the folders that were touched.
class ItemCalls : public sandbox::CallObserver
{
  public:
    ItemCalls() : mBefore(sandbox::Observe(this)) {}
    ~ItemCalls() override { sandbox::Observe(mBefore); }
    void OnCall(const wchar_t* /*className*/, const wchar_t* member) override
    {
        Items += std::wstring(member) == L"Item" ? 1 : 0;
    }
    std::atomic<int> Items{0};

  private:
    sandbox::CallObserver* mBefore;
};

void AddLevels(sandbox::Mailbox& mailbox, const std::wstring& path, int levels, int width, int& left)
{
    for (int i = 0; i < width && left > 0; ++i, --left)
    {
        const std::wstring folder = path + L"\\Folder " + std::to_wstring(i);
        mailbox.AddFolder(folder, ItemKind::Contact);
        if (levels > 1)
        {
            AddLevels(mailbox, folder, levels - 1, width, left);
        }
    }
}

TEST_P(FrmSynContent, TwoThousandFoldersInEightLevelsAreTouchedOnlyAsFarAsTheyAreShown)
{
    int left = 2000;
    AddLevels(*mGround.Mailbox, kStore, 8, 3, left);
    ASSERT_LE(left, 0);
    const ItemCalls calls;
    const auto begin = std::chrono::steady_clock::now();
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
        dialog.Close();
    });
    EXPECT_LT(calls.Items, 20); // the store, and the folders directly in it
}

} // namespace
