#include "run/RecordKeys.h"

namespace run
{

namespace
{

template<typename Read>
const std::wstring& ReadOnce(std::deque<std::optional<std::wstring>>& keys, long position, Read&& read)
{
    const auto index = static_cast<size_t>(position) - 1;
    if (keys.size() <= index)
    {
        keys.resize(index + 1);
    }
    std::optional<std::wstring>& key = keys[index];
    if (!key)
    {
        key = read();
        key->shrink_to_fit(); // it stays for the run
    }
    return *key;
}

} // namespace

bool RecordKeys::IsRead(long position) const noexcept
{
    const auto index = static_cast<size_t>(position) - 1;
    return index < mFirst.size() && mFirst[index].has_value();
}

const std::wstring& RecordKeys::First(long position)
{
    return ReadOnce(mFirst, position, [&] {
        Reach(position);
        return ReadFirst();
    });
}

const std::wstring& RecordKeys::Second(long position)
{
    return ReadOnce(mSecond, position, [&] {
        Reach(position);
        return ReadSecond();
    });
}

ItemKeys::ItemKeys(const exchange::MatchRule& rule, const automation::Object& items)
    : RecordKeys(rule.SecondKeyOfItem != nullptr), mRule(rule), mItems(items)
{
}

long ItemKeys::CountItems()
{
    mCount = automation::LongOf(mItems.Get(L"Count"));
    return mCount;
}

void ItemKeys::Reach(long position)
{
    if (position != mCurrentPosition)
    {
        mCurrentPosition = 0;
        mCurrent = mItems.GetObject(L"Item", position);
        mCurrentPosition = position;
    }
}

RowKeys::RowKeys(const exchange::MatchRule& rule, const automation::Recordset& rows)
    : RecordKeys(rule.SecondKeyOfRow != nullptr), mRule(rule), mRows(rows)
{
}

bool RowKeys::Exists(long position)
{
    if (position <= mKnown || mIsComplete)
    {
        return position <= mKnown;
    }
    // The one after the last known row: step there from its neighbour.
    if (position > 1)
    {
        Reach(position - 1);
        mCurrentPosition = 0; // whatever becomes of the step
        mRows.MoveNext();
    }
    else if (!mRows.HasNoRows())
    {
        mRows.MoveFirst();
    }
    mIsComplete = mRows.AtEnd();
    mCurrentPosition = mIsComplete ? 0 : position;
    mKnown = mIsComplete ? mKnown : position;
    return !mIsComplete;
}

void RowKeys::Reach(long position)
{
    if (position != mCurrentPosition)
    {
        mRows.MoveTo(position);
        mCurrentPosition = position;
    }
}

} // namespace run
