// IUnknown, once: a counted object that answers for the interfaces named.
#pragma once

#include <atomic>

#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace automation
{

template<typename... Interfaces>
class ComObject : public Interfaces...
{
  public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** result) override
    {
        if (result == nullptr)
        {
            return E_POINTER;
        }
        *result = Find(id);
        if (*result == nullptr)
        {
            return E_NOINTERFACE;
        }
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

  protected:
    virtual ~ComObject() = default;

    // The interface with this id, not counted; null for none. The first interface answers for IUnknown.
    virtual void* Find(REFIID id) noexcept
    {
        void* found = nullptr;
        ((found = found == nullptr && id == __uuidof(Interfaces) ? static_cast<Interfaces*>(this) : found),
         ...);
        return found == nullptr && id == __uuidof(IUnknown) ? First<Interfaces...>() : found;
    }

  private:
    template<typename Interface, typename... Others>
    void* First() noexcept
    {
        return static_cast<Interface*>(this);
    }

    std::atomic<ULONG> mReferences{0};
};

} // namespace automation
