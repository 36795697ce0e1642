#include "data/Remark.h"

#include "state/Failures.h"

namespace data
{

void Remark(std::wstring_view text) noexcept
{
    state::WriteLog(text);
}

} // namespace data
