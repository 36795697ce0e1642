#include "config/outlook/FolderTree.h"

#include "automation/Error.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/support/Fakes.h"

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
    FolderCalls calls;
    const FolderNode root = Root();
    const auto stores = config::ChildrenOf(root, kContactItem);
    calls.Counts.clear();
    config::ChildrenOf(stores.at(0), kContactItem);
    EXPECT_EQ(3, calls.Counts[L"Item"]);
    EXPECT_EQ(4, calls.Counts[L"Folders"]); // of the store as well, which is opened
    EXPECT_EQ(4, calls.Counts[L"Count"]);
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

// Outlook refuses one call of a member: that of a folder which cannot be opened.
class Refusal : public sandbox::CallObserver
{
  public:
    Refusal(std::wstring member, int call)
        : mMember(std::move(member)), mCall(call), mBefore(sandbox::Observe(this))
    {
    }
    ~Refusal() override { sandbox::Observe(mBefore); }
    void OnCall(const wchar_t* /*className*/, const wchar_t* member) override
    {
        if (mMember == member && --mCall == 0)
        {
            throw automation::Error(E_FAIL, member, L"The folder cannot be opened.");
        }
    }

  private:
    std::wstring mMember;
    int mCall;
    CallObserver* mBefore;
};

TEST_F(FolderTreeTest, AFolderThatCannotBeReadIsLeftOutAndTheRestIsShownAtEveryLevel)
{
    for (const wchar_t* name : {L"A", L"B", L"C"})
    {
        mMailbox->AddFolder(L"Store\\" + std::wstring(name), ItemKind::Contact);
        mMailbox->AddFolder(std::wstring(name) + L"\\Contacts", ItemKind::Contact);
    }
    const auto pathsWithout = [](const FolderNode& parent, const wchar_t* member, int call) {
        const Refusal refusal(member, call);
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
