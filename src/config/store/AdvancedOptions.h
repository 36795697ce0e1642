// The stored form of the advanced options of the three kinds: the values that the dialogs write, without
// their windows. The codes are the indexes of the option buttons.
#pragma once

#include "state/SynParameter.h"

#include <optional>
#include <string>

namespace config
{

// The number of days in a day box: its leading number, 0 where there is none.
short DaysIn(const std::wstring& text);

// A code that was loaded or chosen; nothing where the column is NULL and the user has chosen none.
using Code = std::optional<long>;

// The record's value for an absent code.
inline constexpr long kNoCode = -1;

// The set clauses that OK writes, without absent codes: their columns keep their values.
// Empty when there is nothing to write.
std::wstring ContactSetClause(Code conflictCode);
std::wstring TaskSetClause(Code conflictCode, Code rangeCode);
// The days are written only with the range "within days"; otherwise the columns keep their values.
std::wstring CalendarSetClause(Code conflictCode, Code rangeCode, short prior, short after);

// Whether OK of the task dialog has anything to write.
bool TaskOptionsDiffer(const state::SynParameter& record, Code conflictCode, Code rangeCode);

// The texts of the two day boxes when the range "within days" is chosen: crosswise, so that OK exchanges days
// that are not retyped. The host's users rely on it.
struct DayBoxes
{
    std::wstring prior;
    std::wstring after;
};
DayBoxes DayBoxesOf(const state::SynParameter& record);

} // namespace config
