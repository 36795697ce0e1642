#include "automation/BusyServer.h"

#include "automation/ComObject.h"
#include "automation/MessageFilter.h"
#include "automation/Object.h"
#include "tests/automation/ScriptedObject.h"

#include <gtest/gtest.h>

#include <objbase.h>
#include <wrl/client.h>

namespace
{

using namespace automation;
using Microsoft::WRL::ComPtr;
using test_support::ArrivedCall;
using test_support::CodeOf;
using test_support::ScriptedObject;

// The message filter that the thread has; the thread keeps it.
ComPtr<IMessageFilter> CurrentFilter()
{
    ComPtr<IMessageFilter> filter;
    CoRegisterMessageFilter(nullptr, &filter);
    ComPtr<IMessageFilter> none;
    CoRegisterMessageFilter(filter.Get(), &none);
    return filter;
}

TEST(MessageFilterScope, ABusyServerIsTriedAgainForABoundedTime)
{
    const MessageFilterScope scope;
    const ComPtr<IMessageFilter> filter = CurrentFilter();
    ASSERT_NE(nullptr, filter.Get());
    const DWORD cancel = static_cast<DWORD>(-1);
    for (const DWORD reason : {SERVERCALL_RETRYLATER, SERVERCALL_REJECTED})
    {
        EXPECT_NE(cancel, filter->RetryRejectedCall(nullptr, 0, reason));
        EXPECT_NE(cancel, filter->RetryRejectedCall(nullptr, kBusyPatience - 1, reason));
        EXPECT_EQ(cancel, filter->RetryRejectedCall(nullptr, kBusyPatience, reason));
    }
}

TEST(MessageFilterScope, TheFilterThatWasThereBeforeIsPutBack)
{
    const MessageFilterScope outer;
    const ComPtr<IMessageFilter> before = CurrentFilter();
    {
        const MessageFilterScope inner;
        EXPECT_NE(before.Get(), CurrentFilter().Get());
    }
    EXPECT_EQ(before.Get(), CurrentFilter().Get());
}

// The filter of a host that is busy itself.
class HostFilter : public ComObject<IMessageFilter>
{
  public:
    STDMETHODIMP_(DWORD) HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override
    {
        return SERVERCALL_RETRYLATER;
    }
    STDMETHODIMP_(DWORD) RetryRejectedCall(HTASK, DWORD, DWORD) override { return static_cast<DWORD>(-1); }
    STDMETHODIMP_(DWORD) MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_CANCELCALL; }
};

TEST(MessageFilterScope, TheHostsFilterKeepsItsSayAboutIncomingCallsAndPendingMessages)
{
    const ComPtr<IMessageFilter> host(new HostFilter);
    ComPtr<IMessageFilter> before;
    CoRegisterMessageFilter(host.Get(), &before);
    {
        const MessageFilterScope scope;
        const ComPtr<IMessageFilter> filter = CurrentFilter();
        EXPECT_EQ(SERVERCALL_RETRYLATER, filter->HandleInComingCall(CALLTYPE_TOPLEVEL, nullptr, 0, nullptr));
        EXPECT_EQ(PENDINGMSG_CANCELCALL, filter->MessagePending(nullptr, 0, PENDINGTYPE_TOPLEVEL));
        EXPECT_NE(static_cast<DWORD>(-1), filter->RetryRejectedCall(nullptr, 0, SERVERCALL_RETRYLATER));
    }
    EXPECT_EQ(host.Get(), CurrentFilter().Get());
    CoRegisterMessageFilter(before.Get(), nullptr);
}

TEST(MessageFilterScope, WithoutAFilterOfTheHostCallsAreTakenAndMessagesWait)
{
    const MessageFilterScope scope;
    const ComPtr<IMessageFilter> filter = CurrentFilter();
    EXPECT_EQ(SERVERCALL_ISHANDLED, filter->HandleInComingCall(CALLTYPE_TOPLEVEL, nullptr, 0, nullptr));
    EXPECT_EQ(PENDINGMSG_WAITDEFPROCESS, filter->MessagePending(nullptr, 0, PENDINGTYPE_TOPLEVEL));
}

TEST(BusyServer, ARejectedCallIsMadeAgainUntilItIsTaken)
{
    for (const HRESULT rejection : {RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER})
    {
        ScriptedObject scripted;
        long calls = 0;
        scripted.OnCall = [&](const ArrivedCall& call) {
            EXPECT_EQ(5, call.At(0).lVal);
            return ++calls <= 1 ? rejection : S_OK;
        };
        Object(&scripted).Call(L"Member", 5L);
        EXPECT_EQ(2, calls);
    }
}

TEST(BusyServer, AnyOtherFailureIsReportedAtOnce)
{
    ScriptedObject scripted;
    long calls = 0;
    scripted.OnCall = [&](const ArrivedCall&) {
        ++calls;
        return RPC_E_DISCONNECTED;
    };
    EXPECT_EQ(RPC_E_DISCONNECTED, CodeOf([&] { Object(&scripted).Call(L"Member"); }));
    EXPECT_EQ(1, calls);
}

TEST(BusyServer, AWaitThatFailsAtOnceLastsItsTimeAllTheSame)
{
    constexpr DWORD kTime = 200;
    constexpr DWORD kClock = 20; // milliseconds by which the clock is inexact
    const ULONGLONG start = GetTickCount64();
    bool isTried = false;
    AtLeast(kTime, [&] { isTried = true; });
    EXPECT_TRUE(isTried);
    EXPECT_LE(kTime - kClock, GetTickCount64() - start);
}

TEST(BusyServer, PatienceEnds)
{
    const ULONGLONG now = GetTickCount64();
    EXPECT_TRUE(BusyWait(now).MayTryAgain());
    EXPECT_FALSE(BusyWait(now - kBusyPatience).MayTryAgain());
}

// A user who is asked whether to try again.
class PatientUser : public testing::Test
{
  protected:
    PatientUser()
    {
        gTimesAsked = 0;
        AskWhenBusy([] {
            ++gTimesAsked;
            return gGoesOn;
        });
    }
    ~PatientUser() override
    {
        AskWhenBusy(nullptr);
        BusyWait::CallTaken();
    }

    static BusyWait LongWait() { return BusyWait(GetTickCount64() - kBusyPatience); }

    static inline int gTimesAsked = 0;
    static inline bool gGoesOn = true;
};

TEST_F(PatientUser, IsAskedWhenThePatienceIsUsedUpAndHasItAnewAfterwards)
{
    gGoesOn = true;
    BusyWait wait = LongWait();
    EXPECT_TRUE(wait.MayTryAgain());
    EXPECT_TRUE(wait.MayTryAgain());
    EXPECT_EQ(1, gTimesAsked);
    EXPECT_TRUE(BusyWait().MayTryAgain());
    EXPECT_EQ(1, gTimesAsked);
}

TEST_F(PatientUser, AfterGivingUpTheUserIsNotAskedAgainUntilACallSucceeds)
{
    gGoesOn = false;
    EXPECT_FALSE(LongWait().MayTryAgain());
    EXPECT_FALSE(LongWait().MayTryAgain());
    EXPECT_FALSE(BusyWait().MayTryAgain());
    EXPECT_EQ(1, gTimesAsked);
    EXPECT_EQ(S_OK, RetriedWhileBusy([] { return S_OK; }));
    EXPECT_TRUE(BusyWait().MayTryAgain());
    EXPECT_FALSE(LongWait().MayTryAgain());
    EXPECT_EQ(2, gTimesAsked);
}

} // namespace
