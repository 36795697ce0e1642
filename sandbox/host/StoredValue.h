// Converts a literal to a column's declared type as a strict database does: dates of the host's
// forms are stored as proper dates, and a value that the column cannot hold is refused.
#pragma once

#include "sandbox/database/Connection.h"
#include "sandbox/host/Literals.h"

#include <optional>

namespace sandbox
{

// A column of a host table as it was declared.
struct HostColumn
{
    std::wstring name;
    ColumnType type = ColumnType::Text;
    size_t size = 0; // of a text, in characters; 0 for no limit
};

// The parameter to bind for a literal. Throws Rejection (MalformedLiteral, ValueDoesNotFit).
Value StoredValue(const HostColumn& column, const Literal& literal);

// "yyyy-mm-dd hh:mm:ss" for "mm/dd/yyyy", "mm/dd/yyyy hh:mm:ss", "hh:mm:ss" (a time on the zero date) and the
// stored form itself; nothing for any other text and for a moment that does not exist.
std::optional<std::wstring> StoredDate(const std::wstring& text);

} // namespace sandbox
