#include "tasks/TasksToOutlook.h"

#include "automation/Dates.h"
#include "data/ApplyToOutlook.h"
#include "data/MappingToOutlook.h"
#include "state/SharedState.h"
#include "tasks/ContactLink.h"
#include "tasks/TaskRelations.h"

namespace tasks
{

namespace
{

using automation::DoubleOf;
using automation::Value;
using data::PutAsIs;
using data::PutDate;
using data::TargetProperty;

constexpr data::PassToOutlook kTasksToOutlook{
    .ItemType = data::kTaskItem,
    .RelationStatement = kRelationStatement,
    .RelationOptions = kRelationOptions,
    .Write = SynSynTaskToOlTask,
};

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
        PutAsIs(property);
    }
}

// The host stores a fraction from 0 to 1.
void PutPercentage(const TargetProperty& property)
{
    property.Put(DoubleOf(property.HostValue) * 100);
}

// Saved at once, so that the rows which ask for the status find what Outlook has made of it.
void PutStatus(const TargetProperty& property)
{
    PutAsIs(property);
    property.Item.Call(L"Save");
}

// The host's levels are one higher than Outlook's 0 low, 1 normal, 2 high.
void PutImportance(const TargetProperty& property)
{
    property.Put(DoubleOf(property.HostValue) - 1);
}

void LinkToContact(const TargetProperty& property)
{
    LinkContact(property.Item, property.HostValue, property.HostRows.ValueOf(L"CONTACT_GIVENNAME"));
}

void PutReminder(const TargetProperty& property)
{
    PutAsIs(property);
    if (!automation::TruthOf(property.HostValue))
    {
        return;
    }
    const Value planned = property.HostRows.ValueOf(L"F_ACTPSTIME");
    if (!automation::IsAbsent(planned))
    {
        const long long lead = state::Shared().gCalendarPreviewAlarmTime;
        const automation::Date start = automation::ToTheMinute(automation::DateOf(planned));
        property.Item.Put(L"ReminderTime", automation::PlusMinutes(start, -lead));
    }
}

constexpr data::PropertyToOutlook kActivityToTask[] = {
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
    {L"TotalWork", PutAsIs},
    {L"ActualWork", PutAsIs},
    {L"Companies", PutAsIs},
};

} // namespace

bool SynTaskToOutlook(data::Run& run)
{
    return data::ApplyToOutlook(run, kTasksToOutlook);
}

void SynSynTaskToOlTask(data::Run& run, long mode, const automation::Object& item)
{
    if (mode == data::kNewRecord || mode == data::kExistingRecord)
    {
        data::WriteRelatedProperties(run, kActivityToTask, item, data::Saves::AfterEachRowToo);
    }
}

} // namespace tasks
