// Calls that a busy server rejects ("call rejected", "retry later") are tried again for a bounded time. On
// Windows the thread's message filter does that within the call (MessageFilterScope); where the filter is not
// asked, as under Wine, the rejection returns to the caller, and these functions retry the call. When the
// time is over the user decides, here and not in the filter, inside which no calls can be made.
#pragma once

#include <windows.h>

namespace automation
{

// How long one call is retried before the user is asked, in milliseconds.
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

// The user's answer, when a server has been busy for longer than kBusyPatience: true to try for as long
// again.
using BusyQuestion = bool (*)();

// Installs the question for the whole process; null, as at first, for none: the call fails then.
void AskWhenBusy(BusyQuestion question) noexcept;

// The attempts at one call.
class BusyWait
{
  public:
    // start: a tick count.
    explicit BusyWait(ULONGLONG start = GetTickCount64()) noexcept : mStart(start) {}

    // Waits a moment while the thread's windows stay alive. False when the patience is used up and the user
    // gives up, and at once for the calls that follow closely, until one is taken.
    bool MayTryAgain();

    // A call has not been rejected.
    static void CallTaken() noexcept;

  private:
    bool HasPatience();

    ULONGLONG mStart;
};

// The result of a call, which is made again as long as it is rejected.
template<typename Call>
HRESULT RetriedWhileBusy(Call&& call)
{
    BusyWait wait;
    HRESULT result = call();
    while (IsRejection(result) && wait.MayTryAgain())
    {
        result = call();
    }
    if (!IsRejection(result))
    {
        BusyWait::CallTaken();
    }
    return result;
}

} // namespace automation
