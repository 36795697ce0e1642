// A column of a table: which property it shows, and how. "Date, Binary, and Multi-valued Properties Affected
// by Property Reference": a date added by its built-in name is local, one added by its namespace is UTC; a
// multi-valued property is a text or an array.
#pragma once

#include "sandbox/outlook/ItemDraft.h"

#include <optional>
#include <string>
#include <vector>

namespace sandbox::outlook
{

struct TableColumn
{
    std::wstring name;
    std::optional<PropertyId> property; // nothing: the item's EntryID
    bool isByNamespace = false;
};

// Throws automation::Error for a property that is unknown or that a table refuses.
TableColumn ColumnOfName(const std::wstring& name, const Awkward& awkward);
// The columns that a table of a folder of this type has at first (Default Properties Displayed in a Table
// Object).
std::vector<TableColumn> DefaultColumns(ItemKind folderType);
// What the column shows of an item; Empty for an item that does not have the property.
Value ValueInColumn(const TableColumn& column, Mailbox& mailbox, const StoredItemRef& item);
// Values as an array of one dimension, and rows of values as one of two: (column, row).
Value ArrayOf(const std::vector<Value>& values);
Value ArrayOf(const std::vector<std::vector<Value>>& rows, size_t columns, bool isByRow);

} // namespace sandbox::outlook
