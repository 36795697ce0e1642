#include "config/outlook/OutlookFolders.h"

#include "resources/Strings.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/config/ConfigFixture.h"
#include "tests/config/TellsUser.h"
#include "tests/support/CallWatch.h"

#include <gtest/gtest.h>

namespace
{

using automation::Object;
using automation::TextOf;
using config_tests::ExpectTellsUser;
using resources::Language;
using Texts = std::vector<std::wstring>;

class OutlookFoldersTest : public config_tests::ConfigFixture
{
  protected:
    OutlookFoldersTest()
    {
        mMailbox->AddFolder(L"Archive\\Deep\\Deeper", sandbox::ItemKind::Contact);
        state::Shared().gOlNamespace = sandbox::MakeOutlook(mMailbox).GetObject(L"GetNamespace", L"MAPI");
    }

    sandbox::MailboxRef mMailbox = sandbox::MakeMailbox();
};

TEST_F(OutlookFoldersTest, APathIsFollowedFromTheStoreDown)
{
    Object folder;
    EXPECT_FALSE(config::ResolveOutlookFolder(L"Archive\\Deep\\Deeper", folder));
    EXPECT_EQ(L"Deeper", TextOf(folder.Get(L"Name")));
    EXPECT_FALSE(config::ResolveOutlookFolder(L"Archive", folder));
    EXPECT_EQ(L"Archive", TextOf(folder.Get(L"Name")));
}

TEST_F(OutlookFoldersTest, APathThatLeadsNowhereFailsSilentlyAndLeavesTheFolder)
{
    Object folder;
    ASSERT_FALSE(config::ResolveOutlookFolder(L"Personal Folders\\Tasks", folder));
    for (const wchar_t* path :
         {L"No such store\\Tasks", L"Personal Folders\\No such folder", L"\\Tasks", L"Personal Folders\\"})
    {
        EXPECT_TRUE(config::ResolveOutlookFolder(path, folder)) << path;
        EXPECT_EQ(L"Tasks", TextOf(folder.Get(L"Name")));
    }
}

TEST_F(OutlookFoldersTest, AnEmptyPathTellsTheUserAndFails)
{
    const auto resolve = [] {
        Object folder;
        EXPECT_TRUE(config::ResolveOutlookFolder(L"", folder));
        EXPECT_FALSE(static_cast<bool>(folder));
    };
    ExpectTellsUser(Language::English, L"Message",
                    L"You have not selected the synchronise folder .\r\n\r\nPlease select an effective "
                    L"folder for synchronization.",
                    resolve);
    ExpectTellsUser(Language::Chinese, L"信息",
                    L"没有选择同步的目录\r\n\r\n请选择一个有效的目录作为的同步对象,然后再进行同步。",
                    resolve);
}

TEST_F(OutlookFoldersTest, FoldersWhoseStoreIsGoneAreDeletedAndOthersAreKept)
{
    GiveFolder(10, L"Personal Folders\\Contacts", true);
    GiveFolder(10, L"Gone\\Contacts", false);
    GiveFolder(20, L"Archive\\No longer there", false);
    GiveFolder(30, L"Gone", true);
    GiveFolder(30, L"Archive", false);
    config::PurgeMissingFolders();
    EXPECT_EQ((Texts{L"10|Personal Folders\\Contacts|1", L"20|Archive\\No longer there|0", L"30|Archive|0"}),
              Folders());
    EXPECT_EQ((Texts{L"Delete(T_POutlookSyncFolder|F_UID=7 And TransObjectID=10 And "
                     L"OutlookFolder='Gone\\Contacts')",
                     L"Delete(T_POutlookSyncFolder|F_UID=7 And TransObjectID=30 And OutlookFolder='Gone')"}),
              mHost->CallsOf(L"Delete"));
}

TEST_F(OutlookFoldersTest, AStaleFolderWithAnApostropheIsDeleted)
{
    GiveFolder(10, L"Anna's store\\Contacts", true);
    config::PurgeMissingFolders();
    EXPECT_TRUE(Folders().empty());
}

TEST_F(OutlookFoldersTest, OtherUsersFoldersAreNotTouched)
{
    Execute(L"INSERT INTO T_POutlookSyncFolder VALUES (8, 10, 'Gone\\Contacts', 1)");
    config::PurgeMissingFolders();
    EXPECT_EQ(Texts{L"Gone\\Contacts"},
              Rows(L"SELECT OutlookFolder FROM T_POutlookSyncFolder WHERE F_UID=8"));
}

TEST_F(OutlookFoldersTest, ARefusedDeleteEndsThePurge)
{
    GiveFolder(10, L"Gone\\A", true);
    GiveFolder(10, L"Gone\\B", false);
    RefuseEvery(L"Delete");
    config::PurgeMissingFolders();
    EXPECT_EQ(1u, mHost->CallsOf(L"Delete").size());
    EXPECT_EQ(2u, Folders().size());
}

TEST_F(OutlookFoldersTest, EachStoresNameIsReadOnceForAnyNumberOfRows)
{
    for (int i = 0; i < 5; ++i)
    {
        GiveFolder(10, L"Archive\\" + std::to_wstring(i), false);
    }
    const test_support::CallWatch calls;
    config::PurgeMissingFolders();
    EXPECT_EQ(2, calls.Of(L"Name")); // two stores
    EXPECT_EQ(5u, Folders().size());
}

} // namespace
