// Everything that belongs to one run of one category: it lives exactly as long as the run and is passed, not
// global. The relation rows and the field catalogue are read on first use in an apply pass and kept until the
// pass ends, since nothing that a pass writes can change them.
#pragma once

#include "automation/ItemView.h"
#include "automation/Recordset.h"
#include "data/ChangeRecords.h"
#include "data/FieldCatalogue.h"
#include "exchange/RelationTable.h"
#include "exchange/Report.h"
#include "exchange/RunDisplay.h"

#include <functional>
#include <optional>
#include <set>

namespace exchange
{

// How the category tells its records apart, for the confirmation of positions before anything is written. The
// collection sets it; without it positions are taken as they are.
struct Identification
{
    std::wstring KeyColumn{}; // of the host's rows
    // The first match key of an item, and whether an item and the current row are the same record.
    std::function<std::wstring(const automation::ItemView& item)> FirstKeyOf{};
    std::function<bool(const automation::ItemView& item, const automation::Recordset& rows)> Matches{};
    // The name by which the user knows an item, and the current row.
    std::function<std::wstring(const automation::Object& item)> NameOfItem{};
    std::function<std::wstring(const automation::Recordset& rows)> NameOfRow{};
};

// What Outlook tells the folder of a run by.
struct FolderIds
{
    std::wstring Store; // StoreID
    std::wstring Entry; // EntryID
};

struct Run
{
    RunDisplay& Display;
    automation::Recordset HostRows{}; // the category's host rows, opened by the run driver
    automation::Object Folder{};      // the chosen Outlook folder
    automation::Object Items{};       // its items, fetched once
    data::TextStore Texts{};          // that the records of Pending refer to
    data::Changes Pending{};
    RelationTable Relations{};        // of the apply pass
    data::FieldCatalogue Catalogue{}; // of the apply pass
    automation::InterfaceIds ItemInterfaces{};
    // Positions of the rows that the pass from Outlook has overwritten. HostRows still shows them as they
    // were before.
    std::set<long> OverwrittenRows{};
    // Positions of the items that the pass towards Outlook has overwritten.
    std::set<std::wstring> OverwrittenItems{};
    Identification Identity{};
    std::optional<FolderIds> KnownFolderIds{}; // read on first use
    exchange::Report Report{};
};

// An item as an apply pass uses it: with many members, and after others of its class, so that the members are
// asked for once per class and not once per item. A folder may mix classes.
inline automation::Object ForPass(Run& run, automation::Object item)
{
    item.ShareMembers(run.ItemInterfaces);
    return item;
}

} // namespace exchange
