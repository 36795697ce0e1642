#include "data/TextStore.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using data::StoredText;
using data::TextStore;

// Around the largest character of one byte, longer than a block, and with a zero in it.
const std::vector<std::wstring> kTexts{L"",
                                       L"A",
                                       L"\x00FF\x0080",
                                       L"\x0100",
                                       L"\x5F20\x4F1F",
                                       L"mixed \xD83D\xDE00",
                                       std::wstring(L"a\0b", 3),
                                       std::wstring(5000, L'x'),
                                       std::wstring(20000, L'\x4E2D')};

TEST(TextStore, GivesBackEveryTextHoweverManyItKeeps)
{
    TextStore store;
    std::vector<StoredText> stored;
    for (int round = 0; round < 20; ++round)
    {
        for (const std::wstring& text : kTexts)
        {
            stored.push_back(store.Keep(text));
        }
    }
    for (size_t i = 0; i < stored.size(); ++i)
    {
        EXPECT_EQ(kTexts[i % kTexts.size()], stored[i].Text()) << i;
    }
}

TEST(TextStore, TextsAreEqualWhereTheirCharactersAreInWhicheverStore)
{
    TextStore store;
    TextStore another;
    for (const std::wstring& one : kTexts)
    {
        for (const std::wstring& other : kTexts)
        {
            EXPECT_EQ(one == other, store.Keep(one) == another.Keep(other));
        }
        EXPECT_EQ(store.Keep(one).Hash(), another.Keep(one).Hash());
    }
}

TEST(TextStore, TextsDifferWhereOnlyTheirBytesAreTheSame)
{
    TextStore store;
    EXPECT_FALSE(store.Keep(L"AB") == store.Keep(L"\x4241"));
    EXPECT_FALSE(store.Keep(std::wstring(L"\0", 1)) == store.Keep(L""));
}

TEST(TextStore, AnEmptyTextIsOneAndNoTextIsEmptyToo)
{
    TextStore store;
    const StoredText empty = store.Keep(L"");
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_FALSE(empty.IsNone());
    EXPECT_EQ(L"", empty.Text());
    const StoredText none;
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_TRUE(none.IsNone());
    EXPECT_EQ(L"", none.Text());
    EXPECT_FALSE(none == empty);
    EXPECT_FALSE(store.Keep(L"A").IsEmpty());
}

TEST(TextStore, MayBeMovedWithItsTexts)
{
    TextStore store;
    const StoredText text = store.Keep(L"stays");
    TextStore moved = std::move(store);
    EXPECT_EQ(L"stays", text.Text());
    const StoredText next = moved.Keep(L"next");
    store = TextStore();
    const StoredText other = store.Keep(L"another");
    EXPECT_EQ(L"next", next.Text());
    EXPECT_EQ(L"another", other.Text());
    EXPECT_EQ(L"stays", text.Text());
}

} // namespace
