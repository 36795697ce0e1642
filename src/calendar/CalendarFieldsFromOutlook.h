// Which values of an Outlook appointment go into the host's columns: those of the relation table, and the
// host's own time and repeat columns beside them. Used by the writer of calendar entries from Outlook only.
#pragma once

#include "automation/Object.h"
#include "data/RowColumns.h"
#include "exchange/RelationTable.h"

namespace calendar
{

// Adds the columns to the entry's row; false when the appointment has no subject, and so is not to be written
// at all. Throws automation::Error when Outlook refuses or a value cannot be formatted.
bool AddCalendarColumns(exchange::RelationTable& relations, const automation::Object& item,
                        data::RowColumns& entry);

} // namespace calendar
