#include "data/FieldFormat.h"

#include <gtest/gtest.h>

namespace
{

using data::TruncateToFieldSize;

TEST(TruncateToFieldSize, ATextThatFitsStaysAsItIs)
{
    EXPECT_EQ(TruncateToFieldSize(L"Miller", 6), L"Miller");
    EXPECT_EQ(TruncateToFieldSize(L"", 6), L"");
}

TEST(TruncateToFieldSize, SingleByteCharactersCountOne)
{
    EXPECT_EQ(TruncateToFieldSize(L"Miller", 4), L"Mill");
    EXPECT_EQ(TruncateToFieldSize(L"S\u00f6hne", 4), L"S\u00f6hn");
    EXPECT_EQ(TruncateToFieldSize(L"\u00ff\u00ff", 2), L"\u00ff\u00ff");
}

TEST(TruncateToFieldSize, ACharacterOutsideTheSingleByteRangeCountsTwoAndIsNeverSplit)
{
    EXPECT_EQ(TruncateToFieldSize(L"中国人", 4), L"中国");
    EXPECT_EQ(TruncateToFieldSize(L"中国人", 5), L"中国");
    EXPECT_EQ(TruncateToFieldSize(L"\u0100\u0100", 3), L"\u0100");
    EXPECT_EQ(TruncateToFieldSize(L"A中B国", 4), L"A中B");
}

TEST(TruncateToFieldSize, ASurrogatePairIsOneCharacterAndIsNeverSplit)
{
    const std::wstring kRareSurname = L"\U00020BB7"; // two code units
    ASSERT_EQ(kRareSurname.size(), 2u);
    EXPECT_EQ(TruncateToFieldSize(kRareSurname + L"野", 4), kRareSurname + L"野");
    EXPECT_EQ(TruncateToFieldSize(kRareSurname + L"野", 3), kRareSurname);
    EXPECT_EQ(TruncateToFieldSize(L"A" + kRareSurname, 2), L"A");
}

TEST(TruncateToFieldSize, AnUnpairedSurrogateCountsAsACharacterOfItsOwn)
{
    const std::wstring kHalf(1, static_cast<wchar_t>(0xD842));
    EXPECT_EQ(TruncateToFieldSize(kHalf + L"AB", 3), kHalf + L"A");
    EXPECT_EQ(TruncateToFieldSize(L"A" + kHalf, 3), L"A" + kHalf);
}

TEST(TruncateToFieldSize, NothingFitsIntoNoRoom)
{
    EXPECT_EQ(TruncateToFieldSize(L"Miller", 0), L"");
    EXPECT_EQ(TruncateToFieldSize(L"Miller", -1), L"");
    EXPECT_EQ(TruncateToFieldSize(L"中", 1), L"");
}

} // namespace
