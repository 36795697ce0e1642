// One value of one host row, by a key. The statements go to the host as the contract words them, each key as
// one literal.
#pragma once

#include "automation/Value.h"

#include <string>

namespace data
{

// The types that LookupTypedValue knows a key by.
inline constexpr wchar_t kTextKey[] = L"String";
inline constexpr wchar_t kDateKey[] = L"Date";
inline constexpr wchar_t kFlagKey[] = L"Boolean";

// Puts the result column of the first row whose key column equals the key into result, the empty text where
// there is none; returns 0, or -1 with the result as it was.
long LookupValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                 const std::wstring& resultColumn, automation::Value& result);

// As LookupValue; the key stands between single quotes when its type is "String" or "Date". Of other types a
// plain number stands without, as do the words True and False of a "Boolean"; anything else is quoted.
long LookupTypedValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                      const std::wstring& keyType, const std::wstring& resultColumn,
                      automation::Value& result);

// LookupValue for callers that report the error themselves: throws automation::Error where that returns -1.
automation::Value FindValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                            const std::wstring& resultColumn);

// The column's value in the first row of a statement, the empty text where it has no row. Throws
// automation::Error when the host refuses.
automation::Value ValueInFirstRow(const std::wstring& statement, const std::wstring& column);

} // namespace data
