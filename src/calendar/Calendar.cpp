#include "calendar/Calendar.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "calendar/CalendarFromOutlook.h"
#include "calendar/CalendarRange.h"
#include "calendar/CalendarToOutlook.h"
#include "data/Permissions.h"
#include "exchange/MatchKeys.h"
#include "state/SharedState.h"

namespace calendar
{

namespace
{

using automation::Date;
using automation::Object;
using automation::Recordset;
using automation::Value;

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

} // namespace

const exchange::Kind kCalendar{
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
