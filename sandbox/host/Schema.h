// The host's tables and views, with typed columns. A row of TBLACTIVITY is an entry of the calendar when it
// has a calendar day or time (F_ACTESDATE, F_ACTESTIME), else a task: the two kinds share the table, and no
// column names the kind.
#pragma once

#include "sandbox/database/Connection.h"

namespace sandbox
{

// Creates them in an empty database, without rows. Throws automation::Error.
void CreateHostSchema(Connection& database);

} // namespace sandbox
