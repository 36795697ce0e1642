#include "calendar/CalendarToOutlook.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "calendar/CalendarRelations.h"
#include "calendar/Recurrence.h"
#include "data/ApplyToOutlook.h"
#include "data/MappingToOutlook.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "tasks/ContactLink.h"

namespace calendar
{

using automation::Date;
using automation::DateOf;
using automation::IsAbsent;
using automation::IsEmptyOrNull;
using automation::Object;
using automation::TruthOf;
using automation::Value;
using data::PutAsIs;
using data::TargetProperty;

namespace
{

// The pass ends with the first entry that cannot be written.
void Write(data::Run& run, long mode, const Object& item)
{
    if (SynSynCalendarToOlCalendar(run, mode, item))
    {
        throw automation::Error(E_FAIL, L"SynSynCalendarToOlCalendar");
    }
}

constexpr data::PassToOutlook kCalendarToOutlook{
    .ItemType = data::kAppointmentItem,
    .RelationStatement = kRelationStatement,
    .RelationOptions = kRelationOptions,
    .Write = Write,
};

// A column that holds a time of day, to the minute; midnight where it holds none.
Date TimeOrMidnight(const Value& time)
{
    return IsAbsent(time) ? Date{} : automation::MinuteOfDay(DateOf(time));
}

// Outlook ties start and end of a recurring appointment to its pattern, so they are left to that.
void PutStartAndEnd(const TargetProperty& property)
{
    if (TruthOf(property.Item.Get(L"IsRecurring")))
    {
        return;
    }
    if (IsEmptyOrNull(property.HostValue))
    {
        throw automation::Error(DISP_E_TYPEMISMATCH, property.Name, L"The entry has no date");
    }
    const Date day = automation::DayOf(DateOf(property.HostValue));
    const Date start = automation::PlusTime(day, TimeOrMidnight(property.HostRows.ValueOf(L"F_ACTESTIME")));
    const Date duration = TimeOrMidnight(property.HostRows.ValueOf(L"ACT_DURATION"));
    property.Put(start);
    property.Item.Put(L"End", automation::PlusTime(start, duration));
}

bool MayBeLinked(const Object& contact)
{
    return !tasks::IsOfOutlook8(contact);
}

// Despite its key this adds a link; the appointment's recipients are never touched.
void LinkToContact(const TargetProperty& property)
{
    tasks::LinkContact(property.Item, property.HostValue, property.HostRows.ValueOf(L"CONTACT_GIVENNAME"),
                       MayBeLinked);
}

void PutReminder(const TargetProperty& property)
{
    PutAsIs(property);
    if (TruthOf(property.HostValue))
    {
        property.Item.Put(L"ReminderMinutesBeforeStart", state::Shared().gCalendarPreviewAlarmTime);
    }
}

// As text, with the blank that the host's pattern begins with.
Value StartTimeText(const Value& time)
{
    return automation::Formatted(DateOf(time), L" hh:mm:00");
}

Value TimeToTheMinute(const Value& time)
{
    return automation::MinuteOfDay(DateOf(time));
}

Value AsItIs(const Value& value)
{
    return value;
}

void PutWhereGiven(const Object& pattern, const wchar_t* member, const Value& value,
                   Value (*converted)(const Value& value))
{
    if (!IsAbsent(value))
    {
        pattern.Put(member, converted(value));
    }
}

// The order is part of the contract: Outlook ties the members together, so that another order gives another
// pattern.
void PutRecurrence(const TargetProperty& property)
{
    if (!TruthOf(property.HostValue))
    {
        return;
    }
    const automation::Recordset& rows = property.HostRows;
    const Value firstDay = rows.ValueOf(L"F_ACTESDATE");
    const Object pattern = property.Item.GetObject(L"GetRecurrencePattern");
    PutWhereGiven(pattern, L"StartTime", rows.ValueOf(L"F_ACTESTIME"), StartTimeText);
    PutWhereGiven(pattern, L"EndTime", rows.ValueOf(L"F_ACTEETIME"), TimeToTheMinute);
    PutWhereGiven(pattern, L"PatternStartDate", firstDay, AsItIs);
    SetRecurrenceByName(pattern, automation::TextOrEmpty(rows.ValueOf(L"FR_NAME")), firstDay);
    pattern.Put(L"NoEndDate", false);
    PutWhereGiven(pattern, L"PatternEndDate", rows.ValueOf(L"F_ACTREPTEDATE"), AsItIs);
}

constexpr data::PropertyToOutlook kEntryToAppointment[] = {
    {L"Subject", PutAsIs},          {L"Start", PutStartAndEnd},    {L"Categories", PutAsIs},
    {L"Recipients", LinkToContact}, {L"ReminderSet", PutReminder}, {L"IsRecurring", PutRecurrence},
};

} // namespace

bool SynCalendarToOutlook(data::Run& run)
{
    return data::ApplyToOutlook(run, kCalendarToOutlook);
}

bool SynSynCalendarToOlCalendar(data::Run& run, long mode, const Object& item)
{
    return state::Trapped(true, [&] {
        if (mode == data::kNewRecord || mode == data::kExistingRecord)
        {
            data::WriteRelatedProperties(run, kEntryToAppointment, item, data::Saves::OnceAtTheEnd);
        }
        return false;
    });
}

} // namespace calendar
