// Change collection as a plain nested walk: for each record of the one side, every record of the other until
// one matches, by keys of its own. The yardstick that the collection's result is held against.
#pragma once

#include "exchange/Kind.h"

namespace test_support
{

// Both return true when an error ended the walk, with what was proposed so far in the run's collections.
bool WalkToOutlook(const exchange::Kind& category, exchange::Run& run, long conflictOption);
bool WalkFromOutlook(const exchange::Kind& category, exchange::Run& run, long conflictOption, bool mayAdd,
                     bool mayModify);

} // namespace test_support
