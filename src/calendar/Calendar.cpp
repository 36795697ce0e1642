#include "calendar/Calendar.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Readable.h"
#include "calendar/AppointmentTimes.h"
#include "calendar/CalendarRange.h"
#include "calendar/Recurrence.h"
#include "data/Literals.h"
#include "data/Permissions.h"
#include "data/SqlFragments.h"
#include "exchange/MatchKeys.h"
#include "links/ContactLink.h"
#include "links/TaskLinks.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/ShowMessageBox.h"

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
using data::Demand;
using data::Host;
using data::RowColumns;
using exchange::PutAsIs;
using exchange::TargetProperty;

// Match keys and the filter of the host's rows

// An all-day appointment starts at midnight in Outlook, and is stored in the host with the start of the
// working day; it matches that. Only an appointment that starts at midnight is asked whether it is one.
Value StartOfItem(const Object& item)
{
    const std::optional<Date> start = automation::ReadableDate(item.Get(L"Start"));
    if (!start)
    {
        return Value::Null();
    }
    const bool isMidnight = automation::MinuteOfDay(*start) == Date{};
    return isMidnight && automation::IsTrue(item.Get(L"AllDayEvent"))
               ? automation::PlusTime(*start, state::Shared().gCalendarStartTime)
               : *start;
}

std::wstring KeyOfAppointment(const Object& item)
{
    const std::wstring subject = exchange::Comparable(item.Get(L"Subject"));
    const std::wstring category = exchange::ComparableCategory(item.Get(L"Categories"));
    return exchange::JoinedKey(subject, category,
                               exchange::ComparableDate(StartOfItem(item), L"yyyy/mm/dd hh:mm:00"));
}

// The start of a calendar row: its day and its time of day, which stand in columns of their own.
Value StartOfRow(const Recordset& rows)
{
    const std::optional<Date> day = automation::ReadableDate(rows.ValueOf(L"F_ACTESDATE"));
    const std::optional<Date> time = automation::ReadableDate(rows.ValueOf(L"F_ACTESTIME"));
    if (!day)
    {
        return Value::Null();
    }
    return automation::PlusTime(automation::DayOf(*day), automation::MinuteOfDay(time.value_or(Date{})));
}

std::wstring KeyOfCalendarRow(const Recordset& rows)
{
    const std::wstring name = exchange::Comparable(rows.ValueOf(L"F_ACTNAME"));
    const std::wstring type = exchange::ComparableCategory(rows.ValueOf(L"F_ACTTYPE"));
    return exchange::JoinedKey(name, type,
                               exchange::ComparableDate(StartOfRow(rows), L"yyyy/mm/dd hh:mm:00"));
}

std::wstring EntriesOfUser(const data::Host& host)
{
    return L"F_ACTORID=" + host.UserIdLiteral();
}

// Towards Outlook

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

// The same for any entry, by the relation rows that it depends on.
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

// Runs a step of the writer; an error is shown with the host column that was being processed, and gives
// failure.
template<typename Result, typename Step>
Result Reported(const RowColumns& entry, Result failure, Step&& step)
{
    return state::Trapped(failure, [&] {
        try
        {
            return step();
        }
        catch (const automation::Error& error)
        {
            ui::ShowMessageBox(entry.Column + L":" + error.Description(), MB_OK);
            throw;
        }
    });
}

// False when the lookup of the account has failed; the builder has shown why.
bool AddAccount(const Object& item, RowColumns& entry)
{
    using links::UndoneBy;
    return entry.Mode() == data::kNewRecord
               ? links::ChangeAddTaskAccount(entry.Catalogue(), item, entry.Fields, entry.Values,
                                             UndoneBy::Hand) == 0
               : links::ChangeEditTaskAccount(entry.Catalogue(), item, entry.SetList, UndoneBy::Hand) == 0;
}

// False when the appointment is not to be written.
bool Complete(exchange::Run& run, const Object& item, RowColumns& entry)
{
    exchange::ItemProperties properties(item);
    return exchange::AddRelatedColumns(run.Relations, kAppointmentToEntry, exchange::Unmapped::LeftOut,
                                       properties, entry) &&
           AddAccount(item, entry);
}

void Insert(const Host& host, RowColumns& entry)
{
    const std::wstring id = host.NewGuid();
    const std::wstring user = host.UserIdLiteral();
    data::AppendEntry(entry.Fields, L"F_ACTORID,F_CREATORID,F_ACTID");
    data::AppendEntry(entry.Values, user + L"," + user + L"," + data::QuotedText(id));
    Demand(host.Insert(L"TBLACTIVITY", entry.Fields, entry.Values, id) >= 0, L"Insert");
}

void Update(const Host& host, const automation::Recordset& rows, const RowColumns& entry)
{
    if (!entry.SetList.empty())
    {
        const std::wstring id = automation::TextOf(rows.ValueOf(L"F_ACTID"));
        Demand(host.Update(L"TBLACTIVITY", entry.SetList, L"F_ACTID=" + data::QuotedText(id)) == 0,
               L"Update");
    }
}

void Save(const exchange::Run& run, RowColumns& entry)
{
    const Host host;
    if (entry.Mode() == data::kNewRecord)
    {
        Insert(host, entry);
    }
    else
    {
        Update(host, run.HostRows, entry);
    }
    state::WriteLog(L"A calendar entry has been written");
}

} // namespace

bool SynSynCalendarToOlCalendar(exchange::Run& run, data::RecordMode mode, const Object& item)
{
    return state::Trapped(true, [&] {
        if (mode == data::kNewRecord || mode == data::kExistingRecord)
        {
            exchange::WriteRelatedProperties(run, kEntryToAppointment, item, exchange::Saves::OnceAtTheEnd);
        }
        return false;
    });
}

long SynOlCalendarToSynCalendar(exchange::Run& run, data::RecordMode mode, const Object& item)
{
    if (mode != data::kNewRecord && mode != data::kExistingRecord)
    {
        return 0;
    }
    RowColumns entry(run.Catalogue, mode);
    const bool isComplete = Reported(entry, false, [&] { return Complete(run, item, entry); });
    return isComplete ? Reported(entry, -1L,
                                 [&] {
                                     Save(run, entry);
                                     return 0L;
                                 })
                      : 0L;
}

constexpr wchar_t kRelationStatement[] = L"Select * From SynRelation Where QuenlarTblName='VW_CALENDAR'";

constexpr exchange::PassToOutlook SynCalendarToOutlook{
    .ItemType = exchange::kCalendarName.OutlookItemType,
    .RelationStatement = kRelationStatement,
    .RelationOptions = exchange::kOnTheClient,
    .Mapping = kEntryToAppointment,
    .Obstacle = Obstacle,
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
    .Match = {KeyOfAppointment, nullptr, KeyOfCalendarRow, nullptr},
    .FiltersOf = WithinCalendarRange,
    .ToOutlook = SynCalendarToOutlook,
    .FromOutlook = SynCalendarFromOutlook,
};

} // namespace calendar
