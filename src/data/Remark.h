// What a pass leaves out although the user has accepted it, and why. Every remark goes through here: the one
// place where a report of the run will record them.
#pragma once

#include <string_view>

namespace data
{

void Remark(std::wstring_view text) noexcept;

} // namespace data
