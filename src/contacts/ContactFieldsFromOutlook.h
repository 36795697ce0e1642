// Which value of an Outlook contact goes into a host column, by the Outlook property that the relation table
// names for the column. Used by the writer of contacts from Outlook only.
#pragma once

#include "automation/Object.h"
#include "data/RowColumns.h"
#include "exchange/RelationTable.h"

namespace contacts
{

// Adds the related columns to the contact's row; false when the item lacks a name that a row asks for, and so
// is not to be written at all. Throws automation::Error when Outlook refuses or a value cannot be formatted.
bool AddContactColumns(exchange::RelationTable& relations, const automation::Object& item,
                       data::RowColumns& contact);

} // namespace contacts
