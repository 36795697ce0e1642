#include "data/MappingToOutlook.h"

#include "automation/Dates.h"
#include "automation/Readable.h"

#include <algorithm>

namespace data
{

using automation::Object;
using automation::Value;

namespace
{

void WriteRow(const RelationRow& relation, std::span<const PropertyToOutlook> mapping, const Run& run,
              const Object& item)
{
    const Value stored = run.HostRows.ValueOf(relation.EnglishName);
    const Value value = automation::IsEmptyOrNull(stored) ? Value() : stored;
    const auto row = std::ranges::find_if(mapping, [&](const PropertyToOutlook& candidate) {
        return relation.OutlookName == candidate.OutlookName;
    });
    if (row != mapping.end())
    {
        row->Write({run.HostRows, item, row->OutlookName, value});
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

void PutNumber(const TargetProperty& property)
{
    property.Put(automation::ReadableNumber(property.HostValue) ? property.HostValue : Value());
}

void PutTruth(const TargetProperty& property)
{
    property.Put(automation::ReadableTruth(property.HostValue) ? property.HostValue : Value());
}

void WriteRelatedProperties(Run& run, std::span<const PropertyToOutlook> mapping, const Object& item,
                            Saves saves)
{
    for (const RelationRow& relation : run.Relations.Rows())
    {
        WriteRow(relation, mapping, run, item);
        if (saves == Saves::AfterEachRowToo)
        {
            item.Call(L"Save");
        }
    }
    item.Call(L"Save");
}

} // namespace data
