// A hash table of numbers from 1, each of which stands for a text that its owner keeps: eight bytes an entry,
// and at most two thirds of the entries in use. Small, since a run has one number for every record, and with
// the hashes at hand, since the texts of a large run are not in the processor's cache.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
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
        const Entry wanted{0, Kept(hash)};
        size_t at = Start(wanted);
        while (mEntries[at].Number != 0 && !(mEntries[at].Hash == wanted.Hash && isIt(mEntries[at].Number)))
        {
            at = Next(at);
        }
        return mEntries[at].Number;
    }

    // Adds a number whose text is not in the table.
    void Add(std::uint32_t number, size_t hash)
    {
        if (3 * (mCount + 1) > 2 * mEntries.size())
        {
            Grow();
        }
        Put({number, Kept(hash)});
        ++mCount;
    }

  private:
    struct Entry
    {
        std::uint32_t Number; // 0 in a free entry
        std::uint32_t Hash;
    };

    static constexpr size_t kFirstSize = 16; // a power of two, as each size is

    static std::uint32_t Kept(size_t hash) noexcept { return static_cast<std::uint32_t>(hash); }
    size_t Start(const Entry& entry) const noexcept { return entry.Hash & (mEntries.size() - 1); }
    size_t Next(size_t at) const noexcept { return (at + 1) & (mEntries.size() - 1); }

    void Put(const Entry& entry)
    {
        size_t at = Start(entry);
        while (mEntries[at].Number != 0)
        {
            at = Next(at);
        }
        mEntries[at] = entry;
    }

    void Grow()
    {
        const std::vector<Entry> before = std::move(mEntries);
        mEntries.assign(before.empty() ? kFirstSize : 2 * before.size(), Entry{});
        for (const Entry& entry : before)
        {
            if (entry.Number != 0)
            {
                Put(entry);
            }
        }
    }

    std::vector<Entry> mEntries;
    size_t mCount = 0;
};

} // namespace run
