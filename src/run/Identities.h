// What tells the records of one side apart for good, by position from 1: the EntryIDs of items, the keys of
// rows.
#pragma once

#include "data/TextStore.h"
#include "run/NumberTable.h"

#include <deque>

namespace run
{

class Identities
{
  public:
    // Keeps the identity of a record that has none yet. False where another record has the same one; an empty
    // identity is no record's.
    bool Add(long position, data::StoredText identity);

    bool Has(long position) const noexcept { return !At(position).IsNone(); }
    // None where there is none.
    data::StoredText At(long position) const noexcept;

  private:
    std::deque<data::StoredText> mByPosition;
    NumberTable mTable; // of positions, by identity
};

} // namespace run
