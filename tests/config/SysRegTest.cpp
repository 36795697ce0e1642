#include "config/outlook/SysReg.h"

#include "automation/Error.h"
#include "tests/config/RegistryBranch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace
{

using automation::Value;
using config::TSysReg;
using config_tests::RegistryBranch;

class SysRegTest : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_EQ(0, mRegistry.OpenKey(HKEY_CURRENT_USER, mBranch.Path())); }

    // The bytes as they stand in the registry.
    std::vector<BYTE> StoredBytes(const wchar_t* name, DWORD expectedType) const
    {
        std::vector<BYTE> bytes(256);
        DWORD size = static_cast<DWORD>(bytes.size());
        DWORD type = 0;
        RegQueryValueExA(mBranch.Key(), std::string(name, name + wcslen(name)).c_str(), nullptr, &type,
                         bytes.data(), &size);
        EXPECT_EQ(expectedType, type);
        bytes.resize(size);
        return bytes;
    }

    void Store(const char* name, DWORD type, const std::vector<BYTE>& bytes) const
    {
        RegSetValueExA(mBranch.Key(), name, 0, type, bytes.data(), static_cast<DWORD>(bytes.size()));
    }

    Value Read(const wchar_t* name, DWORD expectedType)
    {
        DWORD type = 0;
        Value value;
        EXPECT_EQ(0, mRegistry.GetValue(name, type, value));
        EXPECT_EQ(expectedType, type);
        return value;
    }

    RegistryBranch mBranch{L"SysReg"};
    TSysReg mRegistry;
};

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

TEST_F(SysRegTest, ANumberIsStoredLeastSignificantByteFirstAsType4AndLastAsType5)
{
    EXPECT_EQ(0, mRegistry.SetValue(L"Little", REG_DWORD_LITTLE_ENDIAN, 0x01020304));
    EXPECT_EQ(0, mRegistry.SetValue(L"Big", REG_DWORD_BIG_ENDIAN, 0x01020304));
    EXPECT_EQ((std::vector<BYTE>{4, 3, 2, 1}), StoredBytes(L"Little", REG_DWORD_LITTLE_ENDIAN));
    EXPECT_EQ((std::vector<BYTE>{1, 2, 3, 4}), StoredBytes(L"Big", REG_DWORD_BIG_ENDIAN));
    EXPECT_EQ(0x01020304, LongOf(Read(L"Little", REG_DWORD_LITTLE_ENDIAN)));
    EXPECT_EQ(0x01020304, LongOf(Read(L"Big", REG_DWORD_BIG_ENDIAN)));
}

TEST_F(SysRegTest, NegativeNumbersComeBackAsTheyWere)
{
    for (const DWORD type : {REG_DWORD_LITTLE_ENDIAN, REG_DWORD_BIG_ENDIAN})
    {
        EXPECT_EQ(0, mRegistry.SetValue(L"Negative", type, -2));
        EXPECT_EQ(-2, LongOf(Read(L"Negative", type)));
    }
}

TEST_F(SysRegTest, TextsAreStoredWithATerminatingZeroAndReadWithoutIt)
{
    for (const DWORD type : {REG_SZ, REG_EXPAND_SZ})
    {
        EXPECT_EQ(0, mRegistry.SetValue(L"Text", type, L"%AB%"));
        EXPECT_EQ((std::vector<BYTE>{'%', 'A', 'B', '%', 0}), StoredBytes(L"Text", type));
        EXPECT_EQ(L"%AB%", TextOf(Read(L"Text", type)));
    }
}

TEST_F(SysRegTest, ATextShorterThanTwoBytesReadsAsEmpty)
{
    EXPECT_EQ(0, mRegistry.SetValue(L"Empty", REG_SZ, L""));
    EXPECT_EQ(L"", TextOf(Read(L"Empty", REG_SZ)));
    Store("Nothing", REG_SZ, {});
    EXPECT_EQ(L"", TextOf(Read(L"Nothing", REG_SZ)));
}

