#include "run/LazyIndex.h"

#include "state/Failures.h"

namespace run
{

namespace
{

// Reads what nobody has asked for yet, and perhaps nobody will: what fails is read again, and fails, where it
// is needed.
template<typename Read>
void ReadEarly(Read&& read)
{
    state::Trapped(false, [&] {
        read();
        return true;
    });
}

} // namespace

long LazyIndex::Find(RecordKeys& others, long position)
{
    // A walk over no records compares nothing, so it reads no key of the other side either.
    const bool isFirstSearch = mTable.Count() == 0;
    if (isFirstSearch && !ReadOne())
    {
        return 0;
    }
    const std::wstring& key = others.First(position);
    const long known = FindAmongRead(others, position, key);
    if (known != 0)
    {
        return known;
    }
    if (isFirstSearch)
    {
        PassBy();
    }
    while (ReadOne())
    {
        if (mRecords.First(mTable.Count()) == key && SecondKeysAgree(others, position, mTable.Count()))
        {
            return mTable.Count();
        }
        PassBy();
    }
    return 0;
}

bool LazyIndex::ReadOne()
{
    const long position = mTable.Count() + 1;
    if (!mRecords.Exists(position))
    {
        return false;
    }
    mRecords.First(position);
    mTable.Add();
    return true;
}

// The record that was read last is not the one looked for.
void LazyIndex::PassBy()
{
    if (mOthers != nullptr && mRecords.HasSecond() && mOthers->Has(mRecords.First(mTable.Count())))
    {
        ReadEarly([&] { mRecords.Second(mTable.Count()); });
    }
}

bool LazyIndex::Has(std::wstring_view firstKey)
{
    if (!mHasReadAhead)
    {
        mHasReadAhead = true;
        ReadEarly([&] {
            while (ReadOne())
            {
            }
        });
    }
    return mTable.First(firstKey) != 0;
}

long LazyIndex::FindAmongRead(RecordKeys& others, long position, std::wstring_view key)
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
    return !mRecords.HasSecond() || mRecords.Second(candidate) == others.Second(position);
}

} // namespace run
