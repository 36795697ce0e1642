#include "sandbox/outlook/Exceptions.h"

#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/PatternRules.h"
#include "sandbox/outlook/PatternTypeRules.h"

#include <cwchar>

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;

std::wstring Written(automation::Date day, wchar_t mark)
{
    return automation::Formatted(day, L"yyyy-mm-dd") + mark;
}

} // namespace

std::vector<SeriesException> ExceptionsOf(const ItemDraft& series)
{
    std::vector<SeriesException> exceptions;
    const std::wstring text = series.Text(RecurrenceExceptions);
    for (size_t at = 0; at < text.size(); at = std::min(text.find(L' ', at), text.size() - 1) + 1)
    {
        automation::Moment moment;
        wchar_t mark = 0;
        const int read = std::swscanf(text.c_str() + at, L"%4d-%2d-%2d%c", &moment.year, &moment.month,
                                      &moment.day, &mark);
        if (read == 4)
        {
            exceptions.push_back({automation::DateOf(moment), mark == L'-'});
        }
    }
    return exceptions;
}

std::wstring ExceptionsOfUser(const ItemDraft& series)
{
    constexpr long kOccurrences = 3;
    if (!IsRecurrent(series))
    {
        return {};
    }
    const Recurrence recurrence = RecurrenceOf(series);
    const automation::Date third = OccurrenceOf(recurrence, kOccurrences);
    if (third > series.Date(RecurrencePatternEndDate))
    {
        return {};
    }
    return Written(OccurrenceOf(recurrence, 2), L'-') + L" " + Written(third, L'+');
}

void CancelExceptions(ItemDraft& series)
{
    if (series.Find(RecurrenceExceptions) != nullptr)
    {
        series.Put(RecurrenceExceptions, Value());
    }
}

const MemberTable& ExceptionsObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"Exceptions", {
                                       {L"Item", Reads(&ExceptionsObject::Item), nullptr},
                                       {L"Count", Reads(&ExceptionsObject::Count), nullptr},
                                       Constant(L"Class", 29L),
                                   });
    return members;
}

Value ExceptionsObject::Item(const Call& call)
{
    const auto exceptions = ExceptionsOf(*mDraft);
    const long position = PositionOf(call.At(0));
    if (position < 1 || position > static_cast<long>(exceptions.size()))
    {
        FailOutOfBounds(L"Exceptions.Item");
    }
    return MakeObject<ExceptionObject>(Box(), exceptions[static_cast<size_t>(position) - 1]);
}

Value ExceptionsObject::Count(const Call&)
{
    return static_cast<long>(ExceptionsOf(*mDraft).size());
}

const MemberTable& ExceptionObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"Exception", {
                                      {L"Deleted", Reads(&ExceptionObject::Deleted), nullptr},
                                      {L"OriginalDate", Reads(&ExceptionObject::OriginalDate), nullptr},
                                      Constant(L"Class", 30L),
                                  });
    return members;
}

} // namespace sandbox::outlook
