// The order and the choice of rows that a recordset's Sort and Filter ask for.
#pragma once

#include "sandbox/database/Connection.h"

#include <functional>
#include <string>

namespace sandbox
{

// Sorts the indexes of rows by "F_SURNAME, F_GIVENNAME DESC"; rows that are equal stay as they are. Throws
// automation::Error for a column that does not exist.
void SortRows(const ResultSet& result, const std::wstring& columns, std::vector<size_t>& order);

// "F_SURNAME = 'Smith' AND F_SIZE > 2": clauses of a column, an operator (=, <>, <, >, <=, >=)
// and a value, joined by AND. Throws automation::Error for what is none.
std::function<bool(const Row&)> RowFilter(const ResultSet& result, const std::wstring& criteria);

} // namespace sandbox
