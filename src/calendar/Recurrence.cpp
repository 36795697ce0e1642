#include "calendar/Recurrence.h"

#include "automation/Dates.h"

#include <algorithm>
#include <iterator>

namespace calendar
{

using automation::Date;
using automation::Object;
using automation::Value;

namespace
{

// A pattern and how it is written.
struct Target
{
    const Object& Pattern;
    Puts How;

    void Put(const wchar_t* member, long number) const
    {
        if (How == Puts::Everything || automation::LongOf(Pattern.Get(member)) != number)
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

long SetRecurrenceByName(const Object& pattern, const std::wstring& name, const Value& reference, Puts puts)
{
    const RepeatRule* const rule = FindRule(name);
    if (rule == nullptr)
    {
        return 0;
    }
    const Target target{pattern, puts};
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

} // namespace calendar