TEST_F(SysRegTest, BytesComeBackAsBytes)
{
    const std::vector<BYTE> bytes = {0x01, 0xAB, 0x00, 0xFF};
    EXPECT_EQ(0, mRegistry.SetValue(L"Bytes", REG_BINARY, Value(bytes)));
    EXPECT_EQ(bytes, StoredBytes(L"Bytes", REG_BINARY));
    EXPECT_EQ(bytes, BytesOf(Read(L"Bytes", REG_BINARY)));
    EXPECT_EQ(0, mRegistry.SetValue(L"NoBytes", REG_BINARY, Value(std::vector<BYTE>{})));
    EXPECT_TRUE(BytesOf(Read(L"NoBytes", REG_BINARY)).empty());
}

TEST_F(SysRegTest, AMultiStringIsWrittenAsGivenAndLosesItsFinalTerminators)
{
    const std::wstring written(L"ab\0c\0\0", 6);
    EXPECT_EQ(0, mRegistry.SetValue(L"Multi", REG_MULTI_SZ, written));
    EXPECT_EQ((std::vector<BYTE>{'a', 'b', 0, 'c', 0, 0}), StoredBytes(L"Multi", REG_MULTI_SZ));
    EXPECT_EQ(std::wstring(L"ab\0c", 4), TextOf(Read(L"Multi", REG_MULTI_SZ)));
}

TEST_F(SysRegTest, AMultiStringShorterThanFiveBytesReadsAsEmpty)
{
    EXPECT_EQ(0, mRegistry.SetValue(L"Short", REG_MULTI_SZ, std::wstring(L"ab\0\0", 4)));
    EXPECT_EQ(L"", TextOf(Read(L"Short", REG_MULTI_SZ)));
    EXPECT_EQ(0, mRegistry.SetValue(L"Five", REG_MULTI_SZ, std::wstring(L"abc\0\0", 5)));
    EXPECT_EQ(L"abc", TextOf(Read(L"Five", REG_MULTI_SZ)));
}

void ExpectUnknownType(const std::function<void()>& action)
{
    try
    {
        action();
        ADD_FAILURE() << "nothing was raised";
    }
    catch (const automation::Error& error)
    {
        EXPECT_EQ(L"Class TSysReg", error.Member());
        EXPECT_EQ(L"Unknown value type.", error.Description());
    }
}

TEST_F(SysRegTest, WritingAnUnknownValueTypeRaisesAndWritesNothing)
{
    for (const DWORD type : {DWORD{REG_NONE}, DWORD{REG_LINK}, DWORD{8}, DWORD{REG_QWORD}, DWORD{99}})
    {
        ExpectUnknownType([&] { mRegistry.SetValue(L"Strange", type, L"text"); });
    }
    std::vector<std::wstring> names;
    EXPECT_EQ(0, mRegistry.GetValueNames(names));
}

TEST_F(SysRegTest, ReadingAnUnknownValueTypeRaises)
{
    Store("Strange", REG_QWORD, {1, 2, 3, 4, 5, 6, 7, 8});
    DWORD type = 0;
    Value value(L"kept");
    ExpectUnknownType([&] { mRegistry.GetValue(L"Strange", type, value); });
    EXPECT_EQ(L"kept", TextOf(value));
}

TEST_F(SysRegTest, AMissingValueGivesMinus1AndItsCode)
{
    DWORD type = 0;
    Value value;
    EXPECT_EQ(-1, mRegistry.GetValue(L"Missing", type, value));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, mRegistry.APIErrorCode());
    EXPECT_EQ(-1, mRegistry.DeleteValue(L"Missing"));
}

TEST_F(SysRegTest, AValueThatCannotBeReadAsItsTypeFailsWithoutAWrite)
{
    EXPECT_EQ(-2, mRegistry.SetValue(L"Number", REG_DWORD, L"not a number"));
    EXPECT_EQ(-2, mRegistry.SetValue(L"Bytes", REG_BINARY, L"not bytes"));
    std::vector<std::wstring> names;
    EXPECT_EQ(0, mRegistry.GetValueNames(names));
}

TEST_F(SysRegTest, DeletingAValueRemovesIt)
{
    mRegistry.SetValue(L"Gone", REG_SZ, L"text");
    EXPECT_EQ(0, mRegistry.DeleteValue(L"Gone"));
    std::vector<std::wstring> names;
    EXPECT_EQ(0, mRegistry.GetValueNames(names));
}

} // namespace
