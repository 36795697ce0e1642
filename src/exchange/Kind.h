// One kind of data that can be exchanged: all that a run does differently from kind to kind. Contacts, tasks
// and calendar entries each define one.
#pragma once

#include "data/Host.h"
#include "exchange/ApplyFromOutlook.h"
#include "exchange/ApplyToOutlook.h"
#include "exchange/KindName.h"
#include "exchange/KindPreview.h"
#include "exchange/MatchRule.h"
#include "state/SynParameter.h"

#include <functional>
#include <string>

namespace exchange
{

using RowFilter = std::function<bool(const automation::Recordset& rows)>;
using ItemFilter = std::function<bool(const automation::ItemView& item)>;

// Which records a direction proposes on the side that it reads from; an empty function keeps all.
struct Filters
{
    RowFilter KeepsRow;
    ItemFilter KeepsItem;
    // The properties that the filter of items reads, as far as a folder's table gives them.
    std::span<const wchar_t* const> ItemColumns{};
};

// The filters of a kind that proposes every record.
inline Filters KeepAll(const state::SynParameter& /*parameter*/, const data::Host& /*host*/)
{
    return {};
}

struct Kind
{
    const KindName& Name;
    const wchar_t* RecordSource; // of the host
    const wchar_t* KeyColumn;    // of its rows
    // The filter of the record source; null for none.
    std::wstring (*SourceFilter)(const data::Host& host);
    bool SucceedsWithoutHostRows; // tasks report success when their rows cannot be opened
    bool AppliesFromOutlookFirst; // in a two-way run
    unsigned CollectToOutlookTextId;
    long PermissionKind; // of the host's rights
    MatchRule Match;
    // The name by which the user knows a record; throw automation::Error when it cannot be read.
    std::wstring (*NameOfItem)(const automation::Object& item);
    std::wstring (*NameOfRow)(const automation::Recordset& rows);
    Filters (*FiltersOf)(const state::SynParameter& parameter, const data::Host& host);
    PassToOutlook ToOutlook;
    PassFromOutlook FromOutlook;
    const KindPreview& Preview;
};

} // namespace exchange
