#include "config/outlook/FolderTree.h"

#include "sandbox/outlook/Outlook.h"
#include "tests/support/CallWatch.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

namespace
{

using config::FolderNode;
using sandbox::ItemKind;
using test_support::CallWatch;

constexpr long kContactItem = 2;

std::vector<std::wstring> PathsBelow(const FolderNode& parent, long itemType)
{
    std::vector<std::wstring> paths;
    for (const FolderNode& child : config::ChildrenOf(parent, itemType))
    {
        paths.push_back(child.Path + (child.IsContainer ? L"+" : L""));
        if (child.IsContainer)
        {
            const auto below = PathsBelow(child, itemType);
            paths.insert(paths.end(), below.begin(), below.end());
        }
    }
    return paths;
}

class FolderTreeTest : public testing::Test
{
  protected:
    FolderNode Root() const
    {
        return config::RootNode(sandbox::MakeOutlook(mMailbox).GetObject(L"GetNamespace", L"MAPI"));
    }

    sandbox::MailboxRef mMailbox = std::make_shared<sandbox::Mailbox>();
};

TEST_F(FolderTreeTest, LeavesAreShownByTheirItemTypeAndContainersAlways)
{
    mMailbox->AddFolder(L"Store\\Contacts", ItemKind::Contact);
    mMailbox->AddFolder(L"Store\\Mail");
    mMailbox->AddFolder(L"Store\\Tasks\\Old", ItemKind::Task);
    mMailbox->AddFolder(L"Store\\Friends\\Close", ItemKind::Contact);
    EXPECT_EQ((std::vector<std::wstring>{L"Store+", L"Store\\Contacts", L"Store\\Tasks+", L"Store\\Friends+",
                                         L"Store\\Friends\\Close"}),
              PathsBelow(Root(), kContactItem));
}

TEST_F(FolderTreeTest, AnEmptyStoreIsNotShown)
{
    mMailbox->AddFolder(L"Empty");
    EXPECT_TRUE(PathsBelow(Root(), kContactItem).empty());
}

TEST_F(FolderTreeTest, AFolderOfTheTypeAtTheTopIsShown)
{
    mMailbox->AddFolder(L"Contacts only", ItemKind::Contact);
    EXPECT_EQ(std::vector<std::wstring>{L"Contacts only"}, PathsBelow(Root(), kContactItem));
}

TEST_F(FolderTreeTest, EachFolderIsAskedOnlyForWhatIsNeeded)
{
    mMailbox->AddFolder(L"Store\\Contacts", ItemKind::Contact);
    mMailbox->AddFolder(L"Store\\Mail");
    mMailbox->AddFolder(L"Store\\Box\\Inner", ItemKind::Contact);
    const FolderNode root = Root();
    const auto stores = config::ChildrenOf(root, kContactItem);
    const CallWatch calls;
    config::ChildrenOf(stores.at(0), kContactItem);
    EXPECT_EQ(3, calls.Of(L"Item"));
    EXPECT_EQ(4, calls.Of(L"Folders")); // of the store as well, which is opened
    EXPECT_EQ(4, calls.Of(L"Count"));
    EXPECT_EQ(2, calls.Of(L"DefaultItemType")); // not of the container
    EXPECT_EQ(2, calls.Of(L"Name"));            // not of the mail folder, which is not shown
}

TEST_F(FolderTreeTest, ALevelAsksNothingOfTheFoldersBelowIt)
{
    mMailbox->AddFolder(L"Store\\Box\\A\\B\\C", ItemKind::Contact);
    const FolderNode root = Root();
    const CallWatch calls;
    config::ChildrenOf(root, kContactItem);
    EXPECT_EQ(1, calls.Of(L"Item"));
    EXPECT_EQ(1, calls.Of(L"Name"));
}

TEST_F(FolderTreeTest, AFolderThatCannotBeReadIsLeftOutAndTheRestIsShownAtEveryLevel)
{
    for (const wchar_t* name : {L"A", L"B", L"C"})
    {
        mMailbox->AddFolder(L"Store\\" + std::wstring(name), ItemKind::Contact);
        mMailbox->AddFolder(std::wstring(name) + L"\\Contacts", ItemKind::Contact);
    }
    const auto pathsWithout = [](const FolderNode& parent, const wchar_t* member, int call) {
        CallWatch watch;
        watch.FailNth(call, member);
        std::vector<std::wstring> paths;
        for (const FolderNode& child : config::ChildrenOf(parent, kContactItem))
        {
            paths.push_back(child.Path);
        }
        return paths;
    };
    using Paths = std::vector<std::wstring>;
    const FolderNode root = Root();
    EXPECT_EQ((Paths{L"Store", L"B", L"C"}), pathsWithout(root, L"Item", 2));
    EXPECT_EQ((Paths{L"A", L"B", L"C"}), pathsWithout(root, L"Count", 2)); // after that of the namespace
    const FolderNode store = config::ChildrenOf(root, kContactItem).at(0);
    EXPECT_EQ((Paths{L"Store\\A", L"Store\\C"}), pathsWithout(store, L"Folders", 3));
    EXPECT_EQ((Paths{L"Store\\A", L"Store\\B"}), pathsWithout(store, L"DefaultItemType", 3));
    EXPECT_EQ((Paths{L"Store\\B", L"Store\\C"}), pathsWithout(store, L"Name", 1));
}

TEST_F(FolderTreeTest, AFolderIsAskedForItsChildrenWhenItIsOpened)
{
    mMailbox->AddFolder(L"Store\\Contacts", ItemKind::Contact);
    const auto stores = config::ChildrenOf(Root(), kContactItem);
    mMailbox->AddFolder(L"Store\\Friends", ItemKind::Contact); // meanwhile
    EXPECT_EQ(2u, config::ChildrenOf(stores.at(0), kContactItem).size());
}

TEST(LeadsThrough, ThePathsOfAFolderAndOfThoseAboveItInAnyLetterCase)
{
    FolderNode node;
    node.Path = L"Store\\Contacts";
    EXPECT_TRUE(config::LeadsThrough(L"Store\\Contacts", node));
    EXPECT_TRUE(config::LeadsThrough(L"STORE\\contacts\\Friends", node));
    EXPECT_FALSE(config::LeadsThrough(L"Store\\Contacts 2020", node));
    EXPECT_FALSE(config::LeadsThrough(L"Store", node));
}

} // namespace
