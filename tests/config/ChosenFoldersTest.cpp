#include "config/store/ChosenFolders.h"

#include "tests/config/ConfigFixture.h"

#include <gtest/gtest.h>

namespace
{

using config::ChosenFolders;
using Texts = std::vector<std::wstring>;

class ChosenFoldersTest : public config_tests::ConfigFixture
{
};

TEST(ChosenFolders, TheFirstFolderAddedIsTheDefault)
{
    ChosenFolders folders;
    EXPECT_TRUE(config::AddFolder(folders, L"Store\\A"));
    EXPECT_TRUE(config::AddFolder(folders, L"Store\\B"));
    EXPECT_EQ((ChosenFolders{{L"Store\\A", true}, {L"Store\\B", false}}), folders);
}

TEST(ChosenFolders, AFolderThatIsListedAlreadyIsIgnored)
{
    ChosenFolders folders = {{L"Store\\A", false}};
    EXPECT_TRUE(config::IsListed(folders, L"Store\\A"));
    EXPECT_FALSE(config::IsListed(folders, L"Store"));
    EXPECT_FALSE(config::AddFolder(folders, L"Store\\A"));
    EXPECT_EQ((ChosenFolders{{L"Store\\A", false}}), folders);
}

TEST(ChosenFolders, AFolderAddedWhereThereIsNoDefaultIsTheDefault)
{
    ChosenFolders folders = {{L"A", false}};
    EXPECT_EQ(std::nullopt, config::DefaultOf(folders));
    config::AddFolder(folders, L"B");
    EXPECT_EQ((ChosenFolders{{L"A", false}, {L"B", true}}), folders);
    EXPECT_EQ(1u, config::DefaultOf(folders));
}

TEST(ChosenFolders, WhenTheDefaultIsRemovedTheOneThatTakesItsPlaceIsTheDefault)
{
    ChosenFolders folders = {{L"A", true}, {L"B", false}, {L"C", false}};
    config::RemoveFolder(folders, 0);
    EXPECT_EQ((ChosenFolders{{L"B", true}, {L"C", false}}), folders);
    config::RemoveFolder(folders, 1);
    EXPECT_EQ((ChosenFolders{{L"B", true}}), folders);
    config::AddFolder(folders, L"D");
    config::MakeDefault(folders, 1);
    config::RemoveFolder(folders, 1);
    EXPECT_EQ((ChosenFolders{{L"B", true}}), folders);
    config::RemoveFolder(folders, 0);
    EXPECT_TRUE(folders.empty());
}

TEST(ChosenFolders, OnlyOneFolderIsTheDefault)
{
    ChosenFolders folders = {{L"A", true}, {L"B", false}};
    config::MakeDefault(folders, 1);
    EXPECT_EQ((ChosenFolders{{L"A", false}, {L"B", true}}), folders);
}

TEST(ChosenFolders, ValuesBeginWithTheNumberOfTheKind)
{
    EXPECT_EQ(L"10,'Store\\A',1",
              config::FolderValueList(*exchange::FindKindName(L"Contact"), {L"Store\\A", true}));
    EXPECT_EQ(L"20,'Store\\A',0",
              config::FolderValueList(*exchange::FindKindName(L"Task"), {L"Store\\A", false}));
    EXPECT_EQ(L"30,'Store\\A',0",
              config::FolderValueList(*exchange::FindKindName(L"Calendar"), {L"Store\\A", false}));
    EXPECT_EQ(nullptr, exchange::FindKindName(L"contact"));
}

TEST(ChosenFolders, AnApostropheInAPathIsDoubled)
{
    EXPECT_EQ(L"10,'Anna''s folder',0",
              config::FolderValueList(*exchange::FindKindName(L"Contact"), {L"Anna's folder", false}));
}

TEST(TakeCurrentFolder, TheOnlyFolderIsCurrentElseTheSelectedOne)
{
    state::SynParameter record;
    record.DefaultFolder = L"kept";
    config::TakeCurrentFolder(record, {{L"A", true}}, std::nullopt);
    EXPECT_EQ(L"A", record.CurrentFolder);
    config::TakeCurrentFolder(record, {{L"A", true}, {L"B", false}}, 1);
    EXPECT_EQ(L"B", record.CurrentFolder);
    EXPECT_EQ(L"kept", record.DefaultFolder);
}

TEST(TakeCurrentFolder, WithoutAFolderBothAreEmpty)
{
    state::SynParameter record;
    record.CurrentFolder = record.DefaultFolder = L"earlier";
    config::TakeCurrentFolder(record, {}, std::nullopt);
    EXPECT_EQ(L"", record.CurrentFolder);
    EXPECT_EQ(L"", record.DefaultFolder);
}

TEST_F(ChosenFoldersTest, TheUsersFoldersOfTheKindAreReplaced)
{
    GiveFolder(10, L"Store\\Old", true);
    GiveFolder(20, L"Store\\Tasks", true);
    Execute(L"INSERT INTO T_POutlookSyncFolder VALUES (8, 10, 'Store\\Others', 1)");
    EXPECT_FALSE(config::StoreChosenFolders(*exchange::FindKindName(L"Contact"),
                                            {{L"Store\\New", false}, {L"Store\\Newer", true}}));
    EXPECT_EQ((Texts{L"20|Store\\Tasks|1", L"10|Store\\New|0", L"10|Store\\Newer|1"}), Folders());
    EXPECT_EQ(Texts{L"Store\\Others"}, Rows(L"SELECT OutlookFolder FROM T_POutlookSyncFolder WHERE F_UID=8"));
    EXPECT_EQ(Texts{L"Delete(T_POutlookSyncFolder|TransObjectID=10 And F_UID=7)"}, mHost->CallsOf(L"Delete"));
}

TEST_F(ChosenFoldersTest, AnEmptyListDeletesAllOfTheKindsRows)
{
    GiveFolder(10, L"Store\\Old", true);
    EXPECT_FALSE(config::StoreChosenFolders(*exchange::FindKindName(L"Contact"), {}));
    EXPECT_TRUE(Folders().empty());
}

TEST_F(ChosenFoldersTest, ARefusedDeleteWritesNothing)
{
    GiveFolder(10, L"Store\\Old", true);
    RefuseEvery(L"Delete");
    EXPECT_TRUE(config::StoreChosenFolders(*exchange::FindKindName(L"Contact"), {{L"Store\\New", true}}));
    EXPECT_EQ(Texts{L"10|Store\\Old|1"}, Folders());
    EXPECT_TRUE(mHost->CallsOf(L"Insert").empty());
}

TEST_F(ChosenFoldersTest, StoredFoldersAreLoadedWithOneDefaultAtMost)
{
    GiveFolder(10, L"A", true);
    GiveFolder(10, L"B", true);
    GiveFolder(20, L"C", true);
    EXPECT_EQ((ChosenFolders{{L"A", false}, {L"B", true}}),
              config::LoadChosenFolders(*exchange::FindKindName(L"Contact")));
}

TEST_F(ChosenFoldersTest, ThereIsNoListWhenTheHostRefuses)
{
    GiveFolder(10, L"A", true);
    RefuseEvery(L"OpenRecordsetByString");
    EXPECT_FALSE(config::LoadChosenFolders(*exchange::FindKindName(L"Contact")));
}

} // namespace
