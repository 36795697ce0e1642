// The bare loop over a folder's table: the yardstick of a collection that reads by table. The same calls as a
// collection demands, and nothing made of the values: the rows of the table in blocks, the keys of a few
// items for comparison, the second keys that the table does not give, and the keys of the host's rows.
#pragma once

#include "benchmarks/Sides.h"

namespace benchmarks
{

void ReadBareTable(const Kind& kind, const exchange::Run& run);

} // namespace benchmarks
