#include "entry/ClassFactory.h"

#include "automation/ComObject.h"
#include "automation/Guard.h"
#include "entry/ClsSynOutlook.h"

#include <atomic>

#include <olectl.h>

namespace entry
{

namespace
{

std::atomic<long> gUsers{0};

class ClassFactory : public automation::ComObject<IClassFactory>
{
  public:
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID interfaceId, void** result) override
    {
        return automation::Guard([&]() -> HRESULT {
            *result = nullptr;
            if (outer != nullptr)
            {
                return CLASS_E_NOAGGREGATION;
            }
            const Microsoft::WRL::ComPtr<_ClsSynOutlook> created(new ClsSynOutlook);
            return created.CopyTo(interfaceId, result);
        });
    }

    STDMETHODIMP LockServer(BOOL lock) override
    {
        gUsers += lock ? 1 : -1;
        return S_OK;
    }

  private:
    ModuleUse mUse;
};

} // namespace

ModuleUse::ModuleUse() noexcept
{
    ++gUsers;
}

ModuleUse::~ModuleUse()
{
    --gUsers;
}

bool IsModuleInUse() noexcept
{
    return gUsers > 0;
}

HRESULT GetClassObject(REFCLSID classId, REFIID interfaceId, void** result)
{
    *result = nullptr;
    if (classId != __uuidof(::ClsSynOutlook))
    {
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    const Microsoft::WRL::ComPtr<IClassFactory> factory(new ClassFactory);
    return factory.CopyTo(interfaceId, result);
}

} // namespace entry
