#include "run/RecordKeys.h"

#include "exchange/Identity.h"

namespace run
{

template<typename Read>
data::StoredText RecordKeys::ReadOnce(Keys& keys, long position, Read&& read)
{
    const auto index = static_cast<size_t>(position) - 1;
    if (keys.size() <= index)
    {
        keys.resize(index + 1);
    }
    if (keys[index].IsNone())
    {
        keys[index] = mTexts.Keep(ReadRecord(position, std::wstring(), [&] {
            Reach(position);
            return read();
        }));
    }
    return keys[index];
}

bool RecordKeys::IsRead(long position) const noexcept
{
    const auto index = static_cast<size_t>(position) - 1;
    return index < mFirst.size() && !mFirst[index].IsNone();
}

data::StoredText RecordKeys::First(long position)
{
    return ReadOnce(mFirst, position, [this] { return ReadFirst(); });
}

data::StoredText RecordKeys::Second(long position)
{
    return ReadOnce(mSecond, position, [this] { return ReadSecond(); });
}

void RecordKeys::Remember(long position, const std::wstring& identity)
{
    if (!mIdentities.Add(position, mTexts.Keep(identity)))
    {
        mHasMetOneTwice = true;
        mNone.insert(position);
    }
}

void RecordKeys::Take(TableKeys& table) noexcept
{
    mFirst = std::move(table.First);
    mSecond = std::move(table.Second);
    mIdentities = std::move(table.Ids);
}

ItemKeys::ItemKeys(const exchange::MatchRule& rule, const exchange::Filters& filters, exchange::Run& run,
                   bool keepsAll, bool usesTable)
    : RecordKeys(rule.SecondKeyOfItem != nullptr, run.Texts),
      mRule(rule),
      mFilters(filters),
      mRun(run),
      mKeepsAll(keepsAll),
      mUsesTable(usesTable)
{
}

// All at once, before the first item is read: a table that turns out to be wrong leaves nothing behind.
void ItemKeys::TryTable()
{
    if (!mUsesTable || mHasTriedTable)
    {
        return;
    }
    mHasTriedTable = true;
    const exchange::Filters none;
    std::optional<TableKeys> keys = ReadTable(mRule, mKeepsAll ? mFilters : none, mRun, mCount);
    mUsesTable = keys.has_value();
    if (keys)
    {
        Take(*keys);
        mKept = std::move(keys->Kept);
    }
}

bool ItemKeys::Exists(long position)
{
    TryTable();
    return position <= mCount;
}

long ItemKeys::CountItems()
{
    mCount = automation::LongOf(mRun.Items.Get(L"Count"));
    return mCount;
}

bool ItemKeys::HasMoved() const
{
    return HasMetOneTwice() || automation::LongOf(mRun.Items.Get(L"Count")) != mCount;
}

void ItemKeys::Reach(long position)
{
    if (position == mCurrentPosition)
    {
        return;
    }
    mCurrentPosition = 0;
    mCurrent = Fetched(position);
    if (!mCurrent)
    {
        throw automation::Error(automation::kItemNotFound, L"Item");
    }
    mCurrentPosition = position;
}

// The table may have another order than Items.
automation::Object ItemKeys::Fetched(long position)
{
    return HasTable() ? exchange::OpenItem(mRun, Known().At(position).Text())
                      : exchange::ItemAt(mRun.Items, position);
}

// An item is fetched even where there is no row to compare it with: one that cannot be fetched ends the walk.
bool ItemKeys::Keeps(long position)
{
    TryTable();
    const auto index = static_cast<size_t>(position) - 1;
    if (index < mKept.size() && mKept[index])
    {
        return *mKept[index];
    }
    if (!mFilters.KeepsItem && IsRead(position))
    {
        return true;
    }
    return ReadRecord(position, false, [&] {
        Reach(position);
        return !mFilters.KeepsItem || mFilters.KeepsItem(mCurrent);
    });
}

void ItemKeys::Keep(long position)
{
    if (position == mCurrentPosition && !Known().Has(position))
    {
        Remember(position, exchange::EntryIdOf(mCurrent));
    }
}

data::StoredText ItemKeys::EntryId(long position)
{
    if (!Known().Has(position))
    {
        Reach(position);
        Keep(position);
    }
    return Known().At(position);
}

std::wstring ItemKeys::ReadFirst()
{
    std::wstring key = mRule.FirstKeyOfItem(mCurrent);
    if (mKeepsAll)
    {
        Keep(mCurrentPosition);
    }
    return key;
}

RowKeys::RowKeys(const exchange::MatchRule& rule, exchange::Run& run, std::wstring keyColumn)
    : RecordKeys(rule.SecondKeyOfRow != nullptr, run.Texts),
      mRule(rule),
      mRows(run.HostRows),
      mKeyColumn(std::move(keyColumn))
{
}

long RowKeys::Count()
{
    if (!mCount)
    {
        mCount = mRows.RecordCount();
    }
    return *mCount;
}

// A walk that ends early has passed rows by. A cursor that does not count its rows tells -1.
bool RowKeys::HasMoved()
{
    if (HasMetOneTwice() || !mIsComplete)
    {
        return HasMetOneTwice();
    }
    const long count = mRows.RecordCount();
    return count >= 0 && (count != mKnown || Count() != mKnown);
}

bool RowKeys::Exists(long position)
{
    if (position <= mKnown || mIsComplete)
    {
        return position <= mKnown;
    }
    if (position > 1)
    {
        mIsComplete = !StepBehind(position - 1);
    }
    else
    {
        Count();
        mIsComplete = mRows.HasNoRows();
        if (!mIsComplete)
        {
            mRows.MoveFirst();
        }
    }
    mIsComplete = mIsComplete || mRows.AtEnd();
    mCurrentPosition = mIsComplete ? 0 : position;
    mKnown = mIsComplete ? mKnown : position;
    return !mIsComplete;
}

// From the last known row to the one after it. Where that row is gone, its place in a keyset may still be
// there.
bool RowKeys::StepBehind(long position)
{
    const bool isThere =
        position == mCurrentPosition || exchange::GoToRow(mRows, mKeyColumn, position, KnownKey(position));
    mCurrentPosition = 0; // whatever becomes of the step
    if (!isThere && position > mRows.RecordCount())
    {
        return false;
    }
    if (!isThere)
    {
        mRows.GoTo(position);
    }
    try
    {
        mRows.MoveNext();
    }
    catch (const automation::Error&)
    {
        // The host may have taken rows away, so that the step begins behind the last one.
        if (!mRows.AtEnd())
        {
            throw;
        }
    }
    return true;
}

void RowKeys::Reach(long position)
{
    if (position == mCurrentPosition)
    {
        return;
    }
    mCurrentPosition = 0;
    if (!exchange::GoToRow(mRows, mKeyColumn, position, KnownKey(position)))
    {
        throw automation::Error(automation::kRowDeleted, L"Move");
    }
    mCurrentPosition = position;
}

data::StoredText RowKeys::Key(long position)
{
    if (!Known().Has(position))
    {
        Reach(position);
        Remember(position, exchange::KeyOfRow(mRows, mKeyColumn));
    }
    return Known().At(position);
}

std::wstring RowKeys::ReadFirst()
{
    Key(mCurrentPosition);
    return mRule.FirstKeyOfRow(mRows);
}

} // namespace run
