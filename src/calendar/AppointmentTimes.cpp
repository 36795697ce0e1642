#include "calendar/AppointmentTimes.h"

#include "automation/Dates.h"
#include "calendar/Recurrence.h"
#include "state/SharedState.h"

namespace calendar
{

using automation::Date;
using automation::DateOf;
using automation::MinuteOfDay;
using automation::Object;
using automation::Value;
using data::HostRow;
using exchange::HostValue;
using exchange::ItemProperties;
using exchange::SourceProperty;

namespace
{

// F_ACTREPTIDX of an entry that repeats daily; no other repetition is marked.
constexpr long kRepeatsDaily = 1;
constexpr long kMinutesOfDay = 1440;
constexpr automation::Moment kLastMinuteOfDay{.hour = 23, .minute = 59};

bool IsAllDay(ItemProperties& item)
{
    return automation::TruthOf(item.ValueOf(L"AllDayEvent"));
}

bool IsRecurring(ItemProperties& item)
{
    return automation::TruthOf(item.ValueOf(L"IsRecurring"));
}

// Call only for recurring appointments: GetRecurrencePattern makes a single appointment recurring.
Object PatternOf(ItemProperties& item)
{
    return automation::ObjectOf(item.ValueOf(L"GetRecurrencePattern"));
}

Date DateIn(const Object& pattern, const wchar_t* member)
{
    return DateOf(pattern.Get(member));
}

// The host keeps an all-day entry with the hours of its working day.
Value StartTimeOf(ItemProperties& item)
{
    if (IsAllDay(item))
    {
        return state::Shared().gCalendarStartTime;
    }
    if (!IsRecurring(item))
    {
        return item.ValueOf(L"Start");
    }
    const Object pattern = PatternOf(item);
    return automation::PlusTime(automation::DayOf(DateIn(pattern, L"PatternStartDate")),
                                MinuteOfDay(DateIn(pattern, L"StartTime")));
}

void AddEnd(HostRow& entry, const Value& day, const Value& time)
{
    entry.Add(L"F_ACTEEDATE", day);
    entry.Add(L"F_ACTEETIME", time);
}

// An entry of the host ends on its first day, whatever the appointment does.
void AddSingleEnd(ItemProperties& item, HostRow& entry)
{
    const Value& start = item.ValueOf(L"Start");
    const Value& end = item.ValueOf(L"End");
    const bool endsOnFirstDay = automation::DayOf(DateOf(end)) == automation::DayOf(DateOf(start));
    AddEnd(entry, start, endsOnFirstDay ? end : Value(DateOf(kLastMinuteOfDay)));
}

// The times are compared as times of day: a pattern over midnight starts later than it ends.
void AddRecurringEnd(ItemProperties& item, HostRow& entry)
{
    const Object pattern = PatternOf(item);
    const Value firstDay = pattern.Get(L"PatternStartDate");
    const Value endTime = pattern.Get(L"EndTime");
    const Date start = MinuteOfDay(DateIn(pattern, L"StartTime"));
    const Date end = MinuteOfDay(DateOf(endTime));
    const bool isMarked = automation::LongOf(pattern.Get(L"RecurrenceType")) == kDailyPattern &&
                          start < end && automation::LongOf(pattern.Get(L"Duration")) <= kMinutesOfDay;
    if (isMarked)
    {
        entry.Add(L"F_ACTREPTIDX", kRepeatsDaily);
    }
    AddEnd(entry, firstDay, start > end ? Value(state::Shared().gCalendarEndTime) : endTime);
    if (isMarked)
    {
        entry.Add(L"F_ACTREPTEDATE", pattern.Get(L"PatternEndDate"));
    }
}

} // namespace

HostValue ReadStart(const SourceProperty& property)
{
    property.Record.Add(L"F_ACTESTIME", StartTimeOf(property.Item));
    return Value(automation::DayOf(DateOf(property.Item.ValueOf(property.Name))));
}

HostValue ReadIsRecurring(const SourceProperty& property)
{
    if (IsAllDay(property.Item))
    {
        AddEnd(property.Record, property.Item.ValueOf(L"Start"), state::Shared().gCalendarEndTime);
    }
    else if (IsRecurring(property.Item))
    {
        AddRecurringEnd(property.Item, property.Record);
    }
    else
    {
        AddSingleEnd(property.Item, property.Record);
    }
    return exchange::ReadAsIs(property);
}

} // namespace calendar
