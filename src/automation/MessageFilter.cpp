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
    STDMETHODIMP_(DWORD) HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override
    {
        return SERVERCALL_ISHANDLED;
    }

    STDMETHODIMP_(DWORD) RetryRejectedCall(HTASK, DWORD elapsed, DWORD) override
    {
        return elapsed < kBusyPatience ? kRetryDelay : kCancelCall;
    }

    STDMETHODIMP_(DWORD) MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }
};

} // namespace

MessageFilterScope::MessageFilterScope() : mFilter(new RetryingFilter)
{
    CoRegisterMessageFilter(mFilter.Get(), &mPrevious);
}

MessageFilterScope::~MessageFilterScope()
{
    CoRegisterMessageFilter(mPrevious.Get(), nullptr);
}

} // namespace automation
