#include "exchange/MappingFromOutlook.h"

#include "automation/Error.h"
#include "resources/Strings.h"
#include "state/Remarks.h"

#include <algorithm>

namespace exchange
{

using automation::Value;

namespace
{

bool IsNoColumn(const Value& value)
{
    return value.Type() == VT_BSTR && automation::TextOf(value) == kNoColumn;
}

// A property that the object model guard protects costs the column, not the record.
HostValue ReadUnlessRefused(const PropertyFromOutlook& row, const SourceProperty& property)
{
    try
    {
        return row.Read(property);
    }
    catch (const automation::Error& error)
    {
        if (!automation::IsRefusal(error))
        {
            throw;
        }
        state::Tell({.Why = state::Cause::ReadRefused,
                     .Field = property.Name,
                     .Words = error.Description(),
                     .Code = error.Code()});
        return Value(kNoColumn);
    }
}

void AddColumn(data::HostRow& record, const std::wstring& column, const Value& value)
{
    try
    {
        record.Add(column, value);
    }
    catch (const automation::Error& error)
    {
        state::TellFailure(error, column, automation::LengthOf(value));
        throw;
    }
}

// False when the item is not to be written.
bool AddRelatedColumn(const RelationRow& relation, std::span<const PropertyFromOutlook> mapping,
                      Unmapped others, ItemProperties& item, data::HostRow& record)
{
    const auto row = std::ranges::find_if(mapping, [&](const PropertyFromOutlook& candidate) {
        return relation.OutlookName == candidate.OutlookName;
    });
    const Value unmapped = others == Unmapped::LeftOut ? Value(kNoColumn) : Value();
    const HostValue value =
        row == mapping.end() ? unmapped : ReadUnlessRefused(*row, {item, relation.OutlookName, record});
    if (!value)
    {
        state::Tell({.Why = state::Cause::EmptyField, .Field = relation.OutlookName});
    }
    else if (!IsNoColumn(*value))
    {
        AddColumn(record, relation.EnglishName, *value);
    }
    return value.has_value();
}

} // namespace

HostValue ReadAsIs(const SourceProperty& property)
{
    return property.Item.ValueOf(property.Name);
}

HostValue ReadUnlessEmpty(const SourceProperty& property)
{
    return property.Item.IsEmpty(property.Name) ? HostValue() : ReadAsIs(property);
}

HostValue ReadCategories(const SourceProperty& property)
{
    return property.Item.IsEmpty(property.Name) ? Value(resources::Choose(L"(未指定)", L"(Unspecified)"))
                                                : property.Item.ValueOf(property.Name);
}

bool AddRelatedColumns(RelationTable& relations, std::span<const PropertyFromOutlook> mapping,
                       Unmapped others, ItemProperties& item, data::HostRow& record)
{
    return std::ranges::all_of(relations.Rows(), [&](const RelationRow& relation) {
        try
        {
            return AddRelatedColumn(relation, mapping, others, item, record);
        }
        catch (const automation::Error& error)
        {
            throw ColumnError(error, relation.EnglishName);
        }
    });
}

} // namespace exchange
