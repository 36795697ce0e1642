// The walk over the relation rows from Outlook, once for all kinds of data: each row's host column gets the
// value that the kind's mapping table takes from the item. Called by the record writers; a preview walks the
// same tables with a row that keeps the values.
#pragma once

#include "automation/Error.h"
#include "data/HostRow.h"
#include "exchange/ItemProperties.h"
#include "exchange/Run.h"

#include <optional>
#include <span>
#include <string>
#include <utility>

namespace exchange
{

// The data for one property; valid for the call only.
struct SourceProperty
{
    ItemProperties& Item;
    const std::wstring& Name;
    data::HostRow& Record; // for columns that are written beside the mapped one, and before it
};

// The value of the mapped column; nothing when the item is not to be written at all.
using HostValue = std::optional<automation::Value>;

struct PropertyFromOutlook
{
    const wchar_t* OutlookName; // compared with regard to letter case
    // Reads the property and converts it for the host.
    HostValue (*Read)(const SourceProperty& property);
};

// Conversions that several kinds share: the property's own value; the same of a property without which the
// item is not to be written; and a category, which the host never leaves empty.
HostValue ReadAsIs(const SourceProperty& property);
HostValue ReadUnlessEmpty(const SourceProperty& property);
HostValue ReadCategories(const SourceProperty& property);

// The contract's marker for a row that contributes no column.
inline constexpr wchar_t kNoColumn[] = L"Don't Addtion Field";

// The column of a relation row that names no property of the mapping.
enum class Unmapped
{
    LeftOut,
    WrittenAsNull,
};

// An error in the conversion for one column.
class ColumnError : public automation::Error
{
  public:
    ColumnError(const automation::Error& error, std::wstring column)
        : Error(error), mColumn(std::move(column))
    {
    }

    // The host column of the relation row.
    const std::wstring& Column() const noexcept { return mColumn; }

  private:
    std::wstring mColumn;
};

// Adds the column of each relation row to the record. False, with the walk ended, when the item is not to be
// written. Throws automation::Error when the rows cannot be read, and ColumnError when Outlook refuses or a
// value cannot be formatted for its column.
bool AddRelatedColumns(RelationTable& relations, std::span<const PropertyFromOutlook> mapping,
                       Unmapped others, ItemProperties& item, data::HostRow& record);

} // namespace exchange
