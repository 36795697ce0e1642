// The apply pass towards Outlook, the same for all kinds of data: new host records become new items of the
// folder, changed host records overwrite their partners. A kind supplies the item type, the relation rows,
// the mapping and the writer of one item.
#pragma once

#include "data/RecordMode.h"
#include "exchange/MappingToOutlook.h"

namespace exchange
{

// The reason; nothing for no reason.
using Obstacle = std::optional<state::Cause>;

struct PassToOutlook
{
    long ItemType;
    const wchar_t* RelationStatement;
    automation::OpenOptions RelationOptions{};
    std::span<const PropertyToOutlook> Mapping{};
    // Why the recordset's current row cannot become an item. Null for a kind whose rows all can.
    Obstacle (*ObstacleTo)(Run& run) = nullptr;
    // Writes the run's current host row into the item, and saves it. Throws when it
    // cannot; the pass then ends.
    void (*Write)(Run& run, data::RecordMode mode, const automation::Object& item);
    // A new item is made before the recordset moves to its row, otherwise after.
    bool AddsItemFirst = false;

    // Tells the report how many records this pass is to write.
    static void Announce(Run& run);
    // Writes the run's pending changes; true when an error ended the pass, with the records written so far in
    // place.
    bool operator()(Run& run) const;
};

} // namespace exchange
