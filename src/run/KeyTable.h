// The positions of one side's records by their first keys, each key with a chain of its records in ascending
// order. Small, since there is one for every record of a run: the keys themselves stay with the RecordKeys
// that the table is made over, which outlives it.
#pragma once

#include "run/NumberTable.h"
#include "run/RecordKeys.h"

#include <vector>

namespace run
{

class KeyTable
{
  public:
    explicit KeyTable(RecordKeys& records) noexcept : mRecords(records) {}

    // Adds the record after the last one added, whose first key has been read.
    void Add();
    // Leaves out the record after the last one added.
    void Skip();
    long Count() const noexcept { return static_cast<long>(mNext.size()) - 1; }

    // The first record with this key, and the next one with the key of a record; 0 for none.
    long First(data::StoredText key) const;
    long Next(long position) const { return mNext[static_cast<size_t>(position)]; }

  private:
    // The first record with this key.
    long Find(data::StoredText key, size_t hash) const;

    RecordKeys& mRecords;
    NumberTable mFirsts;        // the first record of every chain, by its key
    std::vector<long> mNext{0}; // by position: the next one of the same chain, or 0
    std::vector<long> mLast{0}; // by the position of the first one of a chain: the last one
};

} // namespace run
