#include "run/LazyIndex.h"

#include "state/Failures.h"

namespace run
{

namespace
{

// Speculative read: errors are ignored here and reported if the key is needed.
template<typename Read>
void ReadSpeculatively(Read&& read)
{
    state::Trapped(read);
}

} // namespace

long LazyIndex::Find(RecordKeys& others, long position)
{
    // A walk over no records compares nothing, so it reads no key of the other side either.
    const bool isFirstSearch = mTable.Count() == 0;
    if (isFirstSearch && !ReadOne())
    {
        // Still it must be known whether there is a record to propose.
        ReadSpeculatively([&] { others.First(position); });
        return 0;
    }
    const data::StoredText key = others.First(position);
    if (!others.IsRecord(position))
    {
        return 0;
    }
    const long known = FindAmongRead(others, position, key);
    if (known != 0)
    {
        return known;
    }
    if (isFirstSearch)
    {
        Skip();
    }
    while (ReadOne())
    {
        if (mRecords.First(mTable.Count()) == key && SecondKeysAgree(others, position, mTable.Count()))
        {
            mRecords.Keep(mTable.Count());
            return mTable.Count();
        }
        Skip();
    }
    return 0;
}

bool LazyIndex::ReadOne()
{
    while (mRecords.Exists(mTable.Count() + 1))
    {
        const long position = mTable.Count() + 1;
        mRecords.First(position);
        if (mRecords.IsRecord(position))
        {
            mTable.Add();
            return true;
        }
        mTable.Skip();
    }
    return false;
}

// The record that was read last is not the one looked for.
void LazyIndex::Skip()
{
    const long position = mTable.Count();
    const bool readsMore = mRecords.HasSecond() || mRecords.KeepsLikelyOnes();
    if (mOthers != nullptr && readsMore && mOthers->Has(mRecords.First(position)))
    {
        ReadSpeculatively([&] {
            mRecords.Keep(position);
            if (mRecords.HasSecond())
            {
                mRecords.Second(position);
            }
        });
    }
}

bool LazyIndex::Has(data::StoredText firstKey)
{
    if (!mHasReadAhead)
    {
        mHasReadAhead = true;
        ReadSpeculatively([&] {
            while (ReadOne())
            {
            }
        });
    }
    return mTable.First(firstKey) != 0;
}

long LazyIndex::FindAmongRead(RecordKeys& others, long position, data::StoredText key)
{
    long candidate = mTable.First(key);
    while (candidate != 0 && !SecondKeysAgree(others, position, candidate))
    {
        candidate = mTable.Next(candidate);
    }
    return candidate;
}

bool LazyIndex::SecondKeysAgree(RecordKeys& others, long position, long candidate)
{
    const bool agree = !mRecords.HasSecond() || mRecords.Second(candidate) == others.Second(position);
    return agree && mRecords.IsRecord(candidate) && others.IsRecord(position);
}

} // namespace run
