#include "config/store/AdvancedOptions.h"

#include "automation/Text.h"
#include "automation/Value.h"

namespace config
{

namespace
{

void AppendCode(std::wstring& clause, const wchar_t* column, Code code)
{
    if (code)
    {
        clause += (clause.empty() ? L"" : L",") + std::wstring(column) + L"=" + std::to_wstring(*code);
    }
}

} // namespace

short DaysIn(const std::wstring& text)
{
    return automation::ShortOf(automation::Value(automation::LeadingNumber(text)));
}

std::wstring ContactSetClause(Code conflictCode)
{
    std::wstring clause;
    AppendCode(clause, L"TransConflictOption", conflictCode);
    return clause;
}

std::wstring TaskSetClause(Code conflictCode, Code rangeCode)
{
    std::wstring clause = ContactSetClause(conflictCode);
    AppendCode(clause, L"TaskTransItem", rangeCode);
    return clause;
}

std::wstring CalendarSetClause(Code conflictCode, Code rangeCode, short prior, short after)
{
    std::wstring clause = ContactSetClause(conflictCode);
    AppendCode(clause, L"CalendarTransItem", rangeCode);
    if (rangeCode == state::kEntriesWithinDays)
    {
        AppendCode(clause, L"CalendarAfter", after);
        AppendCode(clause, L"CalendarPrior", prior);
    }
    return clause;
}

bool TaskOptionsDiffer(const state::SynParameter& record, Code conflictCode, Code rangeCode)
{
    return rangeCode.value_or(kNoCode) != record.TaskTransItem ||
           conflictCode.value_or(kNoCode) != record.TransConflictOption;
}

DayBoxes DayBoxesOf(const state::SynParameter& record)
{
    return {std::to_wstring(record.CalendarAfter), std::to_wstring(record.CalendarPrior)};
}

} // namespace config
