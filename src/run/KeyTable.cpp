#include "run/KeyTable.h"

#include <functional>

namespace run
{

namespace
{

constexpr size_t kFewestSlots = 16;

} // namespace

void KeyTable::Add()
{
    if (2 * mKeys >= mSlots.size())
    {
        Grow();
    }
    const long position = Count() + 1;
    long& first = mSlots[SlotOf(mRecords.First(position))];
    mNext.push_back(0);
    mLast.push_back(position);
    if (first == 0)
    {
        first = position;
        ++mKeys;
        return;
    }
    long& last = mLast[static_cast<size_t>(first)];
    mNext[static_cast<size_t>(last)] = position;
    last = position;
}

long KeyTable::First(std::wstring_view key) const
{
    return mSlots.empty() ? 0 : mSlots[SlotOf(key)];
}

// The slot of the key's chain, or the free one where it would stand. There always is a free one.
size_t KeyTable::SlotOf(std::wstring_view key) const
{
    const size_t mask = mSlots.size() - 1;
    size_t slot = std::hash<std::wstring_view>{}(key)&mask;
    while (mSlots[slot] != 0 && mRecords.First(mSlots[slot]) != key)
    {
        slot = (slot + 1) & mask;
    }
    return slot;
}

void KeyTable::Grow()
{
    const std::vector<long> chains = std::move(mSlots);
    mSlots.assign(chains.empty() ? kFewestSlots : 2 * chains.size(), 0);
    for (const long first : chains)
    {
        if (first != 0)
        {
            mSlots[SlotOf(mRecords.First(first))] = first;
        }
    }
}

} // namespace run
