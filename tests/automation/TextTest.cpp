#include "automation/Text.h"

#include "tests/automation/WithThreadLocale.h"

#include <gtest/gtest.h>

#include <climits>

#include <windows.h>

namespace
{

using namespace automation;

TEST(Text, TrimmingTakesBlanksFromBothEndsAndNothingElse)
{
    EXPECT_EQ(L"a b", Trimmed(L"  a b "));
    EXPECT_EQ(L"", Trimmed(L"   "));
    EXPECT_EQ(L"", Trimmed(L""));
    EXPECT_EQ(L"\ta\r\n", Trimmed(L" \ta\r\n "));
    EXPECT_EQ(L"\u3000a\u00a0", Trimmed(L"\u3000a\u00a0"));
}

TEST(Text, UpperCaseReachesLettersOfAllAlphabets)
{
    EXPECT_EQ(L"\u00dcBER \u00c9T\u00c9 \u0416\u0423\u041a 任务1",
              UpperCased(L"\u00fcber \u00e9t\u00e9 \u0436\u0443\u043a 任务1"));
    EXPECT_EQ(L"", UpperCased(L""));
}

TEST(Text, UpperCaseOfEveryCharacterIsThatOfTheInvariantLocale)
{
    for (unsigned letter = 1; letter < 0x3000; ++letter)
    {
        const wchar_t one = static_cast<wchar_t>(letter);
        wchar_t expected = 0;
        LCMapStringW(LOCALE_INVARIANT, LCMAP_UPPERCASE, &one, 1, &expected, 1);
        EXPECT_EQ(std::wstring(1, expected), UpperCased(std::wstring(1, one))) << letter;
    }
}

TEST(Text, UpperCaseDoesNotDependOnTheRegionalSettings)
{
    const test_support::WithThreadLocale turkish(test_support::kTurkish);
    EXPECT_EQ(L"TITLE", UpperCased(L"title"));
}

TEST(Text, ANumberInDigitsIsThatOfTheStandardLibrary)
{
    for (const long long number : {0LL, 7LL, -1LL, 1234567890LL, LLONG_MAX, LLONG_MIN})
    {
        EXPECT_EQ(std::to_wstring(number), automation::DecimalText(number));
    }
}

TEST(Text, TheLeadingNumberEndsWhereTheTextGoesOn)
{
    EXPECT_EQ(12, LeadingNumber(L"12"));
    EXPECT_EQ(12, LeadingNumber(L"  12 days"));
    EXPECT_EQ(-3.5, LeadingNumber(L"-3.5x"));
    EXPECT_EQ(1, LeadingNumber(L"1e5"));
    EXPECT_EQ(1.2, LeadingNumber(L"1.2.3"));
}

TEST(Text, WhereThereIsNoNumberItIsZero)
{
    for (const wchar_t* text : {L"", L"   ", L"days", L"x12", L"-", L"."})
    {
        EXPECT_EQ(0, LeadingNumber(text));
    }
}

TEST(Text, TheLeadingNumberHasAPointUnderAllRegionalSettings)
{
    const test_support::WithThreadLocale german(test_support::kGerman);
    EXPECT_EQ(2.5, LeadingNumber(L"2.5"));
    EXPECT_EQ(2, LeadingNumber(L"2,5"));
}

TEST(Text, EveryOccurrenceIsReplacedAndTheReplacementIsNotLookedIntoAgain)
{
    EXPECT_EQ(L"O''Brien''s", Replaced(L"O'Brien's", L"'", L"''"));
    EXPECT_EQ(L"ba", Replaced(L"aaa", L"aa", L"b"));
    EXPECT_EQ(L"", Replaced(L"xx", L"x", L""));
    EXPECT_EQ(L"same", Replaced(L"same", L"other", L"y"));
}

TEST(Text, Utf8RoundTripsInEveryPlane)
{
    const std::wstring text = L"a\u00df\u20ac任\U0001F600";
    EXPECT_EQ("a\xC3\x9F\xE2\x82\xAC\xE4\xBB\xBB\xF0\x9F\x98\x80", ToUtf8(text));
    EXPECT_EQ(text, FromUtf8(ToUtf8(text)));
    EXPECT_EQ("", ToUtf8(L""));
    EXPECT_EQ(L"", FromUtf8(""));
}

TEST(Text, AnEmbeddedNulSurvives)
{
    const std::wstring text(L"a\0b", 3);
    EXPECT_EQ(text, FromUtf8(ToUtf8(text)));
}

TEST(Text, AnInvalidSequenceBecomesTheReplacementCharacter)
{
    EXPECT_EQ("\xEF\xBF\xBD", ToUtf8(std::wstring(1, wchar_t(0xD800))));
    EXPECT_EQ(L"a\uFFFD", FromUtf8("a\xFF"));
}

} // namespace
