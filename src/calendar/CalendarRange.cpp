#include "calendar/CalendarRange.h"

#include "automation/Dates.h"
#include "automation/Readable.h"

namespace calendar
{

namespace
{

using automation::Date;
using automation::IsTrue;
using automation::Object;
using automation::ReadableDate;
using automation::Recordset;
using automation::Value;

// Later than every date that automation can hold.
constexpr Date kNever{3000000};

constexpr const wchar_t* kFilterColumns[] = {L"Start", L"IsRecurring", L"End"};

Date DayOrZero(const Value& value)
{
    return automation::DayOf(ReadableDate(value).value_or(Date{}));
}

Date TimeOrZero(const Value& value)
{
    return automation::MinuteOfDay(ReadableDate(value).value_or(Date{}));
}

Date EndOfDay(Date day)
{
    return {automation::DayOf(day).days + 1}; // a whole number, also for the last day that there is
}

// The last moment of what repeats: without a last date it never ends.
Date EndOfRepetition(const Value& lastDay)
{
    const std::optional<Date> day = ReadableDate(lastDay);
    return day ? EndOfDay(*day) : kNever;
}

// An end before the start is one on the next day.
Date EndOfSingleRow(const Recordset& rows, Date start)
{
    const std::optional<Date> endTime = ReadableDate(rows.ValueOf(L"F_ACTEETIME"));
    if (!endTime)
    {
        return start;
    }
    const Date end = automation::PlusTime(automation::DayOf(start), automation::MinuteOfDay(*endTime));
    return automation::IsEarlier(end, start) ? automation::PlusMinutes(end, 1440) : end;
}

Date EndOfPattern(const Object& item)
{
    const Object pattern = item.GetObject(L"GetRecurrencePattern");
    return IsTrue(pattern.Get(L"NoEndDate")) ? kNever : EndOfRepetition(pattern.Get(L"PatternEndDate"));
}

} // namespace

bool IsWithinRange(const EntrySpan& span, const state::SynParameter& parameter, Date now)
{
    if (parameter.CalendarTransItem == state::kFutureEntries)
    {
        return span.Last > now;
    }
    if (parameter.CalendarTransItem == state::kEntriesWithinDays)
    {
        const Date today = automation::DayOf(now);
        const Date first{today.days - parameter.CalendarPrior};
        const Date afterLast{today.days + parameter.CalendarAfter + 1};
        // An entry without a length lies in the range when its moment does.
        return span.First < afterLast && (span.Last > first || span.First >= first);
    }
    return true;
}

EntrySpan SpanOfRow(const Recordset& rows)
{
    const Date day = DayOrZero(rows.ValueOf(L"F_ACTESDATE"));
    const Date start = automation::PlusTime(day, TimeOrZero(rows.ValueOf(L"F_ACTESTIME")));
    const bool repeats = !rows.NameIn(L"FR_NAME").empty();
    return {start, repeats ? EndOfRepetition(rows.ValueOf(L"F_ACTREPTEDATE")) : EndOfSingleRow(rows, start)};
}

EntrySpan SpanOfItem(const automation::ItemView& item)
{
    const Date start = ReadableDate(item.Get(L"Start")).value_or(Date{});
    const bool repeats = IsTrue(item.Get(L"IsRecurring"));
    return {start, repeats ? EndOfPattern(item.Item()) : ReadableDate(item.Get(L"End")).value_or(start)};
}

exchange::Filters WithinCalendarRange(const state::SynParameter& parameter, const data::Host& host)
{
    const bool isRestricted = parameter.CalendarTransItem == state::kFutureEntries ||
                              parameter.CalendarTransItem == state::kEntriesWithinDays;
    if (!isRestricted)
    {
        return {};
    }
    const Date now = host.SysDateTime();
    return {
        [parameter, now](const Recordset& rows) { return IsWithinRange(SpanOfRow(rows), parameter, now); },
        [parameter, now](const automation::ItemView& item) {
            return IsWithinRange(SpanOfItem(item), parameter, now);
        },
        kFilterColumns,
    };
}

} // namespace calendar
