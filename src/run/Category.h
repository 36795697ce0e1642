// The three kinds of data that can be exchanged, as a table: all that the run procedures and the collection
// procedures do differently from kind to kind.
#pragma once

#include "data/Host.h"
#include "data/Run.h"
#include "run/MatchRule.h"
#include "state/SynParameter.h"

#include <functional>
#include <string>

namespace run
{

using RowFilter = std::function<bool(const automation::Recordset& rows)>;
using ItemFilter = std::function<bool(const automation::Object& item)>;

// Which records a direction proposes on the side that it reads from; an empty function keeps all.
struct Filters
{
    RowFilter KeepsRow;
    ItemFilter KeepsItem;
};

struct Category
{
    const wchar_t* Key; // of the row in the main dialog, and of the stored parameters
    unsigned TextId;    // the row's text
    const wchar_t* RecordSource;
    // The filter of the record source; null for none.
    std::wstring (*SourceFilter)(const data::Host& host);
    bool SucceedsWithoutHostRows; // tasks report success when their rows cannot be opened
    bool AppliesFromOutlookFirst; // in a two-way run
    unsigned CollectToOutlookTextId;
    long PermissionKind; // of the host's rights
    const MatchRule& Match;
    Filters (*FiltersOf)(const state::SynParameter& parameter, const data::Host& host);
    // The workers: true when the pass failed.
    bool (*ApplyToOutlook)(data::Run& run);
    bool (*ApplyFromOutlook)(data::Run& run);
};

extern const Category kTaskCategory;
extern const Category kCalendarCategory;
extern const Category kContactCategory;

} // namespace run
