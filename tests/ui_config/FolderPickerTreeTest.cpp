// The folder picker: its tree of Outlook's folders.
#include "automation/Text.h"
#include "tests/support/CallWatch.h"
#include "tests/ui_config/FolderPicker.h"
#include "ui/SentMessage.h"

#include <chrono>

namespace
{

using namespace ui_config_tests;
using sandbox::ItemKind;
using test_support::CallWatch;

class FolderPickerTree : public FolderPicker
{
  protected:
    static bool MayBeOpened(const ShownDialog& dialog, HTREEITEM node)
    {
        TVITEMW item = {};
        item.mask = TVIF_CHILDREN;
        item.hItem = node;
        dialog.Ask(dialog.Control(kTree), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return item.cChildren != 0;
    }
};

INSTANTIATE_TEST_SUITE_P(, FolderPickerTree, testing::ValuesIn(ui_tests::kLanguages));

TEST_P(FolderPickerTree, TheTreeShowsContainersAndFoldersOfTheKind)
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
        robot.WaitUntil("the lack of children", [&] { return !MayBeOpened(dialog, projects); }); // only mail
        robot.WaitUntil("the dialog at rest", [&] { return dialog.IsAtRest(); });
        const HTREEITEM contacts = FindNode(dialog, kTree, store, L"Contacts");
        SelectNode(dialog, kTree, contacts);
        dialog.Ask(dialog.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Control(kTree)), TRUE);
        dialog.Press(VK_RIGHT); // opens it
        robot.WaitUntil("an open node", [&] { return !NodesBelow(dialog, kTree, contacts).empty(); });
        EXPECT_EQ(Texts{L"Friends"}, NodesBelow(dialog, kTree, contacts));
        dialog.Close();
    });
}

// Outlook is asked for nothing while another thread waits for the answer to its message.
class NoSenderWaits : public CallWatch
{
  public:
    void OnCall(const wchar_t* className, const wchar_t* member) override
    {
        EXPECT_FALSE(ui::IsSenderWaiting()) << automation::ToUtf8(member);
        CallWatch::OnCall(className, member);
    }
};

TEST_P(FolderPickerTree, ANodeThatAnotherThreadOpensBySendingOpensWhenTheSenderHasItsAnswer)
{
    mGround.Mailbox->AddFolder(kStore + L"\\Contacts\\Friends", ItemKind::Contact);
    const NoSenderWaits outlook;
    Show([&](Robot& robot, const ShownDialog& dialog) {
        const HTREEITEM contacts =
            FindNode(dialog, kTree, FindNode(dialog, kTree, nullptr, kStore), L"Contacts");
        dialog.Ask(dialog.Control(kTree), TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(contacts));
        robot.WaitUntil("an open node", [&] { return !NodesBelow(dialog, kTree, contacts).empty(); });
        EXPECT_EQ(Texts{L"Friends"}, NodesBelow(dialog, kTree, contacts));
        robot.WaitUntil("the dialog at rest", [&] { return dialog.IsAtRest(); });
        dialog.Close();
    });
}

TEST_P(FolderPickerTree, TheTreeShowsTheFoldersOfTasksAndOfTheCalendarAndTheTitleNamesThem)
{
    struct Expected
    {
        const wchar_t* kind;
        const wchar_t* folder;
        std::wstring title;
    };
    const Expected kinds[] = {{L"Contact", L"Contacts", In(GetParam(), L"Contact Folders", L"联系人目录")},
                              {L"Task", L"Tasks", In(GetParam(), L"Task Folders", L"任务目录")},
                              {L"Calendar", L"Calendar", In(GetParam(), L"Calendar Folders", L"日历目录")}};
    for (const Expected& expected : kinds)
    {
        mGround.UseKind(expected.kind);
        Show([&](Robot&, const ShownDialog& dialog) {
            EXPECT_EQ(expected.title, dialog.Caption());
            const HTREEITEM store = FindNode(dialog, kTree, nullptr, kStore);
            EXPECT_EQ(Texts{expected.folder}, NodesBelow(dialog, kTree, store));
            dialog.Close();
        });
    }
}

TEST_P(FolderPickerTree, AFolderThatCannotBeOpenedIsLeftOutAndTheRestIsShown)
{
    mGround.Mailbox->AddFolder(L"Archive\\Contacts 2020", ItemKind::Contact);
    mGround.Mailbox->AddFolder(L"Team\\Contacts", ItemKind::Contact);
    CallWatch watch;
    watch.FailNth(2, [](const std::wstring& name) { // the second folder that is asked for its sub-folders
        return name.ends_with(L".Folders") && name != L"NameSpace.Folders";
    });
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ((Texts{kStore, L"Team"}), NodesBelow(dialog, kTree, nullptr));
        dialog.Close();
    });
}

TEST_P(FolderPickerTree, OpensOnTheDefaultFolderInTheListAndInTheTree)
{
    mGround.Mailbox->AddFolder(L"Archive\\Years\\Contacts 2020", ItemKind::Contact);
    mGround.AddFolderRow(10, kStore + L"\\Contacts", false);
    mGround.AddFolderRow(10, L"Archive\\Years\\Contacts 2020", true);
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(1, SelectedRow(dialog, kFolderList));
        const HTREEITEM archive = FindNode(dialog, kTree, nullptr, L"Archive");
        const HTREEITEM years = FindNode(dialog, kTree, archive, L"Years");
        const HTREEITEM contacts = FindNode(dialog, kTree, years, L"Contacts 2020");
        ASSERT_NE(nullptr, contacts);
        EXPECT_EQ(contacts, SelectedNode(dialog, kTree));
        EXPECT_TRUE(NodesBelow(dialog, kTree, FindNode(dialog, kTree, nullptr, kStore)).empty());
        dialog.Close();
    });
}

TEST_P(FolderPickerTree, ADefaultFolderThatIsGoneOpensTheTreeAsFarAsItLeads)
{
    mGround.Mailbox->AddFolder(L"Archive\\Contacts 2020", ItemKind::Contact);
    mGround.AddFolderRow(10, L"Archive\\Gone\\Contacts", true);
    Show([&](Robot&, const ShownDialog& dialog) {
        const HTREEITEM archive = FindNode(dialog, kTree, nullptr, L"Archive");
        EXPECT_EQ(archive, SelectedNode(dialog, kTree));
        EXPECT_EQ(Texts{L"Contacts 2020"}, NodesBelow(dialog, kTree, archive));
        dialog.Close();
    });
}

TEST_P(FolderPickerTree, ADoubleClickOnANodeAddsItAndLeavesItOpen)
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

TEST_P(FolderPickerTree, WithoutOutlookTheDialogOpensWithoutATree)
{
    state::Shared().gOlNamespace = {};
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_TRUE(NodesBelow(dialog, kTree, nullptr).empty());
        dialog.Close();
    });
}

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

TEST_P(FolderPickerTree, TwoThousandFoldersInEightLevelsAreTouchedOnlyAsFarAsTheyAreShown)
{
    int left = 2000;
    AddLevels(*mGround.Mailbox, kStore, 8, 3, left);
    ASSERT_LE(left, 0);
    const CallWatch calls;
    const auto begin = std::chrono::steady_clock::now();
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
        dialog.Close();
    });
    EXPECT_LT(calls.Of(L"Item"), 20); // the store, and the folders directly in it
}

} // namespace
