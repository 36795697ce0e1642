#include "automation/BusyServer.h"

#include <objbase.h>

namespace automation
{

namespace
{

constexpr DWORD kPause = 200; // milliseconds between two tries

} // namespace

bool WaitForBusyServer(ULONGLONG start) noexcept
{
    if (GetTickCount64() - start >= kBusyPatience)
    {
        return false;
    }
    const HANDLE never = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    if (never == nullptr)
    {
        return false;
    }
    AtLeast(kPause, [&] {
        DWORD signaled = 0;
        HANDLE handles[] = {never};
        CoWaitForMultipleHandles(COWAIT_DISPATCH_CALLS | COWAIT_DISPATCH_WINDOW_MESSAGES, kPause, 1, handles,
                                 &signaled);
    });
    CloseHandle(never);
    return true;
}

} // namespace automation
