// An ADO recordset (ADODB.Recordset), by the members that ADO publishes. Field objects are kept per column,
// since an ADO field follows the current row: reading a column in a loop costs one call per row.
#pragma once

#include "automation/Object.h"

#include <map>
#include <string>

namespace automation
{

// ADO's CursorTypeEnum, LockTypeEnum, CommandTypeEnum, CursorLocationEnum and ObjectStateEnum, as far as
// used.
inline constexpr long kCursorUnspecified = -1;
inline constexpr long kCursorKeyset = 1;
inline constexpr long kLockReadOnly = 1;
inline constexpr long kCommandText = 1;
inline constexpr long kCommandTable = 2;
inline constexpr long kCursorClient = 3;
inline constexpr long kStateOpen = 1;

class Recordset
{
  public:
    Recordset() = default; // nothing
    explicit Recordset(Object object) : mObject(std::move(object)) {}

    explicit operator bool() const noexcept { return static_cast<bool>(mObject); }
    const Object& AsObject() const noexcept { return mObject; }

    // All of these throw Error when the provider refuses.
    bool AtEnd() const;   // EOF
    bool AtStart() const; // BOF
    // True when there is no row at all (EOF and BOF).
    bool HasNoRows() const;
    void MoveFirst() const;
    void MoveNext() const;
    // The current row's position, counted from 1.
    long AbsolutePosition() const;
    // Back to a row by the position it had: Move with 0 records from that position as bookmark, the form that
    // client cursors give their bookmarks.
    void MoveTo(long position) const;
    // To the row at a position by AbsolutePosition, which counts in the present order.
    void GoTo(long position) const;
    long RecordCount() const;
    // The value of a column of the current row; the name in any letter case.
    Value ValueOf(const std::wstring& column) const;
    // The same as text, empty for Empty and Null, without the blanks that pad it in a column of a fixed
    // width.
    std::wstring NameIn(const std::wstring& column) const;

  private:
    const Object& FieldOf(const std::wstring& column) const;

    Object mObject;
    mutable std::map<std::wstring, Object, std::less<>> mFields;
};

struct OpenOptions
{
    long cursorType = kCursorKeyset;
    long lockType = kLockReadOnly;
    long commandType = kCommandText;
    long cursorLocation = 0; // 0 leaves ADO's default
};

// A recordset of the component's own, opened on a connection string. Throws Error.
Recordset OpenRecordset(const std::wstring& source, const std::wstring& connection,
                        const OpenOptions& options);

// Closes what is open and lets the recordset go; does nothing for a variable that holds none. Never throws.
void CloseRecordset(Recordset& recordset) noexcept;

// Closes the recordset it names on every way out of a scope.
class RecordsetCloser
{
  public:
    explicit RecordsetCloser(Recordset& recordset) noexcept : mRecordset(recordset) {}
    RecordsetCloser(const RecordsetCloser&) = delete;
    RecordsetCloser& operator=(const RecordsetCloser&) = delete;
    ~RecordsetCloser() { CloseRecordset(mRecordset); }

  private:
    Recordset& mRecordset;
};

} // namespace automation
