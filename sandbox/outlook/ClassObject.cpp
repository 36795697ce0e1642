#include "sandbox/outlook/ClassObject.h"

#include "automation/Error.h"
#include "automation/Guard.h"

#include <atomic>

namespace sandbox::outlook
{

namespace
{

class ClassFactory : public IClassFactory
{
  public:
    explicit ClassFactory(std::function<automation::Object()> create) : mCreate(std::move(create)) {}
    virtual ~ClassFactory() = default;

    STDMETHODIMP QueryInterface(REFIID id, void** result) override
    {
        if (id != __uuidof(IUnknown) && id != __uuidof(IClassFactory))
        {
            *result = nullptr;
            return E_NOINTERFACE;
        }
        *result = static_cast<IClassFactory*>(this);
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

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** result) override
    {
        *result = nullptr;
        return outer != nullptr
                   ? CLASS_E_NOAGGREGATION
                   : automation::Guard([&] { return mCreate().Dispatch()->QueryInterface(id, result); });
    }

    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

  private:
    std::function<automation::Object()> mCreate;
    std::atomic<ULONG> mReferences{0};
};

} // namespace

RegisteredClass::RegisteredClass(const CLSID& id, DWORD context, std::function<automation::Object()> create)
{
    const Microsoft::WRL::ComPtr<IClassFactory> factory(new ClassFactory(std::move(create)));
    automation::Check(CoRegisterClassObject(id, factory.Get(), context, REGCLS_MULTIPLEUSE, &mCookie),
                      L"CoRegisterClassObject");
}

void RegisteredClass::Revoke() noexcept
{
    if (mCookie != 0)
    {
        CoRevokeClassObject(mCookie);
        mCookie = 0;
    }
}

} // namespace sandbox::outlook
