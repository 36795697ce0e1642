// The walk over the relation rows from Outlook, once for all kinds of data: each row's host column gets the
// value that the category's mapping table takes from the item. Called by the record writers.
#pragma once

#include "data/RowColumns.h"
#include "exchange/ItemProperties.h"
#include "exchange/Run.h"

#include <optional>
#include <span>
#include <string>

namespace exchange
{

// What the reading of one property works with; valid for the call only.
struct SourceProperty
{
    ItemProperties& Item;
    const std::wstring& Name;
    data::RowColumns& Record; // for columns that are written beside the mapped one, and before it
};

// The value of the mapped column; nothing when the item is not to be written at all.
using HostValue = std::optional<automation::Value>;

struct PropertyFromOutlook
{
    const wchar_t* OutlookName; // compared with regard to letter case
    HostValue (*Read)(const SourceProperty& property);
};

// Readings that several categories share: the property's own value; the same of a property without which the
// item is not to be written; and a category, which the host never leaves empty.
HostValue ReadAsIs(const SourceProperty& property);
HostValue ReadUnlessEmpty(const SourceProperty& property);
HostValue ReadCategories(const SourceProperty& property);

// The value that stands for "this row contributes no column".
inline constexpr wchar_t kNoColumn[] = L"Don't Addtion Field";

// Adds the column of each relation row to the record; valueOfOthers is for rows that name no property of the
// mapping. False, with the walk ended, when the item is not to be written. Throws automation::Error when the
// rows cannot be read, Outlook refuses, or a value cannot be formatted for its column.
bool AddRelatedColumns(RelationTable& relations, std::span<const PropertyFromOutlook> mapping,
                       const automation::Value& valueOfOthers, ItemProperties& item,
                       data::RowColumns& record);

} // namespace exchange
