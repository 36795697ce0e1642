// Which rows a cursor has and in which order: sorted, filtered, and those of a keyset as they are by now.
#include "sandbox/ado/Cursor.h"

#include "sandbox/ado/RowOrder.h"

#include <algorithm>
#include <set>

namespace sandbox
{

namespace
{

// The first column that tells all rows apart; npos where there is none.
size_t KeyColumnOf(const ResultSet& result)
{
    for (size_t column = 0; column < result.columns.size(); ++column)
    {
        std::set<std::wstring> keys;
        for (const Row& row : result.rows)
        {
            keys.insert(automation::TextOrEmpty(row[column]));
        }
        if (keys.size() == result.rows.size() && !keys.contains(L""))
        {
            return column;
        }
    }
    return ResultSet::npos;
}

} // namespace

void Cursor::KeepKeys(Requery requery)
{
    const bool isKeyset = mAwkward.rows == RowsAs::Keyset && requery;
    mKeyColumn = isKeyset ? KeyColumnOf(mResult) : ResultSet::npos;
    mRequery = mKeyColumn != ResultSet::npos ? std::move(requery) : nullptr;
    mIsDeleted.assign(mResult.rows.size(), false);
}

// The first row that is left is the current one.
void Cursor::Arrange()
{
    mOrder.clear();
    const std::function<bool(const Row&)> holds = mFilter.empty() ? nullptr : RowFilter(mResult, mFilter);
    for (size_t row = 0; row < mResult.rows.size(); ++row)
    {
        if (!holds || holds(mResult.rows[row]))
        {
            mOrder.push_back(row);
        }
    }
    if (!mSort.empty())
    {
        SortRows(mResult, mSort, mOrder);
    }
    mPosition = 1;
}

void Cursor::Sort(const std::wstring& columns)
{
    CheckFree();
    mSort = columns;
    Arrange();
}

void Cursor::Filter(const std::wstring& criteria)
{
    CheckFree();
    mFilter = criteria;
    Arrange();
}

// The owner of a recordset may sort or filter it while a client moves in it: the client's row stays current
// as long as there is one in its place.
void Cursor::BeforeMove()
{
    if (mAwkward.atMove != 0 && ++mMoves == mAwkward.atMove)
    {
        const long position = mPosition;
        mSort = mAwkward.sort;
        mFilter = mAwkward.filter;
        Arrange();
        mPosition = std::min(position, RowCount() + 1);
    }
}

// "Additions [...] by other users are not visible [...]; changes to data by other users are visible; records
// that other users delete are inaccessible" (Types of Cursors: keyset).
void Cursor::Refresh()
{
    if (!mRequery)
    {
        return;
    }
    ResultSet live = mRequery();
    for (size_t row = 0; row < mResult.rows.size(); ++row)
    {
        const Value key = mResult.rows[row][mKeyColumn];
        const auto found = std::ranges::find_if(live.rows, [&](const Row& one) {
            return automation::TextOrEmpty(one[mKeyColumn]) == automation::TextOrEmpty(key);
        });
        mIsDeleted[row] = found == live.rows.end();
        if (!mIsDeleted[row])
        {
            mResult.rows[row] = *found;
        }
    }
}

} // namespace sandbox
