#include "tasks/TasksFromOutlook.h"

#include "automation/Dates.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "data/SqlFragments.h"
#include "exchange/ApplyFromOutlook.h"
#include "exchange/MappingFromOutlook.h"
#include "links/TaskLinks.h"
#include "state/Failures.h"
#include "tasks/TaskRelations.h"
#include "ui/ShowMessageBox.h"

namespace tasks
{

using automation::Object;
using automation::Value;
using data::Host;
using data::RowColumns;

namespace
{

using exchange::HostValue;
using exchange::ReadAsIs;
using exchange::SourceProperty;

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

// The host's flag is kept as the status number itself, deliberately.
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
constexpr exchange::PropertyFromOutlook kTaskToColumns[] = {
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

void Insert(const Host& host, const Object& item, RowColumns& task)
{
    data::Demand(links::ChangeNewTaskContact(item, task.Fields, task.Values) == 0, L"ChangeNewTaskContact");
    data::Demand(links::ChangeAddTaskAccount(task.Catalogue(), item, task.Fields, task.Values) == 0,
                 L"ChangeAddTaskAccount");
    const std::wstring id = host.NewGuid();
    const std::wstring user = host.UserIdLiteral();
    data::AppendEntry(task.Fields, L"F_ACTORID ,F_CREATORID,F_ACTID"); // with its space, as the host has it
    data::AppendEntry(task.Values, user + L"," + user + L"," + data::QuotedText(id));
    data::Demand(host.Insert(L"TBLACTIVITY", task.Fields, task.Values, id) >= 0, L"Insert");
}

void Update(const Host& host, const automation::Recordset& rows, const Object& item, RowColumns& task)
{
    data::Demand(links::ChangeEditTaskContact(item, task.SetList) == 0, L"ChangeEditTaskContact");
    data::Demand(links::ChangeEditTaskAccount(task.Catalogue(), item, task.SetList) == 0,
                 L"ChangeEditTaskAccount");
    const std::wstring id = automation::TextOf(rows.ValueOf(L"F_ACTID"));
    data::Demand(host.Update(L"TBLACTIVITY", task.SetList, L"F_ACTID=" + data::QuotedText(id)) == 0,
                 L"Update");
}

void Write(const Host& host, const exchange::Run& run, const Object& item, RowColumns& task)
{
    switch (task.Mode())
    {
    case data::kNewRecord: Insert(host, item, task); break;
    case data::kExistingRecord: Update(host, run.HostRows, item, task); break;
    default: ui::ShowMessageBox(L"Error:Don't this Item.", MB_OK); break; // in both languages
    }
}

} // namespace

const exchange::PassFromOutlook SynTaskFromOutlook{
    .RelationStatement = kRelationStatement,
    .RelationOptions = kRelationOptions,
    .Write = SynOlTaskToSynTask,
};

long SynOlTaskToSynTask(exchange::Run& run, long mode, const Object& item)
{
    return state::Trapped(-1L, [&] {
        RowColumns task(run.Catalogue, mode);
        exchange::ItemProperties properties(item);
        data::Demand(exchange::AddRelatedColumns(run.Relations, kTaskToColumns, Value(), properties, task),
                     L"Subject");
        const Host host;
        data::Transaction transaction(host);
        Write(host, run, item, task);
        transaction.Commit();
        return 0L;
    });
}

} // namespace tasks
