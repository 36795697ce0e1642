// Tasks: host activities and Outlook tasks.
#pragma once

#include "exchange/Kind.h"

namespace tasks
{

// Matched by F_ACTNAME, F_ACTTYPE and F_ACTPSTIME (by day) against Subject, Categories and StartDate; then by
// ACC_SNAME against Companies.
extern const exchange::Kind kTasks;

} // namespace tasks
