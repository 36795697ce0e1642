#include "tasks/TaskPreview.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "links/Activities.h"

namespace tasks
{

namespace
{

using automation::Date;
using automation::kOutlookNoDate;
using automation::LongOf;
using automation::Object;
using automation::Recordset;
using automation::Value;
using exchange::LinkedValue;
using exchange::RecordedItem;
using exchange::RelationTable;

// How Outlook keeps a task's properties in step: status, completion, percentage and completion date tell one
// story, and a task is not due before it starts.

enum TaskStatus : long
{
    kNotStarted = 0,
    kInProgress = 1,
    kCompleted = 2,
};

constexpr long kHundredPercent = 100;

Date Today()
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    return automation::DateOf(automation::Moment{now.wYear, now.wMonth, now.wDay});
}

Date DateIn(RecordedItem& item, const wchar_t* property)
{
    return automation::ReadableDate(item.Get(property)).value_or(kOutlookNoDate);
}

long StatusOf(RecordedItem& item)
{
    return LongOf(item.Get(L"Status"));
}

void KeepCompletion(RecordedItem& item, long status, long percent, Date completed)
{
    item.Keep(L"Status", status);
    item.Keep(L"Complete", status == kCompleted);
    item.Keep(L"PercentComplete", percent);
    item.Keep(L"DateCompleted", completed);
}

// A task that was complete keeps its date.
void MakeComplete(RecordedItem& item)
{
    const Date before = DateIn(item, L"DateCompleted");
    KeepCompletion(item, kCompleted, kHundredPercent, before == kOutlookNoDate ? Today() : before);
}

void MakeIncomplete(RecordedItem& item, long status, long percent)
{
    KeepCompletion(item, status, percent, kOutlookNoDate);
}

void PutStatusNumber(RecordedItem& item, const Value& value)
{
    const long status = LongOf(value);
    if (status == kCompleted)
    {
        MakeComplete(item);
        return;
    }
    const bool startsAfresh = status == kNotStarted || StatusOf(item) == kCompleted;
    MakeIncomplete(item, status, startsAfresh ? 0 : LongOf(item.Get(L"PercentComplete")));
}

void PutCompletion(RecordedItem& item, const Value& value)
{
    if (automation::TruthOf(value))
    {
        MakeComplete(item);
    }
    else if (StatusOf(item) == kCompleted)
    {
        MakeIncomplete(item, kNotStarted, 0);
    }
    else
    {
        item.Keep(L"Complete", false);
    }
}

// A task that waits or is deferred stays so, however far it has come.
void PutPercent(RecordedItem& item, const Value& value)
{
    const long percent = LongOf(value);
    if (percent == kHundredPercent)
    {
        MakeComplete(item);
        return;
    }
    const long status = StatusOf(item);
    const long implied = percent == 0 ? kNotStarted : kInProgress;
    MakeIncomplete(item, status > kCompleted ? status : implied, percent);
}

void PutCompletionDate(RecordedItem& item, const Value& value)
{
    const Date completed = automation::DateOf(value);
    if (completed == kOutlookNoDate)
    {
        item.Keep(L"DateCompleted", completed);
    }
    else
    {
        KeepCompletion(item, kCompleted, kHundredPercent, completed);
    }
}

// No date is before none.
bool IsBefore(Date date, Date other)
{
    return date != kOutlookNoDate && other != kOutlookNoDate && date < other;
}

void PutStart(RecordedItem& item, const Value& value)
{
    item.Keep(L"StartDate", value);
    if (IsBefore(DateIn(item, L"DueDate"), automation::DateOf(value)))
    {
        item.Keep(L"DueDate", value);
    }
}

void PutDue(RecordedItem& item, const Value& value)
{
    item.Keep(L"DueDate", value);
    if (IsBefore(automation::DateOf(value), DateIn(item, L"StartDate")))
    {
        item.Keep(L"StartDate", value);
    }
}

constexpr exchange::Reaction kReactions[] = {
    {L"Status", PutStatusNumber}, {L"Complete", PutCompletion},          {L"PercentComplete", PutPercent},
    {L"StartDate", PutStart},     {L"DateCompleted", PutCompletionDate}, {L"DueDate", PutDue},
};

// The columns of the list

Value CategoryOfTask(const Object& item)
{
    return item.Get(L"Categories");
}

Value CategoryOfTaskRow(const Recordset& rows, RelationTable& /*relations*/)
{
    return rows.ValueOf(L"F_ACTTYPE");
}

Value StartOfTask(const Object& item)
{
    return item.Get(L"StartDate");
}

Value StartOfTaskRow(const Recordset& rows, RelationTable& /*relations*/)
{
    return rows.ValueOf(L"F_ACTPSTIME");
}

Value ContactOfRow(const Recordset& rows)
{
    return automation::TextOrEmpty(rows.ValueOf(L"CONTACT_SURNAME")) +
           automation::TextOrEmpty(rows.ValueOf(L"CONTACT_GIVENNAME"));
}

std::vector<LinkedValue> LinksOfTask(const exchange::LinkSource& source)
{
    const bool isNew = source.Mode == data::kNewRecord;
    std::vector<LinkedValue> values;
    if (const auto contact = links::PreviewTaskContact(source.Item))
    {
        values.push_back({L"ContactNames", isNew ? Value() : ContactOfRow(source.HostRows), contact->Name});
    }
    if (const auto account = links::PreviewTaskAccount(source.Catalogue, source.Item))
    {
        values.push_back({L"Companies", isNew ? Value() : source.HostRows.ValueOf(L"ACC_SNAME"),
                          account->Name, account->IsNew});
    }
    return values;
}

} // namespace

const exchange::KindPreview kTaskPreview{
    .Group = {CategoryOfTask, CategoryOfTaskRow},
    .Date = {StartOfTask, StartOfTaskRow},
    .Behaviour = {.Reactions = kReactions},
    .LinksOf = LinksOfTask,
};

} // namespace tasks
