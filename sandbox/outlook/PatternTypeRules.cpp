#include "sandbox/outlook/PatternTypeRules.h"

#include "sandbox/outlook/Failures.h"

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;

constexpr unsigned BitOf(RecurrenceKind kind)
{
    return 1u << kind;
}

// The members that go only with some of the recurrence types.
struct TypedMember
{
    PropertyId id;
    unsigned kinds;
};

constexpr TypedMember kTypedMembers[] = {
    {RecurrenceInterval, BitOf(kDaily) | BitOf(kWeekly) | BitOf(kMonthly) | BitOf(kMonthNth)},
    {RecurrenceDayOfWeekMask, BitOf(kWeekly) | BitOf(kMonthNth) | BitOf(kYearNth)},
    {RecurrenceDayOfMonth, BitOf(kMonthly) | BitOf(kYearly)},
    {RecurrenceMonthOfYear, BitOf(kYearly) | BitOf(kYearNth)},
    {RecurrenceInstance, BitOf(kMonthNth) | BitOf(kYearNth)},
};

bool GoesWithType(const ItemDraft& item, PropertyId id)
{
    const auto member = std::ranges::find(kTypedMembers, id, &TypedMember::id);
    return (member->kinds & 1u << item.Number(RecurrenceType)) != 0;
}

// The member's own value or what follows from the day on which the pattern starts; 0 for a member that does
// not go with the recurrence type.
template<PropertyId id, long (*implied)(const ItemDraft&)>
Value ReadTyped(const ItemDraft& item)
{
    if (!GoesWithType(item, id))
    {
        return 0L;
    }
    const Value* own = item.Find(id);
    return own != nullptr ? *own : Value(implied(item));
}

template<PropertyId id>
void WriteTyped(ItemDraft& item, const Value& converted)
{
    if (!GoesWithType(item, id))
    {
        FailInvalid(PropertyOf(id).name, std::wstring(L"The property ") + PropertyOf(id).name +
                                             L" does not go with the pattern's RecurrenceType.");
    }
    item.Put(id, converted);
}

long ImpliedInterval(const ItemDraft&)
{
    return 1;
}

long ImpliedMask(const ItemDraft& item)
{
    return WeekdayBit(item.Date(RecurrencePatternStartDate));
}

long ImpliedDay(const ItemDraft& item)
{
    return automation::MomentOf(item.Date(RecurrencePatternStartDate)).day;
}

long ImpliedMonth(const ItemDraft& item)
{
    return automation::MomentOf(item.Date(RecurrencePatternStartDate)).month;
}

long ImpliedInstance(const ItemDraft& item)
{
    return (ImpliedDay(item) - 1) / 7 + 1;
}

// Another type starts afresh: the members that go only with some types fall back to what follows from the
// start of the pattern.
void WriteType(ItemDraft& item, const Value& converted)
{
    const long kind = automation::LongOf(converted);
    constexpr unsigned kKnown = BitOf(kDaily) | BitOf(kWeekly) | BitOf(kMonthly) | BitOf(kMonthNth) |
                                BitOf(kYearly) | BitOf(kYearNth);
    if (kind < kDaily || kind > kYearNth || (kKnown & 1u << kind) == 0)
    {
        FailInvalid(L"RecurrenceType", L"The value of RecurrenceType is out of range.");
    }
    if (kind != item.Number(RecurrenceType))
    {
        for (const TypedMember& member : kTypedMembers)
        {
            item.Put(member.id, Value());
        }
    }
    item.Put(RecurrenceType, converted);
}

// Several weekdays go with a weekly pattern; the "n-th" ones take one, or those that Outlook has a word for:
// any day, a weekday, a day of the weekend.
void WriteMask(ItemDraft& item, const Value& converted)
{
    const long mask = automation::LongOf(converted);
    const bool isNamed = (mask & (mask - 1)) == 0 || mask == 127 || mask == 62 || mask == 65;
    if (item.Number(RecurrenceType) != kWeekly && !isNamed && GoesWithType(item, RecurrenceDayOfWeekMask))
    {
        FailInvalid(L"DayOfWeekMask", L"Monthly and yearly patterns are only valid for a single day.");
    }
    WriteTyped<RecurrenceDayOfWeekMask>(item, converted);
}

constexpr PropertyRule kPatternTypeRules[] = {
    {RecurrenceType, nullptr, WriteType},
    {RecurrenceInterval, ReadTyped<RecurrenceInterval, ImpliedInterval>, WriteTyped<RecurrenceInterval>},
    {RecurrenceDayOfWeekMask, ReadTyped<RecurrenceDayOfWeekMask, ImpliedMask>, WriteMask},
    {RecurrenceDayOfMonth, ReadTyped<RecurrenceDayOfMonth, ImpliedDay>, WriteTyped<RecurrenceDayOfMonth>},
    {RecurrenceMonthOfYear, ReadTyped<RecurrenceMonthOfYear, ImpliedMonth>,
     WriteTyped<RecurrenceMonthOfYear>},
    {RecurrenceInstance, ReadTyped<RecurrenceInstance, ImpliedInstance>, WriteTyped<RecurrenceInstance>},
};

} // namespace

std::span<const PropertyRule> PatternTypeRules()
{
    return kPatternTypeRules;
}

Recurrence RecurrenceOf(const ItemDraft& item)
{
    const long kind = item.Number(RecurrenceType);
    return {kind,
            item.Number(RecurrenceInterval),
            item.Number(RecurrenceDayOfWeekMask),
            item.Number(RecurrenceDayOfMonth),
            item.Number(RecurrenceMonthOfYear),
            item.Number(RecurrenceInstance),
            item.Date(RecurrencePatternStartDate)};
}

Value StatedByType(const ItemDraft& item, PropertyId id)
{
    const bool isTyped = std::ranges::find(kTypedMembers, id, &TypedMember::id) != std::end(kTypedMembers);
    return !isTyped || GoesWithType(item, id) ? item.Read(id) : Value();
}

} // namespace sandbox::outlook
