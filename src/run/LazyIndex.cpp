#include "run/LazyIndex.h"

namespace run
{

long LazyIndex::Find(RecordKeys& others, long position)
{
    // A walk over no records compares nothing, so it reads no key of the other side either.
    if (mRead == 0 && !ReadOne())
    {
        return 0;
    }
    const std::wstring& key = others.First(position);
    const long known = FindAmongRead(others, position, key);
    if (known != 0)
    {
        return known;
    }
    while (ReadOne())
    {
        if (mRecords.First(mRead) != key)
        {
            mRecords.PassBy(mRead);
        }
        else if (SecondKeysAgree(others, position, mRead))
        {
            return mRead;
        }
    }
    return 0;
}

bool LazyIndex::ReadOne()
{
    const long position = mRead + 1;
    if (!mRecords.Exists(position))
    {
        return false;
    }
    const std::wstring& key = mRecords.First(position);
    mRead = position;
    mNext.push_back(0);
    const auto [chain, isNew] = mChains.try_emplace(key, Chain{position, position});
    if (!isNew)
    {
        mNext[static_cast<size_t>(chain->second.last)] = position;
        chain->second.last = position;
    }
    return true;
}

long LazyIndex::FindAmongRead(RecordKeys& others, long position, std::wstring_view key)
{
    const auto chain = mChains.find(key);
    if (chain == mChains.end())
    {
        return 0;
    }
    long candidate = chain->second.first;
    while (candidate != 0 && !SecondKeysAgree(others, position, candidate))
    {
        candidate = mNext[static_cast<size_t>(candidate)];
    }
    return candidate;
}

bool LazyIndex::SecondKeysAgree(RecordKeys& others, long position, long candidate)
{
    return !mRecords.HasSecond() || mRecords.Second(candidate) == others.Second(position);
}

} // namespace run
