#include "calendar/CalendarPreview.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "links/Activities.h"

#include <algorithm>
#include <cmath>

namespace calendar
{

namespace
{

using automation::Date;
using automation::DateOf;
using automation::Object;
using automation::Recordset;
using automation::Value;
using exchange::LinkedValue;
using exchange::RecordedItem;
using exchange::RelationTable;

constexpr long long kMinutesPerDay = 1440;

// How Outlook keeps the times of an appointment in step.

Date DateIn(RecordedItem& item, const wchar_t* property)
{
    return automation::ReadableDate(item.Get(property)).value_or(Date{});
}

long long MinutesBetween(Date start, Date end)
{
    return std::llround((end.days - start.days) * static_cast<double>(kMinutesPerDay));
}

Date NextMidnight(Date date)
{
    const Date day = automation::DayOf(date);
    return day < date ? automation::PlusMinutes(day, kMinutesPerDay) : day;
}

// An all-day appointment begins and ends at midnight.
void KeepBounds(RecordedItem& item, Date start, Date end)
{
    if (automation::IsTrue(item.Get(L"AllDayEvent")))
    {
        start = automation::DayOf(start);
        end = std::max(NextMidnight(end), automation::PlusMinutes(start, kMinutesPerDay));
    }
    item.Keep(L"Start", start);
    item.Keep(L"End", end);
}

// The duration stays, so that the end moves along.
void PutStart(RecordedItem& item, const Value& value)
{
    const Date start = DateOf(value);
    KeepBounds(item, start,
               automation::PlusMinutes(start, MinutesBetween(DateIn(item, L"Start"), DateIn(item, L"End"))));
}

void PutEnd(RecordedItem& item, const Value& value)
{
    KeepBounds(item, DateIn(item, L"Start"), DateOf(value));
}

// A pattern has times of day, and may be given a text.
template<const wchar_t* property>
void PutTimeOfDay(RecordedItem& pattern, const Value& value)
{
    pattern.Keep(property, automation::MinuteOfDay(DateOf(value)));
}

constexpr wchar_t kStartTime[] = L"StartTime";
constexpr wchar_t kEndTime[] = L"EndTime";

constexpr exchange::Reaction kReactions[] = {
    {L"Start", PutStart},
    {L"End", PutEnd},
    {kStartTime, PutTimeOfDay<kStartTime>},
    {kEndTime, PutTimeOfDay<kEndTime>},
};

// A new pattern is weekly, on the day and at the time of the appointment.
void StartPattern(RecordedItem& item, RecordedItem& pattern)
{
    constexpr long kWeekly = 1;
    const Date start = DateIn(item, L"Start");
    pattern.Assume(kStartTime, automation::MinuteOfDay(start));
    pattern.Assume(kEndTime, automation::MinuteOfDay(DateIn(item, L"End")));
    pattern.Assume(L"PatternStartDate", automation::DayOf(start));
    pattern.Assume(L"RecurrenceType", kWeekly);
}

// The times of a recurring appointment are those of its first occurrence.
void SettleSeries(RecordedItem& item, RecordedItem& pattern)
{
    if (pattern.Changed().empty())
    {
        return;
    }
    const Date startTime = automation::MinuteOfDay(DateIn(pattern, kStartTime));
    const Date endTime = automation::MinuteOfDay(DateIn(pattern, kEndTime));
    const long long minutes = MinutesBetween(startTime, endTime);
    const Date start = automation::PlusTime(DateIn(pattern, L"PatternStartDate"), startTime);
    item.Keep(L"Start", start);
    item.Keep(L"End", automation::PlusMinutes(start, minutes < 0 ? minutes + kMinutesPerDay : minutes));
}

// The columns of the list

Value CategoryOfEntry(const Object& item)
{
    return item.Get(L"Categories");
}

Value CategoryOfEntryRow(const Recordset& rows, RelationTable& /*relations*/)
{
    return rows.ValueOf(L"F_ACTTYPE");
}

Value StartOfEntry(const Object& item)
{
    return item.Get(L"Start");
}

Value StartOfEntryRow(const Recordset& rows, RelationTable& /*relations*/)
{
    const auto day = automation::ReadableDate(rows.ValueOf(L"F_ACTESDATE"));
    const auto time = automation::ReadableDate(rows.ValueOf(L"F_ACTESTIME"));
    return day ? Value(automation::PlusTime(automation::DayOf(*day),
                                            automation::MinuteOfDay(time.value_or(Date{}))))
               : Value();
}

std::vector<LinkedValue> LinksOfEntry(const exchange::LinkSource& source)
{
    const auto account = links::PreviewTaskAccount(source.Catalogue, source.Item);
    if (!account)
    {
        return {};
    }
    const bool isNew = source.Mode == data::kNewRecord;
    return {{L"Companies", isNew ? Value() : source.HostRows.ValueOf(L"ACC_SNAME"), account->Name,
             account->IsNew}};
}

} // namespace

const exchange::KindPreview kCalendarPreview{
    .Group = {CategoryOfEntry, CategoryOfEntryRow},
    .Date = {StartOfEntry, StartOfEntryRow},
    .Behaviour = {.Reactions = kReactions, .StartPattern = StartPattern, .Settle = SettleSeries},
    .LinksOf = LinksOfEntry,
};

} // namespace calendar
