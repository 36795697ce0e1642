// The identities and match keys of all items of a folder, read from its table instead of from each item. The
// table is not trusted blindly: its first rows and a random sample are compared with the items. A row that
// the documentation gives reason to doubt leaves its keys open, to be read from the item.
#pragma once

#include "exchange/Kind.h"
#include "exchange/Run.h"
#include "run/Identities.h"

#include <deque>
#include <optional>
#include <vector>

namespace run
{

// A key by position, from 0; none while it has not been read.
using Keys = std::deque<data::StoredText>;

struct TableKeys
{
    Identities Ids; // EntryIDs
    Keys First;
    Keys Second;
    // What the filter of items says of each, if the table could tell; empty without a filter.
    std::vector<std::optional<bool>> Kept;
};

// The keys of the run's items, of which there are count; nothing where the folder has no table, or one that
// is not to be trusted. keepsItem may be empty.
std::optional<TableKeys> ReadTable(const exchange::MatchRule& rule, const exchange::Filters& filters,
                                   exchange::Run& run, long count);

} // namespace run
