#include "config/AdvancedOptions.h"

#include "automation/Text.h"
#include "automation/Value.h"

namespace config
{

short DaysIn(const std::wstring& text)
{
    return automation::ShortOf(automation::Value(automation::LeadingNumber(text)));
}

std::wstring ContactSetClause(long conflictCode)
{
    return L"TransConflictOption=" + std::to_wstring(conflictCode);
}

std::wstring TaskSetClause(long conflictCode, long rangeCode)
{
    return L"TransConflictOption=" + std::to_wstring(conflictCode) + L",TaskTransItem=" +
           std::to_wstring(rangeCode);
}

std::wstring CalendarSetClause(long conflictCode, long rangeCode, short prior, short after)
{
    std::wstring clause = L"TransConflictOption=" + std::to_wstring(conflictCode) + L",CalendarTransItem=" +
                          std::to_wstring(rangeCode);
    if (rangeCode == state::kEntriesWithinDays)
    {
        clause += L",CalendarAfter=" + std::to_wstring(after) + L",CalendarPrior=" + std::to_wstring(prior);
    }
    return clause;
}

bool TaskOptionsDiffer(const state::SynParameter& record, long conflictCode, long rangeCode)
{
    return rangeCode != record.TaskTransItem || conflictCode != record.TransConflictOption;
}

DayBoxes DayBoxesOf(const state::SynParameter& record)
{
    return {std::to_wstring(record.CalendarAfter), std::to_wstring(record.CalendarPrior)};
}

} // namespace config
