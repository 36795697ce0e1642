// The rows of one open recordset and the place in them; shared by the recordset and its fields, which follow
// the current row.
#pragma once

#include "sandbox/database/Connection.h"

namespace sandbox
{

class Cursor
{
  public:
    // Open over rows, on the first one. A forward-only cursor does not count its records, has no bookmarks
    // and goes back to the first row only.
    void Open(ResultSet rows, bool isForwardOnly);
    void Close() noexcept;
    bool IsOpen() const noexcept { return mIsOpen; }

    // All of these throw automation::Error with ADO's codes where ADO refuses.
    bool AtEnd() const;   // behind the last row, or no rows
    bool AtStart() const; // before the first row, or no rows
    long Count() const;   // -1 for a forward-only cursor
    // The current row counted from 1; -2 before the first and -3 behind the last row, -1 where there is no
    // row or the cursor has no positions, as ADO has it.
    long Position() const;
    // The current row's position, where there is one.
    long Bookmark() const;
    void GoToFirst();
    void GoToLast();
    // Goes to a row from 1 to Count.
    void GoTo(long position);
    // Goes so many rows on, or back for a negative number; stops before the first and behind the last row.
    void MoveBy(long rows);
    // From a bookmark, which is a row's position.
    void MoveBy(long rows, long bookmark);

    const std::vector<Column>& Columns() const;
    // The index of a column by name or 0-based number.
    size_t ColumnIndex(const Value& nameOrNumber) const;
    const Value& Current(size_t column) const;

  private:
    void CheckOpen() const;
    void CheckFree() const; // to move in any direction
    long RowCount() const;

    ResultSet mResult;
    bool mIsOpen = false;
    bool mIsForwardOnly = false;
    long mPosition = 0; // 0 before the first row, Count + 1 behind the last one
};

} // namespace sandbox
