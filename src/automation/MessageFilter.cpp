#include "automation/MessageFilter.h"

#include "automation/BusyServer.h"

#include <atomic>
#include <new>

#include <objbase.h>

namespace automation
{

namespace
{

constexpr DWORD kCancelCall = static_cast<DWORD>(-1);
constexpr DWORD kRetryDelay = 250; // milliseconds; COM waits so long before the next try

class RetryingFilter : public IMessageFilter
{
  public:
    virtual ~RetryingFilter() = default;

    STDMETHODIMP QueryInterface(REFIID id, void** result) override
    {
        if (id != __uuidof(IUnknown) && id != __uuidof(IMessageFilter))
        {
            *result = nullptr;
            return E_NOINTERFACE;
        }
        *result = static_cast<IMessageFilter*>(this);
        AddRef();
        return S_OK;
    }

    STDMETHODIMP_(ULONG) AddRef() override { return ++mReferences; }

    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG left = --mReferences;
        if (left == 0)
        {
            delete this;
        }
        return left;
    }

    STDMETHODIMP_(DWORD) HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override
    {
        return SERVERCALL_ISHANDLED;
    }

    STDMETHODIMP_(DWORD) RetryRejectedCall(HTASK, DWORD elapsed, DWORD) override
    {
        return elapsed < kBusyPatience ? kRetryDelay : kCancelCall;
    }

    STDMETHODIMP_(DWORD) MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

  private:
    std::atomic<ULONG> mReferences{0};
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
