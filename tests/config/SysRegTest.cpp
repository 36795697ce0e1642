// Keys: opening, listing, creating, deleting.
#include "tests/config/SysRegFixture.h"

#include <algorithm>

namespace
{

using automation::Value;
using config::TSysReg;
using config_tests::SysRegTest;

TEST(TSysReg, StartsWithoutAKey)
{
    const TSysReg registry;
    EXPECT_FALSE(registry.IsOpened());
    EXPECT_EQ(nullptr, registry.Root());
    EXPECT_EQ(L"", registry.Path());
    EXPECT_EQ(0, registry.APIErrorCode());
}

TEST(TSysReg, EveryCallWithoutAnOpenKeyReturnsMinus2AndChangesNothing)
{
    TSysReg registry;
    std::vector<std::wstring> names = {L"kept"};
    DWORD type = 77;
    Value value(L"kept");
    EXPECT_EQ(-2, registry.GetSubKeyNames(names));
    EXPECT_EQ(-2, registry.GetValueNames(names));
    EXPECT_EQ(-2, registry.GetValue(L"Name", type, value));
    EXPECT_EQ(-2, registry.SetValue(L"Name", REG_SZ, L"text"));
    EXPECT_EQ(-2, registry.SetValue(L"Name", 99, L"text"));
    EXPECT_EQ(-2, registry.DeleteValue(L"Name"));
    EXPECT_EQ(-2, registry.OpenSubKey(L"Name"));
    EXPECT_EQ(-2, registry.CreateSubKey(L"Name"));
    EXPECT_EQ(-2, registry.DeleteSubKey(L"Name"));
    EXPECT_EQ(-2, registry.GoUpPath());
    EXPECT_EQ(std::vector<std::wstring>{L"kept"}, names);
    EXPECT_EQ(77u, type);
    EXPECT_EQ(L"kept", TextOf(value));
    EXPECT_EQ(0, registry.APIErrorCode());
}

TEST_F(SysRegTest, OpeningAKeySetsRootAndPath)
{
    EXPECT_TRUE(mRegistry.IsOpened());
    EXPECT_EQ(HKEY_CURRENT_USER, mRegistry.Root());
    EXPECT_EQ(L"Software\\TelvixTests\\SysReg", mRegistry.Path());
    EXPECT_EQ(0, mRegistry.APIErrorCode());
}

TEST_F(SysRegTest, OpeningAMissingPathLeavesNoKeyOpen)
{
    EXPECT_EQ(-2, mRegistry.OpenKey(HKEY_CURRENT_USER, L"Software\\TelvixTests\\Missing"));
    EXPECT_FALSE(mRegistry.IsOpened());
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, mRegistry.APIErrorCode());
    std::vector<std::wstring> names;
    EXPECT_EQ(-2, mRegistry.GetSubKeyNames(names));
}

TEST_F(SysRegTest, AKeyWithoutSubKeysListsNone)
{
    std::vector<std::wstring> names = {L"earlier"};
    EXPECT_EQ(0, mRegistry.GetSubKeyNames(names));
    EXPECT_TRUE(names.empty());
}

TEST_F(SysRegTest, SubKeysAndValuesAreListedByName)
{
    mBranch.MakeSubKey(L"First profile");
    mBranch.MakeSubKey(L"Second");
    mRegistry.SetValue(L"One", REG_SZ, L"1");
    mRegistry.SetValue(L"Two", REG_SZ, L"2");
    mRegistry.SetValue(L"Three", REG_SZ, L"3");
    std::vector<std::wstring> names;
    EXPECT_EQ(2, mRegistry.GetSubKeyNames(names));
    EXPECT_EQ((std::vector<std::wstring>{L"First profile", L"Second"}), names);
    EXPECT_EQ(3, mRegistry.GetValueNames(names));
    std::sort(names.begin(), names.end());
    EXPECT_EQ((std::vector<std::wstring>{L"One", L"Three", L"Two"}), names);
    EXPECT_EQ(ERROR_NO_MORE_ITEMS, mRegistry.APIErrorCode());
}

TEST_F(SysRegTest, ASubKeyOfTheLongestNameIsListedWhole)
{
    const std::wstring longest(255, L'n');
    mBranch.MakeSubKey(longest);
    std::vector<std::wstring> names;
    ASSERT_EQ(1, mRegistry.GetSubKeyNames(names));
    EXPECT_EQ(longest, names[0]);
}

