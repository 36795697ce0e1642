// The routines of the host contract that return 0 or -1 where the component's own code throws: the component
// uses the throwing forms (HostRow, LiteralOf, FindValue), so that the host's words reach the message. Each
// traps its errors and returns 0, or -1 with its by-reference arguments as they were.
#pragma once

#include "data/FieldCatalogue.h"

#include <string>

namespace data
{

// Replaces a value (neither Empty nor Null) by its literal for the column. A column that the catalogue does
// not have fails with a message box; one of an unknown type shows a message box and leaves the value as it
// is.
long FormatFieldlValue(FieldCatalogue& catalogue, const std::wstring& column, automation::Value& value);

// Adds the column to the field list and its literal to the value list, in step; 0 also for a column that is
// not added.
long AddInsertField(FieldCatalogue& catalogue, std::wstring& fields, const std::wstring& column,
                    std::wstring& values, const automation::Value& value);

// Adds column=literal to the set list.
long AddUpdateField(FieldCatalogue& catalogue, std::wstring& setList, const std::wstring& column,
                    const automation::Value& value);

// Puts the result column of the first row whose key column equals the key into result, the empty text where
// there is none.
long LookupValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                 const std::wstring& resultColumn, automation::Value& result);

// The types that LookupTypedValue knows a key by.
inline constexpr wchar_t kTextKey[] = L"String";
inline constexpr wchar_t kDateKey[] = L"Date";
inline constexpr wchar_t kFlagKey[] = L"Boolean";

// As LookupValue; the key stands between single quotes when its type is "String" or "Date". Of other types a
// plain number stands without, as do the words True and False of a "Boolean"; anything else is quoted.
long LookupTypedValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                      const std::wstring& keyType, const std::wstring& resultColumn,
                      automation::Value& result);

} // namespace data
