// A hash table of numbers from 1, each of which stands for a text that its owner keeps: four bytes an entry,
// and at most half of the entries in use. Small, since a run has one number for every record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace run
{

class NumberTable
{
  public:
    // The number of the text with this hash for which isIt(number) holds; 0 for none.
    template<typename IsIt>
    std::uint32_t Find(size_t hash, IsIt&& isIt) const
    {
        if (mEntries.empty())
        {
            return 0;
        }
        size_t at = Start(hash);
        while (mEntries[at] != 0 && !isIt(mEntries[at]))
        {
            at = Next(at);
        }
        return mEntries[at];
    }

    // Adds a number whose text is not in the table. hashOf(number): the hash of any number's text.
    template<typename HashOf>
    void Add(std::uint32_t number, HashOf&& hashOf)
    {
        if (2 * (mCount + 1) > mEntries.size())
        {
            Grow(hashOf);
        }
        Put(number, hashOf(number));
        ++mCount;
    }

  private:
    static constexpr size_t kFirstSize = 16; // a power of two, as each size is

    size_t Start(size_t hash) const noexcept { return hash & (mEntries.size() - 1); }
    size_t Next(size_t at) const noexcept { return (at + 1) & (mEntries.size() - 1); }

    void Put(std::uint32_t number, size_t hash)
    {
        size_t at = Start(hash);
        while (mEntries[at] != 0)
        {
            at = Next(at);
        }
        mEntries[at] = number;
    }

    template<typename HashOf>
    void Grow(HashOf&& hashOf)
    {
        const std::vector<std::uint32_t> before = std::move(mEntries);
        mEntries.assign(before.empty() ? kFirstSize : 2 * before.size(), 0);
        for (const std::uint32_t number : before)
        {
            if (number != 0)
            {
                Put(number, hashOf(number));
            }
        }
    }

    std::vector<std::uint32_t> mEntries; // 0 for a free one
    size_t mCount = 0;
};

} // namespace run
