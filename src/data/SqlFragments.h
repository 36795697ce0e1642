// The fragment builders: the column and value lists of an insert and the set list of an update grow one
// column at a time. Only columns whose names begin with "F_" are ever added; an absent value is written as
// NULL.
#pragma once

#include "data/FieldCatalogue.h"

#include <string>
#include <string_view>

namespace data
{

// Appends an entry to a list whose entries are separated by ",".
void AppendEntry(std::wstring& list, std::wstring_view entry);

// Adds the column to the field list and its literal to the value list, in step. Returns 0, also for a column
// that is not added; -1, with the lists as they were, when the value cannot be formatted.
long AddInsertField(FieldCatalogue& catalogue, std::wstring& fields, const std::wstring& column,
                    std::wstring& values, const automation::Value& value);

// Adds column=literal to the set list. Results as AddInsertField.
long AddUpdateField(FieldCatalogue& catalogue, std::wstring& setList, const std::wstring& column,
                    const automation::Value& value);

// The two for callers that report the error themselves: throw automation::Error where they return -1.
void InsertField(FieldCatalogue& catalogue, std::wstring& fields, const std::wstring& column,
                 std::wstring& values, const automation::Value& value);
void UpdateField(FieldCatalogue& catalogue, std::wstring& setList, const std::wstring& column,
                 const automation::Value& value);

} // namespace data
