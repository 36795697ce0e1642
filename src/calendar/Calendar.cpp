#include "calendar/Calendar.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Readable.h"
#include "calendar/AppointmentTimes.h"
#include "calendar/CalendarPreview.h"
#include "calendar/CalendarRange.h"
#include "calendar/Recurrence.h"
#include "data/Permissions.h"
#include "exchange/MatchKeys.h"
#include "links/Activities.h"
#include "links/ContactLink.h"
#include "state/Remarks.h"
#include "state/SharedState.h"
#include "ui/ShowError.h"

namespace calendar
{

namespace
{

using automation::Date;
using automation::IsTrue;
using automation::Object;
using automation::OutlookDate;
using automation::ReadableDate;
using automation::Recordset;
using automation::Value;
using exchange::PutAsIs;
using exchange::TargetProperty;

// Match keys and the filter of the host's rows

// An all-day appointment starts at midnight in Outlook, and is stored in the host with the start of the
// working day; it matches that. Only an appointment that starts at midnight is asked whether it is one.
Value StartOfItem(const automation::ItemView& item)
{
    const std::optional<Date> start = automation::ReadableDate(item.Get(L"Start"));
    if (!start)
    {
        return Value::Null();
    }
    const automation::Moment moment = automation::MomentOf(*start);
    return moment.hour == 0 && moment.minute == 0 && automation::IsTrue(item.Get(L"AllDayEvent"))
               ? automation::PlusTime(*start, state::Shared().gCalendarStartTime)
               : *start;
}

constexpr wchar_t kMinute[] = L"yyyy/mm/dd hh:mm:00";

std::wstring KeyOfAppointment(const automation::ItemView& item)
{
    return exchange::JoinedKey({item.Get(L"Subject"), item.Get(L"Categories"), StartOfItem(item)}, kMinute);
}

// The start of a calendar row: its day and its time of day, which have columns of their own.
Value StartOfRow(const Recordset& rows)
{
    const std::optional<Date> day = automation::ReadableDate(rows.ValueOf(L"F_ACTESDATE"));
    const std::optional<Date> time = automation::ReadableDate(rows.ValueOf(L"F_ACTESTIME"));
    if (!day)
    {
        return Value::Null();
    }
    const automation::Moment date = automation::MomentOf(*day);
    const automation::Moment timeOfDay = automation::MomentOf(time.value_or(Date{}));
    return automation::DateOf(
        automation::Moment{date.year, date.month, date.day, timeOfDay.hour, timeOfDay.minute});
}

std::wstring KeyOfCalendarRow(const Recordset& rows)
{
    return exchange::JoinedKey({rows.ValueOf(L"F_ACTNAME"), rows.ValueOf(L"F_ACTTYPE"), StartOfRow(rows)},
                               kMinute);
}

constexpr const wchar_t* kKeyColumns[] = {L"Subject", L"Categories", L"Start", L"AllDayEvent"};

std::wstring EntriesOfUser(const data::Host& host)
{
    return L"F_ACTORID=" + host.UserIdLiteral();
}

// Towards Outlook

// Why an entry that repeats cannot become an appointment; nothing for no reason.
exchange::Obstacle ObstacleToRepetition(const automation::Recordset& rows)
{
    const std::optional<Date> firstDay = OutlookDate(rows.ValueOf(L"F_ACTESDATE"));
    const std::optional<Date> lastDay = OutlookDate(rows.ValueOf(L"F_ACTREPTEDATE"));
    if (!firstDay)
    {
        const bool isNeeded = NeedsReferenceDate(rows.NameIn(L"FR_NAME"));
        return isNeeded ? exchange::Obstacle(state::Cause::NoDate) : std::nullopt;
    }
    const bool endsTooEarly = lastDay && automation::DayOf(*lastDay) < automation::DayOf(*firstDay);
    return endsTooEarly ? exchange::Obstacle(state::Cause::EndsTooEarly) : std::nullopt;
}

// The same for any entry, by the relation rows that it depends on.
exchange::Obstacle ObstacleTo(exchange::Run& run)
{
    const automation::Recordset& rows = run.HostRows;
    for (const exchange::RelationRow& relation : run.Relations.Rows())
    {
        const bool isStart = relation.OutlookName == L"Start";
        if (isStart && !OutlookDate(rows.ValueOf(relation.EnglishName)))
        {
            return state::Cause::NoDate;
        }
        const bool repeats =
            relation.OutlookName == L"IsRecurring" && IsTrue(rows.ValueOf(relation.EnglishName));
        const exchange::Obstacle obstacle = repeats ? ObstacleToRepetition(rows) : std::nullopt;
        if (obstacle)
        {
            return obstacle;
        }
    }
    return std::nullopt;
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

void PutRecurrence(const TargetProperty& property)
{
    if (IsTrue(property.HostValue))
    {
        WritePattern(property.Item, property.HostRows);
    }
}

void PutReminder(const TargetProperty& property)
{
    exchange::PutTruth(property);
    if (IsTrue(property.HostValue))
    {
        property.Item.Put(L"ReminderMinutesBeforeStart", state::Shared().gCalendarPreviewAlarmTime);
    }
}

constexpr exchange::PropertyToOutlook kEntryToAppointment[] = {
    {L"Subject", PutAsIs},          {L"Start", PutStartAndEnd},    {L"Categories", PutAsIs},
    {L"Recipients", LinkToContact}, {L"ReminderSet", PutReminder}, {L"IsRecurring", PutRecurrence},
};

// The writer reports an error by its result; the pass ends with the first one.
void WriteAppointment(exchange::Run& run, data::RecordMode mode, const Object& item)
{
    if (SynSynCalendarToOlCalendar(run, mode, item))
    {
        throw automation::Error(E_FAIL, L"SynSynCalendarToOlCalendar");
    }
}

// From Outlook

constexpr exchange::PropertyFromOutlook kAppointmentToEntry[] = {
    {L"Subject", exchange::ReadUnlessEmpty}, {L"Categories", exchange::ReadCategories}, {L"Start", ReadStart},
    {L"ReminderSet", exchange::ReadAsIs},    {L"IsRecurring", ReadIsRecurring},
};

// The host column that was being processed: that of the conversion, else the last one.
std::wstring ColumnOf(const automation::Error& error, const exchange::Run& run)
{
    const auto* const inColumn = dynamic_cast<const exchange::ColumnError*>(&error);
    return inColumn != nullptr ? inColumn->Column() : run.Relations.LastColumn();
}

// Runs a step of the writer; shows an error with the host column. True for failure.
template<typename Step>
bool Reported(const exchange::Run& run, Step&& step)
{
    return state::FailedAndTold([&] {
        try
        {
            step();
        }
        catch (const automation::Error& error)
        {
            ui::ShowAndThrow(error, ColumnOf(error, run), MB_OK);
        }
    });
}

void AddAccount(const automation::ItemView& item, data::InsertRow& entry)
{
    links::ChangeAddTaskAccount(item, entry, links::Rollback::ByDeletion);
}

void AddAccount(const automation::ItemView& item, data::UpdateRow& entry)
{
    links::ChangeEditTaskAccount(item, entry, links::Rollback::ByDeletion);
}

void Save(const exchange::Run& /*run*/, data::InsertRow& entry)
{
    links::InsertActivity(data::Host(), entry, L"F_ACTORID,F_CREATORID,F_ACTID");
}

void Save(const exchange::Run& run, const data::UpdateRow& entry)
{
    if (!entry.SetList().empty())
    {
        links::UpdateActivity(data::Host(), entry, run.HostRows);
    }
}

// Row: data::InsertRow or data::UpdateRow. Returns -1 when the host has refused the row.
template<typename Row>
long WriteEntry(exchange::Run& run, const automation::ItemView& item)
{
    Row entry(run.Catalogue);
    bool hasSubject = false;
    const bool failed = Reported(run, [&] {
        exchange::ItemProperties properties(item);
        hasSubject = exchange::AddRelatedColumns(run.Relations, kAppointmentToEntry,
                                                 exchange::Unmapped::LeftOut, properties, entry);
        if (hasSubject)
        {
            AddAccount(item, entry);
        }
    });
    if (failed || !hasSubject)
    {
        return 0;
    }
    if (Reported(run, [&] { Save(run, entry); }))
    {
        return -1;
    }
    state::WriteLog(L"A calendar entry has been written");
    return 0;
}

} // namespace

bool SynSynCalendarToOlCalendar(exchange::Run& run, data::RecordMode mode, const Object& item)
{
    return state::FailedAndTold([&] {
        if (mode == data::kNewRecord || mode == data::kExistingRecord)
        {
            exchange::WriteRelatedProperties(run, kEntryToAppointment, item, exchange::Saves::OnceAtTheEnd);
        }
    });
}

long SynOlCalendarToSynCalendar(exchange::Run& run, data::RecordMode mode, const automation::ItemView& item)
{
    switch (mode)
    {
    case data::kNewRecord: return WriteEntry<data::InsertRow>(run, item);
    case data::kExistingRecord: return WriteEntry<data::UpdateRow>(run, item);
    default: return 0;
    }
}

constexpr wchar_t kRelationStatement[] = L"Select * From SynRelation Where QuenlarTblName='VW_CALENDAR'";

constexpr exchange::PassToOutlook SynCalendarToOutlook{
    .ItemType = exchange::kCalendarName.OutlookItemType,
    .RelationStatement = kRelationStatement,
    .RelationOptions = exchange::kOnTheClient,
    .Mapping = kEntryToAppointment,
    .ObstacleTo = ObstacleTo,
    .Write = WriteAppointment,
    .AddsItemFirst = true,
};

constexpr exchange::PassFromOutlook SynCalendarFromOutlook{
    .RelationStatement = kRelationStatement,
    .RelationOptions = exchange::kOnTheClient,
    .Mapping = kAppointmentToEntry,
    .Write = SynOlCalendarToSynCalendar,
};

constexpr exchange::Kind kCalendar{
    .Name = exchange::kCalendarName,
    .RecordSource = L"Calendar",
    .KeyColumn = L"F_ACTID",
    .SourceFilter = EntriesOfUser,
    .SucceedsWithoutHostRows = false,
    .AppliesFromOutlookFirst = false,
    .CollectToOutlookTextId = IDS_RUN_APPLYING,
    .PermissionKind = data::kAccountCalendarRecord,
    .Match = {KeyOfAppointment, nullptr, KeyOfCalendarRow, nullptr, {L"IPM.Appointment", kKeyColumns, false}},
    .NameOfItem = exchange::SubjectOfItem,
    .NameOfRow = exchange::SubjectOfRow,
    .FiltersOf = WithinCalendarRange,
    .ToOutlook = SynCalendarToOutlook,
    .FromOutlook = SynCalendarFromOutlook,
    .Preview = kCalendarPreview,
};

} // namespace calendar
