#include "calendar/CalendarToOutlook.h"
#include "automation/OutlookConstants.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Readable.h"
#include "calendar/CalendarRelations.h"
#include "calendar/Recurrence.h"
#include "data/Remark.h"
#include "exchange/ApplyToOutlook.h"
#include "exchange/MappingToOutlook.h"
#include "links/ContactLink.h"
#include "state/Failures.h"
#include "state/SharedState.h"

namespace calendar
{

using automation::Date;
using automation::IsTrue;
using automation::Object;
using automation::OutlookDate;
using automation::ReadableDate;
using automation::Value;
using exchange::PutAsIs;
using exchange::TargetProperty;

namespace
{

constexpr wchar_t kNoDate[] = L"A calendar entry without a date has been left out";
constexpr wchar_t kEndsTooEarly[] = L"A repeating entry that ends before it begins has been left out";

// Why an entry that repeats cannot become an appointment; null for no reason.
const wchar_t* ObstacleToRepetition(const automation::Recordset& rows)
{
    const std::optional<Date> firstDay = OutlookDate(rows.ValueOf(L"F_ACTESDATE"));
    const std::optional<Date> lastDay = OutlookDate(rows.ValueOf(L"F_ACTREPTEDATE"));
    if (!firstDay)
    {
        return NeedsReferenceDate(automation::TextOrEmpty(rows.ValueOf(L"FR_NAME"))) ? kNoDate : nullptr;
    }
    return lastDay && automation::DayOf(*lastDay) < automation::DayOf(*firstDay) ? kEndsTooEarly : nullptr;
}

// The same for any entry, by the relation rows that bear on it.
const wchar_t* Obstacle(exchange::Run& run)
{
    const automation::Recordset& rows = run.HostRows;
    for (const exchange::RelationRow& relation : run.Relations.Rows())
    {
        const bool isStart = relation.OutlookName == L"Start";
        if (isStart && !OutlookDate(rows.ValueOf(relation.EnglishName)))
        {
            return kNoDate;
        }
        const bool repeats =
            relation.OutlookName == L"IsRecurring" && IsTrue(rows.ValueOf(relation.EnglishName));
        const wchar_t* const obstacle = repeats ? ObstacleToRepetition(rows) : nullptr;
        if (obstacle != nullptr)
        {
            return obstacle;
        }
    }
    return nullptr;
}

// What cannot be an appointment is left out, before anything of it is written. The pass ends with the first
// entry that Outlook refuses.
void Write(exchange::Run& run, long mode, const Object& item)
{
    if (const wchar_t* const obstacle = Obstacle(run))
    {
        data::Remark(obstacle);
    }
    else if (SynSynCalendarToOlCalendar(run, mode, item))
    {
        throw automation::Error(E_FAIL, L"SynSynCalendarToOlCalendar");
    }
}

// A column that holds a time of day, to the minute; midnight where it holds none.
Date TimeOrMidnight(const Value& time)
{
    return automation::MinuteOfDay(ReadableDate(time).value_or(Date{}));
}

// Outlook ties start and end of a recurring appointment to its pattern, so they are left to that.
void PutStartAndEnd(const TargetProperty& property)
{
    if (IsTrue(property.Item.Get(L"IsRecurring")))
    {
        return;
    }
    const std::optional<Date> date = OutlookDate(property.HostValue);
    if (!date)
    {
        throw automation::Error(DISP_E_TYPEMISMATCH, property.Name, L"The entry has no date");
    }
    const Date day = automation::DayOf(*date);
    const Date start = automation::PlusTime(day, TimeOrMidnight(property.HostRows.ValueOf(L"F_ACTESTIME")));
    const Date duration = TimeOrMidnight(property.HostRows.ValueOf(L"ACT_DURATION"));
    property.Put(start);
    property.Item.Put(L"End", automation::PlusTime(start, duration));
}

bool MayBeLinked(const Object& contact)
{
    return !links::IsOfOutlook8(contact);
}

// Despite its key this adds a link; the appointment's recipients are never touched.
void LinkToContact(const TargetProperty& property)
{
    links::LinkContact(property.Item, property.HostValue, property.HostRows.ValueOf(L"CONTACT_GIVENNAME"),
                       MayBeLinked);
}

void PutReminder(const TargetProperty& property)
{
    exchange::PutTruth(property);
    if (IsTrue(property.HostValue))
    {
        property.Item.Put(L"ReminderMinutesBeforeStart", state::Shared().gCalendarPreviewAlarmTime);
    }
}

// As text, with the blank that the host's pattern begins with.
Value StartTimeText(Date time)
{
    return automation::Formatted(time, L" hh:mm:00");
}

Value TimeToTheMinute(Date time)
{
    return automation::MinuteOfDay(time);
}

Value AsItIs(Date date)
{
    return date;
}

struct PatternDate
{
    Value (*Converted)(Date date);
    Date (*Compared)(Date date); // what of it makes a difference
};

constexpr PatternDate kTimeAsText{StartTimeText, automation::MinuteOfDay};
constexpr PatternDate kTimeAsDate{TimeToTheMinute, automation::MinuteOfDay};
constexpr PatternDate kDayOfPattern{AsItIs, automation::DayOf};

void PutWhereGiven(const Object& pattern, const wchar_t* member, const std::optional<Date>& date,
                   const PatternDate& kind, Puts puts)
{
    if (!date)
    {
        return;
    }
    const std::optional<Date> present =
        puts == Puts::Changes ? ReadableDate(pattern.Get(member)) : std::nullopt;
    if (!present || !(kind.Compared(*present) == kind.Compared(*date)))
    {
        pattern.Put(member, kind.Converted(*date));
    }
}

// The order is part of the contract: Outlook ties the members together, so that another order gives another
// pattern.
void PutRecurrence(const TargetProperty& property)
{
    if (!IsTrue(property.HostValue))
    {
        return;
    }
    const automation::Recordset& rows = property.HostRows;
    const Value firstDay = rows.ValueOf(L"F_ACTESDATE");
    const Puts puts = IsTrue(property.Item.Get(L"IsRecurring")) ? Puts::Changes : Puts::Everything;
    const Object pattern = property.Item.GetObject(L"GetRecurrencePattern");
    PutWhereGiven(pattern, L"StartTime", ReadableDate(rows.ValueOf(L"F_ACTESTIME")), kTimeAsText, puts);
    PutWhereGiven(pattern, L"EndTime", ReadableDate(rows.ValueOf(L"F_ACTEETIME")), kTimeAsDate, puts);
    PutWhereGiven(pattern, L"PatternStartDate", OutlookDate(firstDay), kDayOfPattern, puts);
    SetRecurrenceByName(pattern, automation::TextOrEmpty(rows.ValueOf(L"FR_NAME")), firstDay, puts);
    if (puts == Puts::Everything || IsTrue(pattern.Get(L"NoEndDate")))
    {
        pattern.Put(L"NoEndDate", false);
    }
    PutWhereGiven(pattern, L"PatternEndDate", OutlookDate(rows.ValueOf(L"F_ACTREPTEDATE")), kDayOfPattern,
                  puts);
}

constexpr exchange::PropertyToOutlook kEntryToAppointment[] = {
    {L"Subject", PutAsIs},          {L"Start", PutStartAndEnd},    {L"Categories", PutAsIs},
    {L"Recipients", LinkToContact}, {L"ReminderSet", PutReminder}, {L"IsRecurring", PutRecurrence},
};

} // namespace

const exchange::PassToOutlook SynCalendarToOutlook{
    .ItemType = automation::kAppointmentItem,
    .RelationStatement = kRelationStatement,
    .RelationOptions = kRelationOptions,
    .Write = Write,
    .AddsItemFirst = true,
};

bool SynSynCalendarToOlCalendar(exchange::Run& run, long mode, const Object& item)
{
    return state::Trapped(true, [&] {
        if (mode == data::kNewRecord || mode == data::kExistingRecord)
        {
            exchange::WriteRelatedProperties(run, kEntryToAppointment, item, exchange::Saves::OnceAtTheEnd);
        }
        return false;
    });
}

} // namespace calendar
