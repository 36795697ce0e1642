// How the times of an appointment bear on each other: start, end and duration are one thing, and an all-day
// event begins and ends at midnight. The times of a recurring appointment are those of its pattern.
#include "sandbox/outlook/ItemDraft.h"

#include "automation/Dates.h"
#include "sandbox/outlook/Clock.h"
#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/PatternRules.h"

#include <cmath>

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;
using automation::Date;

Date NextMidnight(Date date)
{
    const Date day = automation::DayOf(date);
    return day < date ? Date{day.days + 1} : day;
}

void PutBounds(ItemDraft& item, Date start, Date end)
{
    if (item.Truth(AllDayEvent))
    {
        start = automation::DayOf(start);
        end = std::max(NextMidnight(end), Date{start.days + 1});
    }
    item.Put(Start, start);
    item.Put(End, end);
    item.Put(Duration, MinutesBetween(start, end));
}

void FailIfRecurring(const ItemDraft& item, PropertyId id)
{
    if (IsRecurrent(item))
    {
        FailInvalid(PropertyOf(id).name, std::wstring(L"You cannot change the ") + PropertyOf(id).name +
                                             L" of a recurring appointment; change its recurrence pattern.");
    }
}

Value ReadStart(const ItemDraft& item)
{
    return IsRecurrent(item) ? FirstStart(item) : OwnStart(item);
}

Value ReadEnd(const ItemDraft& item)
{
    return IsRecurrent(item) ? automation::PlusMinutes(FirstStart(item), item.Number(RecurrenceDuration))
                             : OwnEnd(item);
}

Value ReadDuration(const ItemDraft& item)
{
    return MinutesBetween(item.Date(Start), item.Date(End));
}

// The duration stays, so that the end moves along.
void WriteStart(ItemDraft& item, const Value& converted)
{
    FailIfRecurring(item, Start);
    const Date given = automation::DateOf(converted);
    const Date start = item.Truth(AllDayEvent) ? automation::DayOf(given) : given;
    PutBounds(item, start, automation::PlusMinutes(start, item.Number(Duration)));
}

void WriteEnd(ItemDraft& item, const Value& converted)
{
    FailIfRecurring(item, End);
    const Date end = automation::DateOf(converted);
    if (end < item.Date(Start))
    {
        FailInvalid(L"End", L"The end date you entered occurs before the start date.");
    }
    PutBounds(item, item.Date(Start), end);
}

void WriteDuration(ItemDraft& item, const Value& converted)
{
    FailIfRecurring(item, Duration);
    const Date start = item.Date(Start);
    PutBounds(item, start, automation::PlusMinutes(start, automation::LongOf(converted)));
}

void WriteAllDayEvent(ItemDraft& item, const Value& converted)
{
    const Date start = item.Date(Start);
    const Date end = item.Date(End);
    item.Put(AllDayEvent, converted);
    if (IsRecurrent(item))
    {
        FitPatternToDay(item);
    }
    else
    {
        PutBounds(item, start, end);
    }
}

constexpr PropertyRule kAppointmentRules[] = {
    {Start, ReadStart, WriteStart},
    {End, ReadEnd, WriteEnd},
    {Duration, ReadDuration, WriteDuration},
    {AllDayEvent, nullptr, WriteAllDayEvent},
};

} // namespace

long MinutesBetween(Date start, Date end)
{
    return std::lround((automation::PlusMinutes(end, 0).days - automation::PlusMinutes(start, 0).days) *
                       1440);
}

std::span<const PropertyRule> AppointmentRules()
{
    return kAppointmentRules;
}

// The next full or half hour, for thirty minutes. "Default reminders" are on in a new Outlook, 15 minutes
// before the start, so that a new appointment has one ("Set or remove reminders").
void StartAppointment(ItemDraft& item)
{
    constexpr double kHalfHours = 48;
    const double slot = std::ceil(Now().days * kHalfHours);
    PutBounds(item, {slot / kHalfHours}, automation::PlusMinutes({slot / kHalfHours}, 30));
    item.Put(ReminderSet, item.Box().Behaviour().appointmentReminders);
}

} // namespace sandbox::outlook
