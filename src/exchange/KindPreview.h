// The data of a kind for the preview of a run: the columns of the list of changes, what Outlook makes of the
// values that are put into an item, and the links that a pass to the host makes. Nothing here writes.
#pragma once

#include "data/FieldCatalogue.h"
#include "data/RecordMode.h"
#include "exchange/RecordedItem.h"
#include "exchange/RelationTable.h"

#include <string>
#include <vector>

namespace exchange
{

// A column of the list of changes. Both throw automation::Error when the record cannot be read.
struct SummaryColumn
{
    automation::Value (*OfItem)(const automation::Object& item);
    automation::Value (*OfRow)(const automation::Recordset& rows, RelationTable& relations);
};

// What a pass to the host writes beside the mapped columns.
struct LinkedValue
{
    std::wstring Property; // of the item, which gives the value
    automation::Value Now; // Empty for a new record
    automation::Value After;
    bool IsNew = false; // a record of its own is added for it
};

struct LinkSource
{
    const automation::Object& Item;
    data::RecordMode Mode;
    const automation::Recordset& HostRows; // of an existing record: on its row
    RelationTable& Relations;
    data::FieldCatalogue& Catalogue;
};

struct KindPreview
{
    SummaryColumn Group; // company or category
    SummaryColumn Date;
    ItemBehaviour Behaviour;
    // Values that stay as they are in the host are not in the result. Throws automation::Error when the host
    // refuses a lookup.
    std::vector<LinkedValue> (*LinksOf)(const LinkSource& source);
};

// The host's value for an Outlook property, by the first relation row that names it; Empty without one.
automation::Value RelatedValue(const automation::Recordset& rows, RelationTable& relations,
                               const std::wstring& property);

} // namespace exchange
