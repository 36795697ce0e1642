// Plain numbered records for measuring: the same number is the same record wherever it is asked for.
#pragma once

#include "tools/sample_data/Records.h"

namespace tools
{

// Contacts, tasks and entries, as many of each as count, from a number on.
SampleRecords NumberedRecords(size_t first, size_t count);

} // namespace tools
