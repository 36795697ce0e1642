#include "run/KeyTable.h"

namespace run
{

void KeyTable::Skip()
{
    mLast.push_back(Count() + 1);
    mNext.push_back(0);
}

void KeyTable::Add()
{
    const long position = Count() + 1;
    Skip();
    const data::StoredText key = mRecords.First(position);
    const size_t hash = key.Hash();
    const long first = Find(key, hash);
    if (first == 0)
    {
        mFirsts.Add(static_cast<std::uint32_t>(position), hash);
        return;
    }
    long& last = mLast[static_cast<size_t>(first)];
    mNext[static_cast<size_t>(last)] = position;
    last = position;
}

long KeyTable::First(data::StoredText key) const
{
    return Find(key, key.Hash());
}

long KeyTable::Find(data::StoredText key, size_t hash) const
{
    return static_cast<long>(mFirsts.Find(
        hash, [&](std::uint32_t number) { return mRecords.First(static_cast<long>(number)) == key; }));
}

} // namespace run
