#include "sandbox/ado/Cursor.h"

#include "automation/Error.h"
#include "sandbox/ado/Recordset.h"

#include <algorithm>

namespace sandbox
{

namespace
{

using automation::Error;

constexpr long kUnknown = -1;     // adPosUnknown
constexpr long kBeforeFirst = -2; // adPosBOF
constexpr long kBehindLast = -3;  // adPosEOF

[[noreturn]] void RefuseWithoutRecord()
{
    throw Error(
        kNoCurrentRecord, L"Recordset",
        L"Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
        L"current record.");
}

} // namespace

void Cursor::Open(ResultSet rows, bool isForwardOnly)
{
    mResult = std::move(rows);
    mIsForwardOnly = isForwardOnly;
    mIsOpen = true;
    mPosition = 1;
}

void Cursor::Close() noexcept
{
    mResult = {};
    mIsOpen = false;
}

void Cursor::CheckOpen() const
{
    if (!mIsOpen)
    {
        throw Error(kObjectClosed, L"Recordset", L"Operation is not allowed when the object is closed.");
    }
}

void Cursor::CheckFree() const
{
    CheckOpen();
    if (mIsForwardOnly)
    {
        throw Error(kNotCapable, L"Recordset",
                    L"Object or provider is not capable of performing requested operation.");
    }
}

bool Cursor::AtEnd() const
{
    CheckOpen();
    return mPosition > RowCount();
}

bool Cursor::AtStart() const
{
    CheckOpen();
    return mPosition < 1 || RowCount() == 0;
}

long Cursor::RowCount() const
{
    return static_cast<long>(mResult.rows.size());
}

long Cursor::Count() const
{
    CheckOpen();
    return mIsForwardOnly ? kUnknown : RowCount();
}

long Cursor::Position() const
{
    CheckOpen();
    if (mIsForwardOnly || RowCount() == 0)
    {
        return kUnknown;
    }
    return AtStart() ? kBeforeFirst : AtEnd() ? kBehindLast : mPosition;
}

long Cursor::Bookmark() const
{
    CheckFree();
    if (AtStart() || AtEnd())
    {
        RefuseWithoutRecord();
    }
    return mPosition;
}

void Cursor::GoToFirst()
{
    CheckOpen();
    if (RowCount() == 0)
    {
        RefuseWithoutRecord();
    }
    mPosition = 1;
}

void Cursor::GoToLast()
{
    GoTo(RowCount());
}

void Cursor::GoTo(long position)
{
    CheckFree();
    if (RowCount() == 0)
    {
        RefuseWithoutRecord();
    }
    if (position < 1 || position > RowCount())
    {
        throw Error(
            kInvalidArgument, L"Recordset",
            L"Arguments are of the wrong type, are out of acceptable range, or are in conflict with one "
            L"another.");
    }
    mPosition = position;
}

void Cursor::MoveBy(long rows)
{
    CheckOpen();
    if (rows < 0)
    {
        CheckFree();
    }
    const bool leavesTheRows = (rows > 0 && AtEnd()) || (rows < 0 && AtStart());
    if (RowCount() == 0 || leavesTheRows)
    {
        RefuseWithoutRecord();
    }
    mPosition = std::clamp(mPosition + rows, 0L, RowCount() + 1);
}

void Cursor::MoveBy(long rows, long bookmark)
{
    GoTo(bookmark);
    MoveBy(rows);
}

const std::vector<Column>& Cursor::Columns() const
{
    CheckOpen();
    return mResult.columns;
}

size_t Cursor::ColumnIndex(const Value& nameOrNumber) const
{
    CheckOpen();
    const size_t index = nameOrNumber.Type() == VT_BSTR
                             ? mResult.IndexOf(automation::TextOf(nameOrNumber))
                             : static_cast<size_t>(automation::LongOf(nameOrNumber));
    if (index >= mResult.columns.size())
    {
        throw Error(
            kItemNotFound, L"Fields",
            L"Item cannot be found in the collection corresponding to the requested name or ordinal.");
    }
    return index;
}

const Value& Cursor::Current(size_t column) const
{
    if (AtEnd() || AtStart())
    {
        RefuseWithoutRecord();
    }
    return mResult.rows[static_cast<size_t>(mPosition) - 1][column];
}

} // namespace sandbox
