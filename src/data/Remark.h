// Records a value or link that a pass skips although the user has accepted it, with the reason. Every remark
// goes through here.
#pragma once

#include <string_view>

namespace data
{

void Remark(std::wstring_view text) noexcept;

} // namespace data
