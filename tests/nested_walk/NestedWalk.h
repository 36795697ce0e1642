// Change collection as a plain nested walk: for each record of the one side, every record of the other until
// one matches. The yardstick that the collection's result is held against.
#pragma once

#include "run/Category.h"

namespace test_support
{

// Whether the item and the row on which the recordset stands are the same record.
bool Matches(const run::MatchRule& rule, const automation::Object& item, const automation::Recordset& rows);

// Both return true when an error ended the walk, with what was proposed so far in the run's collections.
bool WalkToOutlook(const run::Category& category, data::Run& run, long conflictOption);
bool WalkFromOutlook(const run::Category& category, data::Run& run, long conflictOption, bool mayAdd,
                     bool mayModify);

} // namespace test_support
