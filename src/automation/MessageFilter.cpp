#include "automation/MessageFilter.h"

#include "automation/BusyServer.h"
#include "automation/ComObject.h"

#include <new>

#include <objbase.h>

namespace automation
{

namespace
{

constexpr DWORD kCancelCall = static_cast<DWORD>(-1);
constexpr DWORD kRetryDelay = 250; // milliseconds; COM waits so long before the next try

class RetryingFilter : public ComObject<IMessageFilter>
{
  public:
    explicit RetryingFilter(IMessageFilter* host) noexcept : mHost(host) {}

    STDMETHODIMP_(DWORD)
    HandleInComingCall(DWORD type, HTASK caller, DWORD elapsed, LPINTERFACEINFO call) override
    {
        if (mHost != nullptr)
        {
            return mHost->HandleInComingCall(type, caller, elapsed, call);
        }
        return SERVERCALL_ISHANDLED;
    }

    STDMETHODIMP_(DWORD) RetryRejectedCall(HTASK, DWORD elapsed, DWORD) override
    {
        return elapsed < kBusyPatience ? kRetryDelay : kCancelCall;
    }

    STDMETHODIMP_(DWORD) MessagePending(HTASK server, DWORD elapsed, DWORD type) override
    {
        if (mHost != nullptr)
        {
            return mHost->MessagePending(server, elapsed, type);
        }
        return PENDINGMSG_WAITDEFPROCESS;
    }

  private:
    Microsoft::WRL::ComPtr<IMessageFilter> mHost;
};

} // namespace

MessageFilterScope::MessageFilterScope()
{
    // The registration hands out the one that was there before only against another.
    CoRegisterMessageFilter(nullptr, &mPrevious);
    mFilter = new RetryingFilter(mPrevious.Get());
    CoRegisterMessageFilter(mFilter.Get(), nullptr);
}

MessageFilterScope::~MessageFilterScope()
{
    CoRegisterMessageFilter(mPrevious.Get(), nullptr);
}

} // namespace automation
