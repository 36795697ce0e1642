#include "sandbox/outlook/PatternRules.h"

#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/PatternTypeRules.h"

#include <cmath>

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;
using automation::Date;

constexpr long kMinutesOfDay = 1440;

Date TimeOf(Date date)
{
    const automation::Moment moment = automation::MomentOf(date);
    return {((moment.hour * 60 + moment.minute) * 60 + moment.second) / 86400.0};
}

Value ReadStartTime(const ItemDraft& item)
{
    const Value* own = item.Find(RecurrenceStartTime);
    return TimeOf(own != nullptr ? automation::DateOf(*own) : OwnStart(item));
}

// Minutes from a time of day to the next time that it is another.
long MinutesUntil(Date time, Date other)
{
    const long minutes = MinutesBetween(time, other);
    return minutes < 0 ? minutes + kMinutesOfDay : minutes;
}

Value ReadPatternDuration(const ItemDraft& item)
{
    if (const Value* own = item.Find(RecurrenceDuration))
    {
        return *own;
    }
    if (const Value* end = item.Find(RecurrenceEndTime))
    {
        return MinutesUntil(item.Date(RecurrenceStartTime), TimeOf(automation::DateOf(*end)));
    }
    return MinutesBetween(OwnStart(item), OwnEnd(item));
}

Value ReadEndTime(const ItemDraft& item)
{
    const Date start{item.Date(RecurrenceStartTime)};
    return TimeOf(automation::PlusMinutes(start, item.Number(RecurrenceDuration)));
}

void PutTimes(ItemDraft& item, Date start, long minutes)
{
    if (item.Truth(AllDayEvent))
    {
        start = {};
        minutes = std::max(1L, (minutes + kMinutesOfDay - 1) / kMinutesOfDay) * kMinutesOfDay;
    }
    item.Put(RecurrenceStartTime, start);
    item.Put(RecurrenceDuration, minutes);
    item.Put(RecurrenceEndTime, TimeOf(automation::PlusMinutes(start, minutes)));
}

// The duration stays, so that the end moves along.
void WriteStartTime(ItemDraft& item, const Value& converted)
{
    PutTimes(item, TimeOf(automation::DateOf(converted)), item.Number(RecurrenceDuration));
}

// An end before the start is one on the next day; an end at the time of the start leaves whole days whole.
void WriteEndTime(ItemDraft& item, const Value& converted)
{
    const Date start = item.Date(RecurrenceStartTime);
    const long minutes = MinutesUntil(start, TimeOf(automation::DateOf(converted)));
    const long before = item.Number(RecurrenceDuration);
    PutTimes(item, start, minutes == 0 && before % kMinutesOfDay == 0 ? before : minutes);
}

void WritePatternDuration(ItemDraft& item, const Value& converted)
{
    PutTimes(item, item.Date(RecurrenceStartTime), automation::LongOf(converted));
}

Value ReadPatternStart(const ItemDraft& item)
{
    const Value* own = item.Find(RecurrencePatternStartDate);
    return own != nullptr ? *own : Value(automation::DayOf(OwnStart(item)));
}

bool EndsByDate(const ItemDraft& item)
{
    const Value* own = item.Find(RecurrenceEndsByDate);
    return own != nullptr ? automation::TruthOf(*own) : item.Find(RecurrencePatternEndDate) != nullptr;
}

Value ReadNoEndDate(const ItemDraft& item)
{
    const Value* own = item.Find(RecurrenceNoEndDate);
    const bool hasEnd =
        item.Find(RecurrencePatternEndDate) != nullptr || item.Find(RecurrenceOccurrences) != nullptr;
    return own != nullptr ? *own : Value(!hasEnd);
}

Value ReadOccurrences(const ItemDraft& item)
{
    if (item.Truth(RecurrenceNoEndDate))
    {
        return DefaultOf(RecurrenceOccurrences);
    }
    if (EndsByDate(item))
    {
        return OccurrencesUntil(RecurrenceOf(item), item.Date(RecurrencePatternEndDate));
    }
    const Value* own = item.Find(RecurrenceOccurrences);
    return own != nullptr ? *own : DefaultOf(RecurrenceOccurrences);
}

Value ReadPatternEnd(const ItemDraft& item)
{
    if (item.Truth(RecurrenceNoEndDate))
    {
        return kLastRecurrenceDay;
    }
    const Value* own = item.Find(RecurrencePatternEndDate);
    if (EndsByDate(item) && own != nullptr)
    {
        return *own;
    }
    return OccurrenceOf(RecurrenceOf(item), item.Number(RecurrenceOccurrences));
}

