// The identities of a side, against a map of texts.
#include "run/Identities.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

namespace
{

TEST(Identities, AnEmptyStoreHasNone)
{
    const run::Identities identities;
    EXPECT_FALSE(identities.Has(1));
    EXPECT_FALSE(identities.Has(1000000));
}

TEST(Identities, AreThoseOfAMapWhateverTheOrderInWhichTheyCome)
{
    std::mt19937 random(20031);
    data::TextStore texts;
    run::Identities identities;
    std::map<long, std::wstring> expected;
    std::set<std::wstring> met;
    for (int i = 0; i < 5000; ++i)
    {
        const long position = 1 + static_cast<long>(random() % 4000);
        if (expected.contains(position))
        {
            continue;
        }
        // Some of them in two bytes a character, and about one in five met before.
        const std::wstring text =
            std::wstring(random() % 3 == 0 ? L"\x5F20" : L"{00\xFF") + std::to_wstring(random() % 8000);
        EXPECT_EQ(met.insert(text).second, identities.Add(position, texts.Keep(text))) << i;
        expected[position] = text;
    }
    for (long position = 1; position <= 4000; ++position)
    {
        const auto one = expected.find(position);
        ASSERT_EQ(one != expected.end(), identities.Has(position)) << position;
        if (one != expected.end())
        {
            EXPECT_EQ(one->second, identities.At(position).Text());
        }
    }
}

TEST(Identities, AnEmptyOneIsNoRecordsHoweverManyHaveIt)
{
    data::TextStore texts;
    run::Identities identities;
    EXPECT_TRUE(identities.Add(1, texts.Keep(L"")));
    EXPECT_TRUE(identities.Add(2, texts.Keep(L"")));
    EXPECT_TRUE(identities.Has(2));
    EXPECT_TRUE(identities.At(2).IsEmpty());
}

} // namespace
