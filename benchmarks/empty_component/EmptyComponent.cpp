#include "benchmarks/empty_component/EmptyComponent.h"

#include <atomic>
#include <cwchar>
#include <new>

#include <windows.h>

#include <commctrl.h>
#include <oaidl.h>

namespace
{

HINSTANCE gModule = nullptr;
std::atomic<long> gObjects{0};

INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM)
{
    if (message == WM_COMMAND && LOWORD(wParam) == IDC_EMPTY_CONFIGURE)
    {
        DialogBoxParamW(gModule, MAKEINTRESOURCEW(IDD_EMPTY_CONFIGURE), window, Procedure, 0);
        return TRUE;
    }
    if (message == WM_COMMAND && (LOWORD(wParam) == IDCANCEL || LOWORD(wParam) == IDOK))
    {
        EndDialog(window, LOWORD(wParam));
        return TRUE;
    }
    return message == WM_INITDIALOG;
}

// IUnknown for the two classes here.
template<typename Interface>
class Counted : public Interface
{
  public:
    Counted() { ++gObjects; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** result) override
    {
        const bool isKnown = id == __uuidof(IUnknown) || id == __uuidof(Interface);
        *result = isKnown ? static_cast<Interface*>(this) : nullptr;
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

  protected:
    virtual ~Counted() { --gObjects; }

  private:
    std::atomic<ULONG> mReferences{1};
};

class EmptyClass : public Counted<IDispatch>
{
  public:
    STDMETHODIMP GetTypeInfoCount(UINT* count) override
    {
        *count = 0;
        return S_OK;
    }

    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return DISP_E_BADINDEX; }

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override
    {
        const bool isKnown = count == 1 && _wcsicmp(names[0], L"SynLoad") == 0;
        *ids = isKnown ? 1 : DISPID_UNKNOWN;
        return isKnown ? S_OK : DISP_E_UNKNOWNNAME;
    }

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override
    {
        if (id != 1)
        {
            return DISP_E_MEMBERNOTFOUND;
        }
        DialogBoxParamW(gModule, MAKEINTRESOURCEW(IDD_EMPTY_MAIN), nullptr, Procedure, 0);
        if (result != nullptr)
        {
            result->vt = VT_BOOL;
            result->boolVal = VARIANT_FALSE;
        }
        return S_OK;
    }
};

class EmptyFactory : public Counted<IClassFactory>
{
  public:
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** result) override
    {
        *result = nullptr;
        if (outer != nullptr)
        {
            return CLASS_E_NOAGGREGATION;
        }
        auto* const created = new (std::nothrow) EmptyClass;
        if (created == nullptr)
        {
            return E_OUTOFMEMORY;
        }
        const HRESULT code = created->QueryInterface(id, result);
        created->Release();
        return code;
    }

    STDMETHODIMP LockServer(BOOL lock) override
    {
        gObjects += lock ? 1 : -1;
        return S_OK;
    }
};

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        gModule = module;
        INITCOMMONCONTROLSEX classes{sizeof classes,
                                     ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_PROGRESS_CLASS};
        InitCommonControlsEx(&classes);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, LPVOID* result)
{
    *result = nullptr;
    if (classId != kEmptyClass)
    {
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    auto* const factory = new (std::nothrow) EmptyFactory;
    if (factory == nullptr)
    {
        return E_OUTOFMEMORY;
    }
    const HRESULT code = factory->QueryInterface(interfaceId, result);
    factory->Release();
    return code;
}

STDAPI DllCanUnloadNow()
{
    return gObjects == 0 ? S_OK : S_FALSE;
}
