// The message filter of the server: while Outlook is to seem busy, every incoming call is rejected. (Outlook
// says "retry later", which Wine does not carry to the caller; to a client's message filter both are the
// same.)
#pragma once

#include <atomic>

#include <windows.h>

#include <objidl.h>

namespace sandbox::outlook
{

class BusyFilter : public IMessageFilter
{
  public:
    virtual ~BusyFilter() = default;

    void RejectFor(DWORD milliseconds) noexcept { mBusyUntil = GetTickCount64() + milliseconds; }

    STDMETHODIMP QueryInterface(REFIID id, void** result) override
    {
        const bool isKnown = id == __uuidof(IUnknown) || id == __uuidof(IMessageFilter);
        *result = isKnown ? static_cast<IMessageFilter*>(this) : nullptr;
        return isKnown ? AddRef(), S_OK : E_NOINTERFACE;
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
        return GetTickCount64() < mBusyUntil ? SERVERCALL_REJECTED : SERVERCALL_ISHANDLED;
    }

    STDMETHODIMP_(DWORD) RetryRejectedCall(HTASK, DWORD, DWORD) override { return static_cast<DWORD>(-1); }

    STDMETHODIMP_(DWORD) MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

  private:
    std::atomic<ULONG> mReferences{1};
    std::atomic<ULONGLONG> mBusyUntil{0};
};

} // namespace sandbox::outlook
