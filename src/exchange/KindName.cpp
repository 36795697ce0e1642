#include "exchange/KindName.h"

#include <algorithm>

namespace exchange
{

const KindName* FindKindName(std::wstring_view objectName)
{
    const auto* const found = std::ranges::find(kKindNames, objectName, &KindName::TransObject);
    return found != kKindNames.end() ? found : nullptr;
}

} // namespace exchange
