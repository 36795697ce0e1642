// What a record writer does with its record, in both directions.
#pragma once

namespace data
{

inline constexpr long kNewRecord = 1;
inline constexpr long kExistingRecord = 2;

} // namespace data