TEST_F(SysRegTest, ListingAKeyThatWasDeletedMeanwhileReturnsMinus1AndItsCode)
{
    ASSERT_EQ(0, mRegistry.CreateSubKey(L"Doomed"));
    RegDeleteKeyW(mBranch.Key(), L"Doomed");
    std::vector<std::wstring> names;
    EXPECT_EQ(-1, mRegistry.GetSubKeyNames(names));
    EXPECT_EQ(ERROR_KEY_DELETED, mRegistry.APIErrorCode());
}

TEST_F(SysRegTest, CreatingAndOpeningASubKeyMovesToIt)
{
    EXPECT_EQ(0, mRegistry.CreateSubKey(L"A"));
    EXPECT_EQ(0, mRegistry.CreateSubKey(L"B"));
    EXPECT_EQ(mBranch.Path() + L"\\A\\B", mRegistry.Path());
    EXPECT_EQ(0, mRegistry.SetValue(L"Where", REG_SZ, L"in B"));
    EXPECT_EQ(0, mRegistry.OpenKey(HKEY_CURRENT_USER, mBranch.Path()));
    EXPECT_EQ(0, mRegistry.OpenSubKey(L"A"));
    EXPECT_EQ(0, mRegistry.OpenSubKey(L"B"));
    EXPECT_EQ(L"in B", TextOf(Read(L"Where", REG_SZ)));
}

TEST_F(SysRegTest, AMissingSubKeyLeavesTheOpenKeyOpen)
{
    EXPECT_EQ(-2, mRegistry.OpenSubKey(L"Missing"));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, mRegistry.APIErrorCode());
    EXPECT_TRUE(mRegistry.IsOpened());
    EXPECT_EQ(mBranch.Path(), mRegistry.Path());
    EXPECT_EQ(0, mRegistry.SetValue(L"Still", REG_SZ, L"open"));
}

TEST_F(SysRegTest, ASubKeyThatCannotBeCreatedIsAFailedCall)
{
    ASSERT_EQ(0, mRegistry.CreateSubKey(L"Doomed"));
    RegDeleteKeyW(mBranch.Key(), L"Doomed");
    EXPECT_EQ(-1, mRegistry.CreateSubKey(L"Below"));
    EXPECT_EQ(ERROR_KEY_DELETED, mRegistry.APIErrorCode());
    EXPECT_TRUE(mRegistry.IsOpened());
    EXPECT_EQ(mBranch.Path() + L"\\Doomed", mRegistry.Path());
}

TEST_F(SysRegTest, AParentThatIsGoneLeavesNoKeyOpen)
{
    ASSERT_EQ(0, mRegistry.CreateSubKey(L"Doomed"));
    ASSERT_EQ(0, mRegistry.CreateSubKey(L"Below"));
    RegDeleteTreeW(mBranch.Key(), L"Doomed");
    EXPECT_EQ(-2, mRegistry.GoUpPath());
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, mRegistry.APIErrorCode());
    EXPECT_FALSE(mRegistry.IsOpened());
}

TEST_F(SysRegTest, DeletingASubKeyRemovesIt)
{
    mBranch.MakeSubKey(L"Gone");
    EXPECT_EQ(0, mRegistry.DeleteSubKey(L"Gone"));
    std::vector<std::wstring> names;
    EXPECT_EQ(0, mRegistry.GetSubKeyNames(names));
    EXPECT_EQ(-1, mRegistry.DeleteSubKey(L"Gone"));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, mRegistry.APIErrorCode());
}

TEST_F(SysRegTest, GoingUpReachesTheParentAndThenTheRootItself)
{
    ASSERT_EQ(0, mRegistry.CreateSubKey(L"A"));
    EXPECT_EQ(0, mRegistry.GoUpPath());
    EXPECT_EQ(mBranch.Path(), mRegistry.Path());
    EXPECT_EQ(0, mRegistry.OpenKey(HKEY_CURRENT_USER, L"Software"));
    EXPECT_EQ(0, mRegistry.GoUpPath());
    EXPECT_TRUE(mRegistry.IsOpened());
    EXPECT_EQ(L"", mRegistry.Path());
    EXPECT_EQ(0, mRegistry.OpenSubKey(L"Software"));
    EXPECT_EQ(L"Software", mRegistry.Path());
}

} // namespace
