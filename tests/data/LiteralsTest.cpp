#include "data/Literals.h"

#include <gtest/gtest.h>

namespace
{

using data::IsColumnName;
using data::NumberOrQuotedText;
using data::QuotedText;

TEST(Literals, ATextIsQuotedWithItsApostrophesDoubled)
{
    EXPECT_EQ(L"'Miller'", QuotedText(L"Miller"));
    EXPECT_EQ(L"'O''Brien'", QuotedText(L"O'Brien"));
    EXPECT_EQ(L"''", QuotedText(L""));
    EXPECT_EQ(std::wstring(L"'a\0b'", 5), QuotedText(std::wstring_view(L"a\0b", 3)));
}

TEST(Literals, APlainNumberStaysAsItIs)
{
    for (const wchar_t* number : {L"7", L"007", L"-1", L"+1", L"1.5", L".5", L"5.", L"1e5", L"1E-5",
                                  L"-2.5e+10", L"12345678901234567890"})
    {
        EXPECT_EQ(number, NumberOrQuotedText(number));
    }
}

TEST(Literals, ATextThatIsNoPlainNumberIsQuoted)
{
    for (const wchar_t* text : {L"", L" 7", L"7 ", L"1,5", L"(12)", L"&H10", L"0x10", L"1e", L"e5", L".",
                                L"-", L"--1", L"1 OR 1=1", L"F_UID", L"NULL", L"7-1", L"\u0661", L"1.2.3"})
    {
        EXPECT_EQ(QuotedText(text), NumberOrQuotedText(text));
    }
}

TEST(Literals, AColumnsNameIsMadeOfLettersDigitsAndUnderscores)
{
    for (const wchar_t* name : {L"F_CNTCTID", L"F_a1", L"F_\u59d3\u540d"})
    {
        EXPECT_TRUE(IsColumnName(name)) << name;
    }
    for (const wchar_t* name : {L"", L"F_A=1,F_B", L"F_A B", L"F_A'", L"F_A-", L"F_A;", L"F_(A)", L"F_A\n"})
    {
        EXPECT_FALSE(IsColumnName(name)) << name;
    }
}

} // namespace
