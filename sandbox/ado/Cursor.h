// The rows of one open recordset and the place in them; shared by the recordset and its fields, which follow
// the current row.
#pragma once

#include "sandbox/ado/AwkwardAdo.h"
#include "sandbox/database/Connection.h"

#include <functional>

namespace sandbox
{

// Fetches the rows of a recordset again.
using Requery = std::function<ResultSet()>;

class Cursor
{
  public:
    explicit Cursor(AwkwardAdo awkward) : mAwkward(std::move(awkward)) {}

    // Open over rows, on the first one. A forward-only cursor does not count its records, has neither
    // bookmarks nor positions and goes back to the first row only.
    void Open(ResultSet rows, bool isForwardOnly, Requery requery = nullptr);
    void Close() noexcept;
    bool IsOpen() const noexcept { return mIsOpen; }

    // All of these throw automation::Error with ADO's codes where ADO refuses.
    bool AtEnd() const;   // behind the last row, or no rows
    bool AtStart() const; // before the first row, or no rows
    long Count() const;   // -1 for a forward-only cursor
    // The current row counted from 1; -2 before the first and -3 behind the last row, -1 where there is no
    // row, as ADO has it.
    long Position() const;
    // What leads back to the current row, where there is one: the row's number among those that were fetched.
    double Bookmark() const;
    void GoToFirst();
    void GoToLast();
    // Goes to a row from 1 to Count.
    void GoTo(long position);
    // Goes so many rows on, or back for a negative number; stops before the first and behind the last row.
    void MoveBy(long rows);
    // From a bookmark.
    void MoveBy(long rows, double bookmark);

    // "F_SURNAME, F_GIVENNAME DESC" and "F_SURNAME = 'Smith' AND F_SIZE > 2"; empty for none. The first row
    // is the current one then.
    void Sort(const std::wstring& columns);
    void Filter(const std::wstring& criteria);
    const std::wstring& SortedBy() const noexcept { return mSort; }
    const std::wstring& FilteredBy() const noexcept { return mFilter; }

    const AwkwardAdo& Behaviour() const noexcept { return mAwkward; }
    const std::vector<Column>& Columns() const;
    // The index of a column by name or 0-based number.
    size_t ColumnIndex(const Value& nameOrNumber) const;
    const Value& Current(size_t column) const;

  private:
    void CheckOpen() const;
    void CheckFree() const; // to move in any direction, to have a position
    long RowCount() const;
    size_t CurrentRow() const;
    void GoToBookmark(double bookmark);
    void BeforeMove();
    void Arrange();
    void KeepKeys(Requery requery);
    void Refresh();

    AwkwardAdo mAwkward;
    ResultSet mResult;
    std::vector<size_t> mOrder; // the rows, by their index in the result, as sorted and filtered
    std::wstring mSort;
    std::wstring mFilter;
    bool mIsOpen = false;
    bool mIsForwardOnly = false;
    long mPosition = 0; // 0 before the first row, Count + 1 behind the last one
    long mMoves = 0;
    Requery mRequery;      // of a keyset
    size_t mKeyColumn = 0; // what tells the rows of a keyset apart
    std::vector<bool> mIsDeleted;
};

} // namespace sandbox
