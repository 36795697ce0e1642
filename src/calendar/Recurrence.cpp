#include "calendar/Recurrence.h"

#include "automation/Dates.h"
#include "automation/Readable.h"

#include <algorithm>
#include <iterator>

namespace calendar
{

using automation::Date;
using automation::IsTrue;
using automation::Object;
using automation::OutlookDate;
using automation::ReadableDate;
using automation::Value;

namespace
{

// A pattern and how it is written.
struct Target
{
    const Object& Pattern;
    Writes How;

    void Put(const wchar_t* member, long number) const
    {
        if (How == Writes::Everything || automation::LongOf(Pattern.Get(member)) != number)
        {
            Pattern.Put(member, number);
        }
    }
};

void PutWeekday(const Target& target, Date reference)
{
    target.Put(L"DayOfWeekMask", WeekdayToDayMask(static_cast<short>(automation::WeekdayOf(reference))));
}

void PutDay(const Target& target, Date reference)
{
    target.Put(L"DayOfMonth", automation::MomentOf(reference).day);
}

void PutMonthAndDay(const Target& target, Date reference)
{
    target.Put(L"MonthOfYear", automation::MomentOf(reference).month);
    PutDay(target, reference);
}

constexpr long kNoInterval = 0;

struct RepeatRule
{
    const wchar_t* Name; // the host's own text, in both interface languages
    long RecurrenceType;
    long Interval;                                            // not set when kNoInterval
    void (*PutFurther)(const Target& target, Date reference); // null for none
};

// Outlook knows neither quarters nor half-years: they are months with an interval.
constexpr RepeatRule kRules[] = {
    {L"每天", kDailyPattern, 1, nullptr},                   // daily
    {L"每周", kWeeklyPattern, 1, PutWeekday},               // weekly
    {L"每月", kMonthlyPattern, 1, PutDay},                  // monthly
    {L"每季", kMonthlyPattern, 3, PutDay},                  // quarterly
    {L"每半年", kMonthlyPattern, 6, PutDay},                // half-yearly
    {L"每年", kYearlyPattern, kNoInterval, PutMonthAndDay}, // yearly
};

// Null for a name that is no rule.
const RepeatRule* FindRule(const std::wstring& name)
{
    const auto rule = std::ranges::find_if(kRules, [&](const RepeatRule& each) { return name == each.Name; });
    return rule == std::end(kRules) ? nullptr : rule;
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
                   const PatternDate& kind, Writes writes)
{
    if (!date)
    {
        return;
    }
    const std::optional<Date> present =
        writes == Writes::ChangesOnly ? ReadableDate(pattern.Get(member)) : std::nullopt;
    if (!present || !(kind.Compared(*present) == kind.Compared(*date)))
    {
        pattern.Put(member, kind.Converted(*date));
    }
}

} // namespace

short WeekdayToDayMask(short weekday)
{
    return weekday >= 1 && weekday <= 7 ? static_cast<short>(1 << (weekday - 1)) : short{0};
}

bool NeedsReferenceDate(const std::wstring& name)
{
    const RepeatRule* const rule = FindRule(name);
    return rule != nullptr && rule->PutFurther != nullptr;
}

long SetRecurrenceByName(const Object& pattern, const std::wstring& name, const Value& reference,
                         Writes writes)
{
    const RepeatRule* const rule = FindRule(name);
    if (rule == nullptr)
    {
        return 0;
    }
    const Target target{pattern, writes};
    target.Put(L"RecurrenceType", rule->RecurrenceType);
    if (rule->Interval != kNoInterval)
    {
        target.Put(L"Interval", rule->Interval);
    }
    if (rule->PutFurther != nullptr)
    {
        rule->PutFurther(target, automation::DateOf(reference));
    }
    return 0;
}

void WritePattern(const Object& appointment, const automation::Recordset& rows)
{
    const Value firstDay = rows.ValueOf(L"F_ACTESDATE");
    const Writes writes = IsTrue(appointment.Get(L"IsRecurring")) ? Writes::ChangesOnly : Writes::Everything;
    const Object pattern = appointment.GetObject(L"GetRecurrencePattern");
    PutWhereGiven(pattern, L"StartTime", ReadableDate(rows.ValueOf(L"F_ACTESTIME")), kTimeAsText, writes);
    PutWhereGiven(pattern, L"EndTime", ReadableDate(rows.ValueOf(L"F_ACTEETIME")), kTimeAsDate, writes);
    PutWhereGiven(pattern, L"PatternStartDate", OutlookDate(firstDay), kDayOfPattern, writes);
    SetRecurrenceByName(pattern, rows.NameIn(L"FR_NAME"), firstDay, writes);
    if (writes == Writes::Everything || IsTrue(pattern.Get(L"NoEndDate")))
    {
        pattern.Put(L"NoEndDate", false);
    }
    PutWhereGiven(pattern, L"PatternEndDate", OutlookDate(rows.ValueOf(L"F_ACTREPTEDATE")), kDayOfPattern,
                  writes);
}

} // namespace calendar
