// One value of one host row, by a key. The statements go to the host as the contract words them, each key as
// one literal.
#pragma once

#include "automation/Value.h"

#include <string>

namespace data
{

// The result column of the first row whose key column equals the key, the empty text where there is none.
// Throws automation::Error when the host refuses.
automation::Value FindValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                            const std::wstring& resultColumn);

// The same for a condition, which goes into the statement as it is.
automation::Value FindByCondition(const std::wstring& table, const std::wstring& condition,
                                  const std::wstring& resultColumn);

// The column's value in the first row of a statement, the empty text where it has no row. Throws
// automation::Error when the host refuses.
automation::Value ValueInFirstRow(const std::wstring& statement, const std::wstring& column);

} // namespace data
