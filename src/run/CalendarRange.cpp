#include "run/CalendarRange.h"

#include "automation/Dates.h"

namespace run
{

namespace
{

using automation::Date;
using automation::DateOf;
using automation::IsEmptyOrNull;
using automation::Object;
using automation::Recordset;
using automation::TruthOf;
using automation::Value;

// Later than every date that automation can hold.
constexpr Date kNever{3000000};

Date DayOrZero(const Value& value)
{
    return IsEmptyOrNull(value) ? Date{} : automation::DayOf(DateOf(value));
}

Date TimeOrZero(const Value& value)
{
    return IsEmptyOrNull(value) ? Date{} : automation::MinuteOfDay(DateOf(value));
}

Date EndOfDay(Date day)
{
    return {automation::DayOf(day).days + 1}; // a whole number, also for the last day that there is
}

// The last moment of a row that repeats: without a last date it never ends.
Date EndOfRepeatingRow(const Recordset& rows)
{
    const Value lastDay = rows.ValueOf(L"F_ACTREPTEDATE");
    return IsEmptyOrNull(lastDay) ? kNever : EndOfDay(DateOf(lastDay));
}

// An end before the start is one on the next day.
Date EndOfSingleRow(const Recordset& rows, Date start)
{
    const Value endTime = rows.ValueOf(L"F_ACTEETIME");
    if (IsEmptyOrNull(endTime))
    {
        return start;
    }
    const Date end = automation::PlusTime(automation::DayOf(start), TimeOrZero(endTime));
    return automation::IsEarlier(end, start) ? automation::PlusMinutes(end, 1440) : end;
}

Date EndOfPattern(const Object& item)
{
    const Object pattern = item.GetObject(L"GetRecurrencePattern");
    return TruthOf(pattern.Get(L"NoEndDate")) ? kNever : EndOfDay(DateOf(pattern.Get(L"PatternEndDate")));
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
    const bool repeats = !automation::TextOrEmpty(rows.ValueOf(L"FR_NAME")).empty();
    return {start, repeats ? EndOfRepeatingRow(rows) : EndOfSingleRow(rows, start)};
}

EntrySpan SpanOfItem(const Object& item)
{
    const Date start = DateOf(item.Get(L"Start"));
    const bool repeats = TruthOf(item.Get(L"IsRecurring"));
    return {start, repeats ? EndOfPattern(item) : DateOf(item.Get(L"End"))};
}

Filters WithinCalendarRange(const state::SynParameter& parameter, const data::Host& host)
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
        [parameter, now](const Object& item) { return IsWithinRange(SpanOfItem(item), parameter, now); },
    };
}

} // namespace run
