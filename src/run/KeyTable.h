// The positions of one side's records by their first keys, each key with a chain of its records in ascending
// order. Small, since there is one for every record of a run: the keys themselves stay with the RecordKeys
// that the table is made over, which outlives it.
#pragma once

#include "run/RecordKeys.h"

#include <string_view>
#include <unordered_set>
#include <vector>

namespace run
{

class KeyTable
{
  public:
    explicit KeyTable(RecordKeys& records) : mFirsts(0, Hash{records}, Same{records}) {}

    // Adds the record after the last one added, whose first key has been read.
    void Add();
    // Leaves out the record after the last one added.
    void Skip();
    long Count() const noexcept { return static_cast<long>(mNext.size()) - 1; }

    // The first record with this key, and the next one with the key of a record; 0 for none.
    long First(std::wstring_view key) const;
    long Next(long position) const { return mNext[static_cast<size_t>(position)]; }

  private:
    // A position stands for the key of its record.
    struct Hash
    {
        using is_transparent = void;
        RecordKeys& records;
        size_t operator()(std::wstring_view key) const { return std::hash<std::wstring_view>{}(key); }
        size_t operator()(long position) const { return (*this)(records.First(position)); }
    };
    struct Same
    {
        using is_transparent = void;
        RecordKeys& records;
        bool operator()(std::wstring_view key, long position) const { return records.First(position) == key; }
        bool operator()(long position, std::wstring_view key) const { return records.First(position) == key; }
        bool operator()(long left, long right) const { return records.First(left) == records.First(right); }
    };

    std::unordered_set<long, Hash, Same> mFirsts; // the first record of every chain
    std::vector<long> mNext{0};                   // by position: the next one of the same chain, or 0
    std::vector<long> mLast{0};                   // by the position of the first one of a chain: the last one
};

} // namespace run
