#include "sandbox/ado/Cursor.h"

#include "automation/Error.h"
#include "sandbox/ado/Recordset.h"

#include <algorithm>
#include <atomic>

namespace sandbox
{

namespace
{

using automation::Error;

constexpr long kUnknown = -1;     // adPosUnknown
constexpr long kBeforeFirst = -2; // adPosBOF
constexpr long kBehindLast = -3;  // adPosEOF

// Opaque bookmarks: far from any position.
constexpr double kOpaqueBase = 1'000'000;
constexpr double kOpaqueStep = 17;

std::atomic<long> gOpen{0};

[[noreturn]] void RefuseArgument()
{
    throw Error(kInvalidArgument, L"Recordset",
                L"Arguments are of the wrong type, are out of acceptable range, or are in conflict with one "
                L"another.");
}

[[noreturn]] void RefuseWithoutRecord()
{
    throw Error(
        kNoCurrentRecord, L"Recordset",
        L"Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
        L"current record.");
}

} // namespace

long OpenRecordsets() noexcept
{
    return gOpen;
}

void Cursor::Open(ResultSet rows, bool isForwardOnly, Requery requery)
{
    mResult = std::move(rows);
    mIsForwardOnly = isForwardOnly;
    mIsOpen = true;
    ++gOpen;
    mMoves = 0;
    KeepKeys(std::move(requery));
    mSort = mAwkward.atMove == 0 ? mAwkward.sort : L"";
    mFilter = mAwkward.atMove == 0 ? mAwkward.filter : L"";
    Arrange();
}

void Cursor::Close() noexcept
{
    mResult = {};
    mOrder.clear();
    gOpen -= mIsOpen ? 1 : 0;
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
    return static_cast<long>(mOrder.size());
}

long Cursor::Count() const
{
    CheckOpen();
    return mIsForwardOnly ? kUnknown : RowCount();
}

long Cursor::Position() const
{
    CheckFree(); // "Accessing the AbsolutePosition property of a Recordset that was opened with either a
                 // forward-only or dynamic cursor raises the error adErrFeatureNotAvailable"
    if (RowCount() == 0)
    {
        return kUnknown;
    }
    return AtStart() ? kBeforeFirst : AtEnd() ? kBehindLast : mPosition;
}

// Otherwise the number of the row: the bookmark of a client's cursor, as long as nothing sorts it.
double Cursor::Bookmark() const
{
    CheckFree();
    const auto row = static_cast<double>(CurrentRow() + 1);
    return mAwkward.opaqueBookmarks ? kOpaqueBase + row * kOpaqueStep : row;
}

size_t Cursor::CurrentRow() const
{
    if (AtEnd() || AtStart())
    {
        RefuseWithoutRecord();
    }
    return mOrder[static_cast<size_t>(mPosition) - 1];
}

void Cursor::GoToBookmark(double bookmark)
{
    CheckFree();
    if (RowCount() == 0)
    {
        RefuseWithoutRecord();
    }
    const double row = mAwkward.opaqueBookmarks ? (bookmark - kOpaqueBase) / kOpaqueStep : bookmark;
    const auto isIt = [&](size_t one) { return static_cast<double>(one + 1) == row; };
    // A real cursor goes there at once. Rows that nothing sorts or filters are at the place of their number.
    const auto start = row >= 1 && row <= RowCount() ? mOrder.begin() + static_cast<std::ptrdiff_t>(row - 1)
                                                     : mOrder.begin();
    const auto found = isIt(*start) ? start : std::ranges::find_if(mOrder, isIt);
    if (found == mOrder.end())
    {
        RefuseArgument();
    }
    mPosition = static_cast<long>(found - mOrder.begin()) + 1;
}

void Cursor::GoToFirst()
{
    CheckOpen();
    BeforeMove();
    if (RowCount() == 0)
    {
        RefuseWithoutRecord();
    }
    mPosition = 1;
    Refresh();
}

void Cursor::GoToLast()
{
    GoTo(RowCount());
}

void Cursor::GoTo(long position)
{
    CheckFree();
    BeforeMove();
    if (RowCount() == 0)
    {
        RefuseWithoutRecord();
    }
    if (position < 1 || position > RowCount())
    {
        RefuseArgument();
    }
    mPosition = position;
    Refresh();
}

void Cursor::MoveBy(long rows)
{
    CheckOpen();
    BeforeMove();
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
    Refresh();
}

void Cursor::MoveBy(long rows, double bookmark)
{
    GoToBookmark(bookmark);
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
    const size_t row = CurrentRow();
    if (mIsDeleted[row])
    {
        throw Error(kRowDeleted, L"Recordset", L"A given HROW referred to a hard- or soft-deleted row.");
    }
    return mResult.rows[row][column];
}

} // namespace sandbox
