#include "exchange/MappingToOutlook.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Readable.h"
#include "state/Remarks.h"

#include <algorithm>
#include <cmath>

namespace exchange
{

using automation::Object;
using automation::Value;

namespace
{

// As Outlook rounds it.
bool IsWithin(const std::optional<double>& number, long highest)
{
    return number && std::nearbyint(*number) >= 0 && std::nearbyint(*number) <= highest;
}

void PutWhere(bool isKnown, const TargetProperty& property, const Value& value)
{
    if (automation::IsAbsent(property.HostValue))
    {
        property.Put(Value());
    }
    else if (isKnown)
    {
        property.Put(value);
    }
    else
    {
        state::Tell({.Why = state::Cause::UnknownValue,
                     .Field = property.Name,
                     .Length = automation::LengthOf(property.HostValue)});
    }
}

} // namespace

void PutAsIs(const TargetProperty& property)
{
    property.Put(property.HostValue);
}

void PutDate(const TargetProperty& property)
{
    property.Put(automation::OutlookDate(property.HostValue).value_or(automation::kOutlookNoDate));
}

void PutTruth(const TargetProperty& property)
{
    PutWhere(automation::ReadableTruth(property.HostValue).has_value(), property, property.HostValue);
}

void PutNumber(const TargetProperty& property, long highest)
{
    const std::optional<double> number = automation::ReadableNumber(property.HostValue);
    PutWhere(IsWithin(number, highest), property, property.HostValue);
}

void PutNumber(const TargetProperty& property, const std::optional<double>& number, long highest)
{
    PutWhere(IsWithin(number, highest), property, number.value_or(0));
}

void WriteRelatedProperty(const RelationRow& relation, std::span<const PropertyToOutlook> mapping,
                          const automation::Recordset& hostRows, const Object& item)
{
    const Value stored = hostRows.ValueOf(relation.EnglishName);
    const Value value = automation::IsEmptyOrNull(stored) ? Value() : stored;
    const auto row = std::ranges::find_if(mapping, [&](const PropertyToOutlook& candidate) {
        return relation.OutlookName == candidate.OutlookName;
    });
    if (row == mapping.end())
    {
        return;
    }
    try
    {
        row->Write({hostRows, item, row->OutlookName, value});
    }
    catch (const automation::Error& error)
    {
        state::TellFailure(error, row->OutlookName, automation::LengthOf(value));
        throw;
    }
}

void WriteRelatedProperties(Run& run, std::span<const PropertyToOutlook> mapping, const Object& item,
                            Saves saves)
{
    for (const RelationRow& relation : run.Relations.Rows())
    {
        WriteRelatedProperty(relation, mapping, run.HostRows, item);
        if (saves == Saves::AfterEachRowToo)
        {
            item.Call(L"Save");
        }
    }
    item.Call(L"Save");
}

} // namespace exchange
