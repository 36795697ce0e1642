#include "automation/BusyServer.h"

#include <atomic>

#include <objbase.h>

namespace automation
{

namespace
{

constexpr DWORD kPause = 200; // milliseconds between two tries
constexpr DWORD kSameFailure =
    2000; // likewise, at most between the calls of a run that the user has given up

std::atomic<BusyQuestion> gQuestion{nullptr};
std::atomic<bool> gIsGivenUp{false};
std::atomic<DWORD> gGivenUpAt{0};

void GiveUp() noexcept
{
    gGivenUpAt = GetTickCount();
    gIsGivenUp = true;
}

// The user of a run that fails is asked once, not once more for every call that its cleaning up makes.
bool IsJustGivenUp() noexcept
{
    const bool isSame = gIsGivenUp && GetTickCount() - gGivenUpAt < kSameFailure;
    isSame ? GiveUp() : BusyWait::CallTaken();
    return isSame;
}

bool DoesUserWait()
{
    const BusyQuestion question = gQuestion;
    if (question == nullptr)
    {
        return false;
    }
    const bool waits = question();
    if (!waits)
    {
        GiveUp();
    }
    return waits;
}

} // namespace

void AskWhenBusy(BusyQuestion question) noexcept
{
    gQuestion = question;
}

void BusyWait::CallTaken() noexcept
{
    gIsGivenUp = false;
}

bool BusyWait::HasPatience()
{
    if (IsJustGivenUp())
    {
        return false;
    }
    if (GetTickCount64() - mStart < kBusyPatience)
    {
        return true;
    }
    const bool waits = DoesUserWait();
    mStart = GetTickCount64();
    return waits;
}

bool BusyWait::MayTryAgain()
{
    if (!HasPatience())
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
