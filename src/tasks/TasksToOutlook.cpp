#include "tasks/TasksToOutlook.h"
#include "automation/OutlookConstants.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "exchange/ApplyToOutlook.h"
#include "exchange/MappingToOutlook.h"
#include "links/ContactLink.h"
#include "state/SharedState.h"
#include "tasks/TaskRelations.h"

#include <limits>

namespace tasks
{

namespace
{

using exchange::PutAsIs;
using exchange::PutDate;
using exchange::PutNumber;
using exchange::PutTruth;
using exchange::TargetProperty;

// By the status that the task has at this moment, and so by the order of the relation rows.
bool IsComplete(const TargetProperty& property)
{
    return automation::LongOf(property.Item.Get(L"Status")) == kTaskComplete;
}

void PutDateWhenComplete(const TargetProperty& property)
{
    if (IsComplete(property))
    {
        PutDate(property);
    }
}

void PutWhenComplete(const TargetProperty& property)
{
    if (IsComplete(property))
    {
        PutTruth(property);
    }
}

// The host stores a fraction from 0 to 1.
void PutPercentage(const TargetProperty& property)
{
    constexpr long kAllPercent = 100;
    const std::optional<double> fraction = automation::ReadableNumber(property.HostValue);
    PutNumber(property, fraction ? std::optional(*fraction * kAllPercent) : std::nullopt, kAllPercent);
}

// Saved at once, so that the rows which ask for the status find what Outlook has made of it.
void PutStatus(const TargetProperty& property)
{
    PutNumber(property, kTaskDeferred);
    property.Item.Call(L"Save");
}

// The host's levels are one higher than Outlook's 0 low, 1 normal, 2 high. A task without one keeps the
// importance that it has in Outlook.
void PutImportance(const TargetProperty& property)
{
    constexpr long kHigh = 2;
    if (!automation::IsAbsent(property.HostValue))
    {
        const std::optional<double> level = automation::ReadableNumber(property.HostValue);
        PutNumber(property, level ? std::optional(*level - 1) : std::nullopt, kHigh);
    }
}

void PutWork(const TargetProperty& property)
{
    PutNumber(property, std::numeric_limits<long>::max());
}

void LinkToContact(const TargetProperty& property)
{
    links::LinkContact(property.Item, property.HostValue, property.HostRows.ValueOf(L"CONTACT_GIVENNAME"));
}

// Not written where the lead time takes it beyond the dates that Outlook can hold.
void PutReminderTime(const automation::Object& task, automation::Date start)
{
    const long long lead = state::Shared().gCalendarPreviewAlarmTime;
    if (const auto reminder = automation::OutlookDate(automation::PlusMinutes(start, -lead)))
    {
        task.Put(L"ReminderTime", *reminder);
    }
}

void PutReminder(const TargetProperty& property)
{
    PutTruth(property);
    if (!automation::IsTrue(property.HostValue))
    {
        return;
    }
    const auto start = automation::OutlookDate(property.HostRows.ValueOf(L"F_ACTPSTIME"));
    if (start)
    {
        PutReminderTime(property.Item, automation::ToTheMinute(*start));
    }
}

constexpr exchange::PropertyToOutlook kActivityToTask[] = {
    {L"Subject", PutAsIs},
    {L"StartDate", PutDate},
    {L"DueDate", PutDate},
    {L"DateCompleted", PutDateWhenComplete},
    {L"Categories", PutAsIs},
    {L"Complete", PutWhenComplete},
    {L"PercentComplete", PutPercentage},
    {L"Status", PutStatus},
    {L"Importance", PutImportance},
    {L"ContactNames", LinkToContact},
    {L"ReminderSet", PutReminder},
    {L"TotalWork", PutWork},
    {L"ActualWork", PutWork},
    {L"Companies", PutAsIs},
};

} // namespace

const exchange::PassToOutlook SynTaskToOutlook{
    .ItemType = automation::kTaskItem,
    .RelationStatement = kRelationStatement,
    .RelationOptions = kRelationOptions,
    .Write = SynSynTaskToOlTask,
    .AddsItemFirst = true,
};

void SynSynTaskToOlTask(exchange::Run& run, long mode, const automation::Object& item)
{
    if (mode == data::kNewRecord || mode == data::kExistingRecord)
    {
        exchange::WriteRelatedProperties(run, kActivityToTask, item, exchange::Saves::AfterEachRowToo);
    }
}

} // namespace tasks
