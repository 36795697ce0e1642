// The stored form of the advanced options of the three kinds: what the dialogs write, free of their windows.
// The codes are the indexes of the option buttons.
#pragma once

#include "state/SynParameter.h"

#include <optional>
#include <string>

namespace config
{

// The number of days that a day box stands for: its leading number, 0 where there is none.
short DaysIn(const std::wstring& text);

// A code that was loaded or chosen; nothing where the column is NULL and the user has chosen none.
using Code = std::optional<long>;

// What the record holds of a code that there is not.
inline constexpr long kNoCode = -1;

// The set clauses that OK writes, without the codes that there are not: their columns keep what they have.
// Empty when there is nothing to write.
std::wstring ContactSetClause(Code conflictCode);
std::wstring TaskSetClause(Code conflictCode, Code rangeCode);
// The days are written only with the range "within days"; the columns otherwise keep what they have.
std::wstring CalendarSetClause(Code conflictCode, Code rangeCode, short prior, short after);

// Whether OK of the task dialog has anything to write.
bool TaskOptionsDiffer(const state::SynParameter& record, Code conflictCode, Code rangeCode);

// What the two day boxes show when the range "within days" is chosen: crosswise, so that days which are not
// retyped are exchanged by OK. The host's users rely on it.
struct DayBoxes
{
    std::wstring prior;
    std::wstring after;
};
DayBoxes DayBoxesOf(const state::SynParameter& record);

} // namespace config
