// How the properties of a task bear on each other: status, completion, percentage and completion date tell
// one story; a task is not due before it starts; its contacts are those it is linked to.
#include "sandbox/outlook/ItemDraft.h"

#include "automation/Dates.h"
#include "sandbox/outlook/Clock.h"

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;
using automation::Date;
using automation::kOutlookNoDate;

enum TaskStatus : long
{
    kNotStarted = 0,
    kInProgress = 1,
    kComplete = 2,
};

constexpr long kAllPercent = 100;

bool IsComplete(const ItemDraft& item)
{
    return item.Number(Status) == kComplete;
}

void MakeComplete(ItemDraft& item, Date completed)
{
    item.Put(Status, static_cast<long>(kComplete));
    item.Put(Complete, true);
    item.Put(PercentComplete, kAllPercent);
    item.Put(DateCompleted, completed);
}

// A task that was complete keeps its date when it is completed once more.
void MakeComplete(ItemDraft& item)
{
    const Date before = item.Date(DateCompleted);
    MakeComplete(item, before == kOutlookNoDate ? Today() : before);
}

void MakeIncomplete(ItemDraft& item, long status, long percent)
{
    item.Put(Status, status);
    item.Put(Complete, false);
    item.Put(PercentComplete, percent);
    item.Put(DateCompleted, kOutlookNoDate);
}

void WriteStatus(ItemDraft& item, const Value& converted)
{
    const long status = automation::LongOf(converted);
    if (status == kComplete)
    {
        MakeComplete(item);
    }
    else
    {
        const long percent = status == kNotStarted || IsComplete(item) ? 0 : item.Number(PercentComplete);
        MakeIncomplete(item, status, percent);
    }
}

void WriteComplete(ItemDraft& item, const Value& converted)
{
    if (automation::TruthOf(converted))
    {
        MakeComplete(item);
    }
    else if (IsComplete(item))
    {
        MakeIncomplete(item, kNotStarted, 0);
    }
}

void WritePercentComplete(ItemDraft& item, const Value& converted)
{
    const long percent = automation::LongOf(converted);
    const long status = item.Number(Status);
    const bool followsPercent = status == kNotStarted || status == kInProgress || status == kComplete;
    if (percent == kAllPercent)
    {
        MakeComplete(item);
    }
    else
    {
        // A task that waits or is deferred stays so, however far it has come.
        const long implied = percent == 0 ? kNotStarted : kInProgress;
        MakeIncomplete(item, followsPercent ? implied : status, percent);
    }
}

void WriteDateCompleted(ItemDraft& item, const Value& converted)
{
    const Date completed = automation::DateOf(converted);
    if (completed == kOutlookNoDate)
    {
        item.Put(DateCompleted, completed);
    }
    else
    {
        MakeComplete(item, completed);
    }
}

// A date without time "before" another; no date is before none.
bool IsBefore(Date date, Date other)
{
    return date != kOutlookNoDate && other != kOutlookNoDate && date < other;
}

void WriteStartDate(ItemDraft& item, const Value& converted)
{
    item.Put(StartDate, converted);
    if (IsBefore(item.Date(DueDate), automation::DateOf(converted)))
    {
        item.Put(DueDate, converted);
    }
}

void WriteReminderSet(ItemDraft& item, const Value& converted);

// With the option "Set reminders on tasks with due dates" a new task has a reminder with its due date.
void WriteDueDate(ItemDraft& item, const Value& converted)
{
    item.Put(DueDate, converted);
    if (item.Box().Behaviour().taskReminders && !item.Stored() &&
        automation::DateOf(converted) != kOutlookNoDate)
    {
        WriteReminderSet(item, true);
    }
    if (IsBefore(automation::DateOf(converted), item.Date(StartDate)))
    {
        item.Put(StartDate, converted);
    }
}

// A reminder without a time of its own comes at eight on the day that the task is due (or starts, or today).
void WriteReminderSet(ItemDraft& item, const Value& converted)
{
    constexpr Date kEight{8.0 / 24};
    item.Put(ReminderSet, converted);
    if (automation::TruthOf(converted) && item.Date(ReminderTime) == kOutlookNoDate)
    {
        const Date due = item.Date(DueDate);
        const Date start = item.Date(StartDate);
        const Date day = due != kOutlookNoDate ? due : start != kOutlookNoDate ? start : Today();
        item.Put(ReminderTime, automation::PlusTime(automation::DayOf(day), kEight));
    }
}

// The names of the linked contacts, each once, joined by "; ". A text stored without a link is taken as it
// is, as for a task whose contacts were typed in.
Value ReadContactNames(const ItemDraft& item)
{
    if (item.Links().empty())
    {
        const Value* own = item.Find(ContactNames);
        return own != nullptr ? *own : DefaultOf(ContactNames);
    }
    std::vector<std::wstring> names;
    for (const std::wstring& link : item.Links())
    {
        const StoredItemRef contact = item.Box().Follow(link);
        std::wstring name = contact ? ItemDraft(item.Box(), contact).Text(FullName) : link;
        if (std::ranges::find(names, name) == names.end())
        {
            names.push_back(std::move(name));
        }
    }
    std::wstring joined;
    for (const std::wstring& name : names)
    {
        joined += (joined.empty() ? L"" : L"; ") + name;
    }
    return joined;
}

constexpr PropertyRule kTaskRules[] = {
    {Status, nullptr, WriteStatus},
    {Complete, nullptr, WriteComplete},
    {PercentComplete, nullptr, WritePercentComplete},
    {DateCompleted, nullptr, WriteDateCompleted},
    {StartDate, nullptr, WriteStartDate},
    {DueDate, nullptr, WriteDueDate},
    {ReminderSet, nullptr, WriteReminderSet},
    {ContactNames, ReadContactNames, nullptr},
};

} // namespace

std::span<const PropertyRule> TaskRules()
{
    return kTaskRules;
}

} // namespace sandbox::outlook
