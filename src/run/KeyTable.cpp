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
    const long first = First(mRecords.First(position));
    if (first == 0)
    {
        mFirsts.Add(static_cast<std::uint32_t>(position),
                    [this](std::uint32_t number) { return HashOf(static_cast<long>(number)); });
        return;
    }
    long& last = mLast[static_cast<size_t>(first)];
    mNext[static_cast<size_t>(last)] = position;
    last = position;
}

long KeyTable::First(data::StoredText key) const
{
    return static_cast<long>(mFirsts.Find(
        key.Hash(), [&](std::uint32_t number) { return mRecords.First(static_cast<long>(number)) == key; }));
}

size_t KeyTable::HashOf(long position) const
{
    return mRecords.First(position).Hash();
}

} // namespace run
