// The directions and conflict rules of a run, by the numbers that the host stores. Independent of the
// component.
#pragma once

#include <array>

namespace test_support
{

inline constexpr long kImport = 1;
inline constexpr long kExport = 2;
inline constexpr long kBoth = 3;
inline constexpr std::array<long, 3> kDirections = {kImport, kExport, kBoth};

inline constexpr long kAddAll = 1;
inline constexpr long kIgnoreAll = 2;
inline constexpr long kNotify = 3;
inline constexpr long kHostWins = 4;
inline constexpr long kOutlookWins = 5;
inline constexpr std::array<long, 5> kRules = {kAddAll, kIgnoreAll, kNotify, kHostWins, kOutlookWins};

} // namespace test_support
