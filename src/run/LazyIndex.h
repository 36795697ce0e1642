// Finds the first record of one side that matches a record of the other, as a walk from the first record on
// would, but reads every key once: first among the records read so far (the lowest position wins), and only
// then by reading on from where the reading stopped.
#pragma once

#include "run/RecordKeys.h"

#include <string_view>
#include <unordered_map>
#include <vector>

namespace run
{

class LazyIndex
{
  public:
    explicit LazyIndex(RecordKeys& records) : mRecords(records) {}

    // The position of the first record that matches the other side's record at this position; 0 for none.
    // Throws automation::Error when a key on the way cannot be read.
    long Find(RecordKeys& others, long position);

  private:
    // Positions of the records with one first key, a chain in ascending order.
    struct Chain
    {
        long first;
        long last;
    };

    bool ReadOne();
    long FindAmongRead(RecordKeys& others, long position, std::wstring_view key);
    bool SecondKeysAgree(RecordKeys& others, long position, long candidate);

    RecordKeys& mRecords;
    long mRead = 0;
    std::unordered_map<std::wstring_view, Chain> mChains;
    std::vector<long> mNext{0}; // by position: the next one of the same chain, or 0
};

} // namespace run
