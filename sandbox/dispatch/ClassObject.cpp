#include "sandbox/dispatch/ClassObject.h"

#include "automation/ComObject.h"
#include "automation/Error.h"
#include "automation/Guard.h"

#include <objbase.h>

namespace sandbox
{

namespace
{

constexpr const wchar_t* kClasses = L"Software\\Classes\\";

class ClassFactory : public automation::ComObject<IClassFactory>
{
  public:
    explicit ClassFactory(Creator create) : mCreate(std::move(create)) {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** result) override
    {
        *result = nullptr;
        return outer != nullptr
                   ? CLASS_E_NOAGGREGATION
                   : automation::Guard([&] { return mCreate().Dispatch()->QueryInterface(id, result); });
    }

    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

  private:
    Creator mCreate;
};

std::wstring TextOfId(const CLSID& id)
{
    wchar_t text[40];
    StringFromGUID2(id, text, ARRAYSIZE(text));
    return text;
}

void Check(LSTATUS status, const std::wstring& what)
{
    automation::Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), what.c_str());
}

} // namespace

Microsoft::WRL::ComPtr<IClassFactory> MakeClassObject(Creator create)
{
    return new ClassFactory(std::move(create));
}

RegisteredClass::RegisteredClass(const CLSID& id, DWORD context, Creator create)
{
    automation::Check(CoRegisterClassObject(id, MakeClassObject(std::move(create)).Get(), context,
                                            REGCLS_MULTIPLEUSE, &mCookie),
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

std::wstring ClassKey(const CLSID& id)
{
    return L"CLSID\\" + TextOfId(id);
}

void SetClassText(const std::wstring& key, const wchar_t* name, const std::wstring& text)
{
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    Check(RegSetKeyValueW(HKEY_LOCAL_MACHINE, (kClasses + key).c_str(), name, REG_SZ, text.c_str(), size),
          key);
}

void DeleteClassKey(const std::wstring& key)
{
    const LSTATUS status = RegDeleteTreeW(HKEY_LOCAL_MACHINE, (kClasses + key).c_str());
    if (status != ERROR_FILE_NOT_FOUND)
    {
        Check(status, key);
    }
}

void RegisterProgId(const wchar_t* progId, const CLSID& id)
{
    const std::wstring key = std::wstring(progId) + L"\\CLSID";
    wchar_t present[64] = {};
    DWORD size = sizeof present;
    RegGetValueW(HKEY_LOCAL_MACHINE, (kClasses + key).c_str(), nullptr, RRF_RT_REG_SZ, nullptr, present,
                 &size);
    if (TextOfId(id) != present)
    {
        SetClassText(key, nullptr, TextOfId(id));
    }
}

} // namespace sandbox
