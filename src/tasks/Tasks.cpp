#include "tasks/Tasks.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "data/Permissions.h"
#include "exchange/MatchKeys.h"
#include "links/Activities.h"
#include "links/ContactLink.h"
#include "state/Remarks.h"
#include "state/SharedState.h"
#include "tasks/TaskPreview.h"
#include "ui/ShowMessageBox.h"

#include <limits>

namespace tasks
{

namespace
{

using automation::IsTrue;
using automation::Object;
using automation::Recordset;
using automation::Value;
using data::Host;
using exchange::HostValue;
using exchange::PutAsIs;
using exchange::PutDate;
using exchange::PutNumber;
using exchange::PutTruth;
using exchange::ReadAsIs;
using exchange::SourceProperty;
using exchange::TargetProperty;

// Outlook's OlTaskStatus, as far as used.
constexpr long kTaskComplete = 2;
constexpr long kTaskDeferred = 4; // the last one

// Match keys and filters

constexpr wchar_t kDay[] = L"yyyy/mm/dd";

std::wstring KeyOfTaskItem(const automation::ItemView& item)
{
    return exchange::JoinedKey({item.Get(L"Subject"), item.Get(L"Categories"), item.Get(L"StartDate")}, kDay);
}

std::wstring KeyOfTaskRow(const Recordset& rows)
{
    return exchange::JoinedKey(
        {rows.ValueOf(L"F_ACTNAME"), rows.ValueOf(L"F_ACTTYPE"), rows.ValueOf(L"F_ACTPSTIME")}, kDay);
}

std::wstring CompaniesOfTask(const automation::ItemView& item)
{
    return exchange::Comparable(item.Get(L"Companies"));
}

// Outlook's documentation contradicts itself about Companies in a table, so that is read of the items.
constexpr const wchar_t* kKeyColumns[] = {L"Subject", L"Categories", L"StartDate"};
constexpr const wchar_t* kFilterColumns[] = {L"Complete"};

bool IsPendingRow(const Recordset& rows)
{
    return !IsTrue(rows.ValueOf(L"F_ACTCOMPLETED"));
}

bool IsPendingItem(const automation::ItemView& item)
{
    return !IsTrue(item.Get(L"Complete"));
}

exchange::Filters PendingOnly(const state::SynParameter& parameter, const data::Host& /*host*/)
{
    return parameter.TaskTransItem == state::kPendingTasks
               ? exchange::Filters{IsPendingRow, IsPendingItem, kFilterColumns}
               : exchange::Filters{};
}

// Towards Outlook

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
void PutReminderTime(const Object& task, automation::Date start)
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
    if (!IsTrue(property.HostValue))
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

// From Outlook

Value DayOrNull(const Value& date)
{
    return automation::IsEmptyOrNull(date) ? date : Value(automation::DayOf(automation::DateOf(date)));
}

HostValue ReadDay(const SourceProperty& property)
{
    return DayOrNull(property.Item.DateOrNull(property.Name));
}

HostValue ReadDayWhenComplete(const SourceProperty& property)
{
    const bool isComplete = automation::LongOf(property.Item.ValueOf(L"Status")) == kTaskComplete;
    return isComplete ? ReadDay(property) : Value::Null();
}

HostValue ReadDateAndTime(const SourceProperty& property)
{
    return property.Item.DateOrNull(property.Name);
}

// The host stores a fraction from 0 to 1.
HostValue ReadPercentage(const SourceProperty& property)
{
    return Value(automation::DoubleOf(property.Item.ValueOf(property.Name)) / 100);
}

// The host's levels are one higher than Outlook's 0 low, 1 normal, 2 high.
HostValue ReadImportance(const SourceProperty& property)
{
    return Value(automation::DoubleOf(property.Item.ValueOf(property.Name)) + 1);
}

// The host contract stores Outlook's status number in the flag.
HostValue ReadStatus(const SourceProperty& property)
{
    return property.Item.ValueOf(L"Status");
}

// The host reminds by the start: without one there is nothing to be reminded of.
HostValue ReadReminder(const SourceProperty& property)
{
    return automation::IsEmptyOrNull(property.Item.DateOrNull(L"StartDate"))
               ? Value(false)
               : property.Item.ValueOf(property.Name);
}

// Contact and company are not here: they reach the host through the links.
constexpr exchange::PropertyFromOutlook kTaskToActivity[] = {
    {L"Subject", exchange::ReadUnlessEmpty},
    {L"StartDate", ReadDay},
    {L"DueDate", ReadDay},
    {L"DateCompleted", ReadDayWhenComplete},
    {L"CreationTime", ReadDateAndTime},
    {L"PercentComplete", ReadPercentage},
    {L"Categories", exchange::ReadCategories},
    {L"Importance", ReadImportance},
    {L"Status", ReadAsIs},
    {L"Complete", ReadStatus},
    {L"ReminderSet", ReadReminder},
    {L"TotalWork", ReadAsIs},
    {L"ActualWork", ReadAsIs},
};

void AddColumns(exchange::Run& run, const automation::ItemView& item, data::HostRow& task)
{
    exchange::ItemProperties properties(item);
    data::ThrowUnless(exchange::AddRelatedColumns(run.Relations, kTaskToActivity,
                                                  exchange::Unmapped::WrittenAsNull, properties, task),
                      L"Subject");
}

void Insert(exchange::Run& run, const automation::ItemView& item)
{
    data::InsertRow task(run.Catalogue);
    AddColumns(run, item, task);
    const Host host;
    data::Transaction transaction(host);
    links::ChangeNewTaskContact(item, task);
    links::ChangeAddTaskAccount(item, task);
    links::InsertActivity(host, task,
                          L"F_ACTORID ,F_CREATORID,F_ACTID"); // with its space, as in the contract
    transaction.Commit();
}

void Update(exchange::Run& run, const automation::ItemView& item)
{
    data::UpdateRow task(run.Catalogue);
    AddColumns(run, item, task);
    const Host host;
    data::Transaction transaction(host);
    links::ChangeEditTaskContact(item, task);
    links::ChangeEditTaskAccount(item, task);
    links::UpdateActivity(host, task, run.HostRows);
    transaction.Commit();
}

void ShowInvalidMode()
{
    ui::ShowMessageBox(L"Error:Don't this Item.", MB_OK); // in both languages
}

} // namespace

void SynSynTaskToOlTask(exchange::Run& run, data::RecordMode mode, const Object& item)
{
    if (mode == data::kNewRecord || mode == data::kExistingRecord)
    {
        exchange::WriteRelatedProperties(run, kActivityToTask, item, exchange::Saves::AfterEachRowToo);
    }
}

long SynOlTaskToSynTask(exchange::Run& run, data::RecordMode mode, const automation::ItemView& item)
{
    return exchange::WriteRecord({Insert, Update, ShowInvalidMode}, run, mode, item);
}

constexpr wchar_t kRelationStatement[] = L"Select * From SynRelation Where QuenlarTblName='TBLACTIVITY'";

constexpr exchange::PassToOutlook SynTaskToOutlook{
    .ItemType = exchange::kTaskName.OutlookItemType,
    .RelationStatement = kRelationStatement,
    .RelationOptions = exchange::kOnTheClient,
    .Mapping = kActivityToTask,
    .Write = SynSynTaskToOlTask,
    .AddsItemFirst = true,
};

constexpr exchange::PassFromOutlook SynTaskFromOutlook{
    .RelationStatement = kRelationStatement,
    .RelationOptions = exchange::kOnTheClient,
    .Mapping = kTaskToActivity,
    .Others = exchange::Unmapped::WrittenAsNull,
    .Write = SynOlTaskToSynTask,
};

constexpr exchange::Kind kTasks{
    .Name = exchange::kTaskName,
    .RecordSource = L"ActivityMyActivity",
    .KeyColumn = L"F_ACTID",
    .SourceFilter = nullptr,
    .SucceedsWithoutHostRows = true,
    .AppliesFromOutlookFirst = true,
    .CollectToOutlookTextId = IDS_RUN_COLLECTING,
    .PermissionKind = data::kActivityRecord,
    .Match = {KeyOfTaskItem,
              CompaniesOfTask,
              KeyOfTaskRow,
              exchange::AccountOfRow,
              {L"IPM.Task", kKeyColumns, false}},
    .NameOfItem = exchange::SubjectOfItem,
    .NameOfRow = exchange::SubjectOfRow,
    .FiltersOf = PendingOnly,
    .ToOutlook = SynTaskToOutlook,
    .FromOutlook = SynTaskFromOutlook,
    .Preview = kTaskPreview,
};

} // namespace tasks
