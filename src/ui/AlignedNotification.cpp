#include "ui/AlignedNotification.h"

#include <cstring>

namespace ui
{

static_assert(sizeof(NMTVKEYDOWN) == sizeof(NMLVKEYDOWN) && sizeof(NMTCKEYDOWN) == sizeof(NMLVKEYDOWN));

AlignedNotification::AlignedNotification(LPARAM parameter)
    : mHeader(reinterpret_cast<const NMHDR*>(parameter))
{
    if (static_cast<ULONG_PTR>(parameter) % alignof(NMHDR) != 0)
    {
        std::memcpy(mKey, mHeader, sizeof(mKey));
        mHeader = reinterpret_cast<const NMHDR*>(mKey);
    }
}

} // namespace ui
