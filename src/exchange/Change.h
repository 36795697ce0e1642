// The four kinds of change that a run makes.
#pragma once

#include <array>

namespace exchange
{

enum class Change
{
    AddToOutlook,
    ChangeInOutlook,
    AddToHost,
    ChangeInHost,
};

inline constexpr std::array kAllChanges{Change::AddToOutlook, Change::ChangeInOutlook, Change::AddToHost,
                                        Change::ChangeInHost};

} // namespace exchange