void WriteNoEndDate(ItemDraft& item, const Value& converted)
{
    if (automation::TruthOf(converted) != item.Truth(RecurrenceNoEndDate))
    {
        item.Put(RecurrencePatternEndDate, Value());
        item.Put(RecurrenceOccurrences, Value());
        item.Put(RecurrenceEndsByDate, false);
    }
    item.Put(RecurrenceNoEndDate, converted);
}

void WriteOccurrences(ItemDraft& item, const Value& converted)
{
    item.Put(RecurrenceNoEndDate, false);
    item.Put(RecurrenceEndsByDate, false);
    item.Put(RecurrenceOccurrences, converted);
}

void WritePatternEnd(ItemDraft& item, const Value& converted)
{
    if (automation::DateOf(converted) < item.Date(RecurrencePatternStartDate))
    {
        FailInvalid(L"PatternEndDate", L"The end date of the recurrence pattern occurs before its start.");
    }
    item.Put(RecurrenceNoEndDate, false);
    item.Put(RecurrenceEndsByDate, true);
    item.Put(RecurrencePatternEndDate, converted);
}

// A pattern moved beyond its end date keeps the number of its occurrences.
void WritePatternStart(ItemDraft& item, const Value& converted)
{
    const bool hasEnd = !item.Truth(RecurrenceNoEndDate);
    if (hasEnd && automation::DateOf(converted) > item.Date(RecurrencePatternEndDate))
    {
        WriteOccurrences(item, item.Read(RecurrenceOccurrences));
    }
    item.Put(RecurrencePatternStartDate, converted);
}

constexpr PropertyRule kPatternRules[] = {
    {RecurrenceStartTime, ReadStartTime, WriteStartTime},
    {RecurrenceEndTime, ReadEndTime, WriteEndTime},
    {RecurrenceDuration, ReadPatternDuration, WritePatternDuration},
    {RecurrencePatternStartDate, ReadPatternStart, WritePatternStart},
    {RecurrencePatternEndDate, ReadPatternEnd, WritePatternEnd},
    {RecurrenceNoEndDate, ReadNoEndDate, WriteNoEndDate},
    {RecurrenceOccurrences, ReadOccurrences, WriteOccurrences},
};

} // namespace

std::span<const PropertyRule> PatternRules()
{
    return kPatternRules;
}

bool IsRecurrent(const ItemDraft& item)
{
    const Value* own = item.Find(IsRecurring);
    return own != nullptr && automation::TruthOf(*own);
}

void StartPattern(ItemDraft& item)
{
    if (!IsRecurrent(item))
    {
        item.Put(IsRecurring, true);
        FitPatternToDay(item);
    }
}

void ClearPattern(ItemDraft& item)
{
    if (!IsRecurrent(item))
    {
        return;
    }
    const bool hasBounds = item.Kind() == ItemKind::Appointment;
    const Value start = item.Read(Start);
    const Value end = item.Read(End);
    for (const PropertyId id : PropertiesOf(item.Kind()))
    {
        if (IsOfPattern(id))
        {
            item.Put(id, Value());
        }
    }
    item.Put(IsRecurring, false);
    if (hasBounds)
    {
        item.Put(Start, start);
        item.Put(End, end);
    }
}

Date FirstStart(const ItemDraft& item)
{
    const Date day = OccurrenceOf(RecurrenceOf(item), 1);
    return automation::PlusTime(day, item.Date(RecurrenceStartTime));
}

void FitPatternToDay(ItemDraft& item)
{
    PutTimes(item, item.Date(RecurrenceStartTime), item.Number(RecurrenceDuration));
}

void SettlePattern(ItemDraft& item)
{
    if (!IsRecurrent(item))
    {
        return;
    }
    const Recurrence recurrence = RecurrenceOf(item);
    const Date last = item.Date(RecurrencePatternEndDate);
    if (OccurrenceOf(recurrence, 1) > last)
    {
        FailInvalid(L"Save", L"The recurrence pattern is not valid.");
    }
    // Everything is read before anything is put, since members follow from each other.
    PropertyBag settled;
    for (const PropertyRule& rule : PatternTypeRules())
    {
        settled.Put(rule.id, StatedByType(item, rule.id));
    }
    for (const PropertyRule& rule : PatternRules())
    {
        settled.Put(rule.id, item.Read(rule.id));
    }
    settled.Put(RecurrenceEndsByDate, EndsByDate(item));
    if (item.Kind() == ItemKind::Appointment)
    {
        for (const PropertyId bound : {Start, End, Duration})
        {
            settled.Put(bound, item.Read(bound));
        }
    }
    for (const auto& [id, value] : settled)
    {
        item.Put(id, value);
    }
}

} // namespace sandbox::outlook
