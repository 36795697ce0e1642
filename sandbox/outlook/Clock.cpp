#include "sandbox/outlook/Clock.h"

#include <windows.h>

namespace sandbox::outlook
{

automation::Date Now()
{
    SYSTEMTIME time{};
    GetLocalTime(&time);
    return automation::DateOf(
        automation::Moment{time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond});
}

automation::Date Today()
{
    return automation::DayOf(Now());
}

} // namespace sandbox::outlook
