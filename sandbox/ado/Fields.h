// The Fields collection of a recordset, and its Field objects.
#pragma once

#include "sandbox/ado/Cursor.h"
#include "sandbox/dispatch/DispatchObject.h"

#include <memory>

namespace sandbox
{

automation::Object MakeFields(std::shared_ptr<Cursor> cursor);
// The field of a column, by name or 0-based number. Throws ADO's error for one that does not exist.
automation::Object MakeField(std::shared_ptr<Cursor> cursor, const Value& nameOrNumber);

} // namespace sandbox
