// Values: the bytes by which each type is stored.
#include "automation/Error.h"
#include "tests/config/SysRegFixture.h"

#include <functional>

namespace
{

using automation::Value;
using config::TSysReg;
using config_tests::SysRegTest;

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
