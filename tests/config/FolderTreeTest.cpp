#include "config/FolderTree.h"

#include "sandbox/outlook/Outlook.h"
#include "tests/support/StandIns.h"

#include <gtest/gtest.h>

#include <map>

namespace
{

using config::FolderNode;
using sandbox::ItemKind;

constexpr long kContactItem = 2;

// How often each member of a folder was asked for.
class FolderCalls : public sandbox::CallObserver
{
  public:
    FolderCalls() : mBefore(sandbox::Observe(this)) {}
    ~FolderCalls() override { sandbox::Observe(mBefore); }
    void OnCall(const wchar_t* /*className*/, const wchar_t* member) override { ++Counts[member]; }
    std::map<std::wstring, int> Counts;

  private:
    CallObserver* mBefore;
};

std::vector<std::wstring> PathsBelow(const FolderNode& parent, long itemType)
{
    std::vector<std::wstring> paths;
    for (const FolderNode& child : config::ChildrenOf(parent, itemType))
    {
        paths.push_back(child.Path + (child.IsContainer() ? L"+" : L""));
        const auto below = PathsBelow(child, itemType);
        paths.insert(paths.end(), below.begin(), below.end());
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
    FolderCalls calls;
    const FolderNode root = Root();
    const auto stores = config::ChildrenOf(root, kContactItem);
    calls.Counts.clear();
    config::ChildrenOf(stores.at(0), kContactItem);
    EXPECT_EQ(3, calls.Counts[L"Item"]);
    EXPECT_EQ(3, calls.Counts[L"Folders"]);
    EXPECT_EQ(3, calls.Counts[L"Count"]);
    EXPECT_EQ(2, calls.Counts[L"DefaultItemType"]); // not of the container
    EXPECT_EQ(2, calls.Counts[L"Name"]);            // not of the mail folder, which is not shown
}

TEST_F(FolderTreeTest, ALevelAsksNothingOfTheFoldersBelowIt)
{
    mMailbox->AddFolder(L"Store\\Box\\A\\B\\C", ItemKind::Contact);
    const FolderNode root = Root();
    FolderCalls calls;
    config::ChildrenOf(root, kContactItem);
    EXPECT_EQ(1, calls.Counts[L"Item"]);
    EXPECT_EQ(1, calls.Counts[L"Name"]);
}

} // namespace
