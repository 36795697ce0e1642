// Finds the first record of one side that matches a record of the other, as a walk from the first record on
// would, but reads every key once: first among the records read so far (the lowest position wins), and only
// then by reading on from where the reading stopped.
#pragma once

#include "run/KeyTable.h"

namespace run
{

class LazyIndex
{
  public:
    explicit LazyIndex(RecordKeys& records) : mRecords(records), mTable(records) {}

    // Enables look-ahead: when the search skips a record whose first key occurs on the other side, it reads
    // the second key and the identity at once, so that the record is not fetched twice. For a side whose
    // records are costly to fetch; the other side is then read to its end.
    void LookAheadIn(LazyIndex& others) noexcept { mOthers = &others; }

    // The position of the first record that matches the other side's record at this position; 0 for none.
    // Throws automation::Error when a key on the way cannot be read.
    long Find(RecordKeys& others, long position);

  private:
    bool ReadOne();
    void Skip();
    bool Has(data::StoredText firstKey);
    long FindAmongRead(RecordKeys& others, long position, data::StoredText key);
    bool SecondKeysAgree(RecordKeys& others, long position, long candidate);

    RecordKeys& mRecords;
    KeyTable mTable; // of the records read so far
    LazyIndex* mOthers = nullptr;
    bool mHasReadAhead = false;
};

} // namespace run
