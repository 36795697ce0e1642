// The apply pass towards Outlook, the same for all kinds of data: new host records become new items of the
// folder, changed host records overwrite their partners. A category supplies the item type, the relation rows
// and the writer of one item.
#pragma once

#include "data/RecordMode.h"
#include "data/Run.h"

#include <string>

namespace data
{

// Outlook's OlItemType, as far as used.
inline constexpr long kAppointmentItem = 1;
inline constexpr long kContactItem = 2;
inline constexpr long kTaskItem = 3;

struct PassToOutlook
{
    long ItemType;
    const wchar_t* RelationStatement;
    automation::OpenOptions RelationOptions;
    // Writes the host row on which the run's recordset stands into the item, and saves it. Throws when it
    // cannot; the pass then ends.
    void (*Write)(Run& run, long mode, const automation::Object& item);
    // A new item is made before the recordset moves to its row, otherwise after.
    bool AddsItemFirst = false;
};

// Writes the run's pending changes; true when an error ended the pass, with the records written so far in
// place.
bool ApplyToOutlook(Run& run, const PassToOutlook& pass);

} // namespace data
