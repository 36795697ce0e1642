// Recurring tasks: completing one generates the next. "When you copy a task to generate a new instance, this
// property is set to TRUE on the copy, which is the completed instance" (PidLidTaskDeadOccurrence Canonical
// Property); "True if the task should be regenerated after the finish of this instance"
// (RecurrencePattern.Regenerate property).
#include "sandbox/outlook/ItemDraft.h"

#include "sandbox/outlook/Clock.h"
#include "sandbox/outlook/PatternRules.h"
#include "sandbox/outlook/PatternTypeRules.h"

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;
using automation::Date;
using automation::kOutlookNoDate;

// The day on which the instance falls.
Date DayOfInstance(const ItemDraft& item)
{
    const Date due = item.Date(DueDate);
    return due != kOutlookNoDate ? due : item.Date(StartDate);
}

// A regenerating task comes so long after its completion as its pattern says, whatever its day was.
Date NextDay(const ItemDraft& item)
{
    Recurrence recurrence = RecurrenceOf(item);
    const Date today = Today();
    if (item.Truth(RecurrenceRegenerate))
    {
        recurrence.start = today;
        recurrence.dayOfWeekMask = WeekdayBit(today);
        recurrence.dayOfMonth = automation::MomentOf(today).day;
        return OccurrenceOf(recurrence, 2);
    }
    return OccurrenceOf(recurrence, OccurrencesUntil(recurrence, DayOfInstance(item)) + 1);
}

void MoveBy(ItemDraft& item, PropertyId id, double days)
{
    const Date date = item.Date(id);
    if (date != kOutlookNoDate)
    {
        item.Put(id, Date{date.days + days});
    }
}

void KeepCompleted(const ItemDraft& item)
{
    PropertyBag completed;
    for (const PropertyId id : PropertiesOf(ItemKind::Task))
    {
        const Value* own = IsOfPattern(id) || id == IsRecurring ? nullptr : item.Find(id);
        if (own != nullptr)
        {
            completed.Put(id, *own);
        }
    }
    completed.Put(CreationTime, Now());
    completed.Put(LastModificationTime, Now());
    item.Box().Save(item.Folder(), nullptr, ItemKind::Task, completed, &item.Links());
}

} // namespace

void GenerateNextTask(ItemDraft& item)
{
    if (!IsRecurrent(item) || !item.Truth(Complete) || DayOfInstance(item) == kOutlookNoDate)
    {
        return;
    }
    const Date next = NextDay(item);
    if (next > item.Date(RecurrencePatternEndDate))
    {
        return; // this was the last one, and stays complete
    }
    KeepCompleted(item);
    const double days = next.days - DayOfInstance(item).days;
    for (const PropertyId id : {StartDate, DueDate, ReminderTime})
    {
        MoveBy(item, id, days);
    }
    item.Put(Status, 0L);
    item.Put(Complete, false);
    item.Put(PercentComplete, 0L);
    item.Put(DateCompleted, kOutlookNoDate);
}

} // namespace sandbox::outlook
