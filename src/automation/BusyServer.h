// Calls that a busy server rejects ("call rejected", "retry later") are tried again for a bounded time. On
// Windows the thread's message filter does that within the call (MessageFilterScope); where the filter is not
// asked, as under Wine, the rejection comes back to the caller, and this makes up for it.
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
