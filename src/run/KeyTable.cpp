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
    const auto [first, isNew] = mFirsts.insert(position);
    if (!isNew)
    {
        long& last = mLast[static_cast<size_t>(*first)];
        mNext[static_cast<size_t>(last)] = position;
        last = position;
    }
}

long KeyTable::First(std::wstring_view key) const
{
    const auto first = mFirsts.find(key);
    return first == mFirsts.end() ? 0 : *first;
}

} // namespace run
