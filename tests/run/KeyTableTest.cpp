// The table of first keys, against a plain search.
#include "run/KeyTable.h"

#include <gtest/gtest.h>

#include <random>

namespace
{

// Records that have nothing but a first key each.
class PlainKeys : public run::RecordKeys
{
  public:
    PlainKeys(std::vector<std::wstring> keys, data::TextStore& texts)
        : RecordKeys(false, texts), mKeys(std::move(keys))
    {
    }

    bool Exists(long position) override { return position <= static_cast<long>(mKeys.size()); }
    void Reach(long position) override { mCurrent = static_cast<size_t>(position) - 1; }

  private:
    std::wstring ReadFirst() override { return mKeys[mCurrent]; }
    std::wstring ReadSecond() override { return {}; }

    std::vector<std::wstring> mKeys;
    size_t mCurrent = 0;
};

// Of those up to a position; 0 for none.
long SearchFrom(run::RecordKeys& records, long from, long count, data::StoredText key)
{
    for (long position = from; position <= count; ++position)
    {
        if (records.First(position) == key)
        {
            return position;
        }
    }
    return 0;
}

TEST(KeyTable, AnEmptyOneKnowsNoKey)
{
    data::TextStore texts;
    PlainKeys records({L"A"}, texts);
    const run::KeyTable table(records);
    EXPECT_EQ(0, table.Count());
    EXPECT_EQ(0, table.First(texts.Keep(L"A")));
}

TEST(KeyTable, LeadsThroughTheRecordsOfAKeyInAscendingOrderHoweverManyThereAre)
{
    std::mt19937 random(20031);
    for (const size_t different : {1, 7, 400})
    {
        std::vector<std::wstring> keys;
        keys.reserve(600);
        for (int i = 0; i < 600; ++i)
        {
            keys.push_back(L"Key " + std::to_wstring(random() % different));
        }
        keys[3].clear(); // the key of a record without names
        data::TextStore texts;
        PlainKeys records(keys, texts);
        run::KeyTable table(records);
        for (long count = 1; records.Exists(count); ++count)
        {
            table.Add();
            const data::StoredText key = records.First(count);
            EXPECT_EQ(SearchFrom(records, 1, count, key), table.First(key));
        }
        for (long position = 1; records.Exists(position); ++position)
        {
            EXPECT_EQ(SearchFrom(records, position + 1, table.Count(), records.First(position)),
                      table.Next(position));
        }
        EXPECT_EQ(0, table.First(texts.Keep(L"Key")));
    }
}

} // namespace
