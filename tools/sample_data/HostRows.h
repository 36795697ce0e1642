// Sample records as rows of the host.
#pragma once

#include "sandbox/database/Connection.h"
#include "tools/sample_data/Records.h"

namespace tools
{

// Adds the records as created and done by a user. Throws automation::Error.
void AddHostRows(sandbox::Connection& database, const SampleRecords& records, long userId);

} // namespace tools
