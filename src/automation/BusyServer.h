// Calls that a busy server rejects ("call rejected", "retry later") are tried again for a bounded time. On
// Windows the thread's message filter does that within the call (MessageFilterScope); where the filter is not
// asked, as under Wine, the rejection returns to the caller, and these functions retry the call.
#pragma once

#include <windows.h>

namespace automation
{

// How long one call is retried altogether, in milliseconds.
inline constexpr DWORD kBusyPatience = 30000;

inline bool IsRejection(HRESULT result) noexcept
{
    return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
}

// Waits for a time in milliseconds. If the wait ends early (a failed one does at once), sleeps for the rest,
// so that a waiting loop does not spin.
template<typename Wait>
void AtLeast(DWORD time, Wait&& wait)
{
    const ULONGLONG start = GetTickCount64();
    wait();
    const ULONGLONG waited = GetTickCount64() - start;
    if (waited < time)
    {
        Sleep(static_cast<DWORD>(time - waited));
    }
}

// Waits a moment while the thread's windows stay alive; false when the patience since start (a tick count) is
// used up.
bool WaitForBusyServer(ULONGLONG start) noexcept;

// The result of a call, which is made again as long as it is rejected.
template<typename Call>
HRESULT RetriedWhileBusy(Call&& call)
{
    const ULONGLONG start = GetTickCount64();
    HRESULT result = call();
    while (IsRejection(result) && WaitForBusyServer(start))
    {
        result = call();
    }
    return result;
}

} // namespace automation
