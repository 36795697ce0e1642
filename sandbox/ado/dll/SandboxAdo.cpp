// The exports of the DLL that serves "ADODB.Recordset" in the sandbox's own Wine prefix.
#include "automation/Error.h"
#include "automation/Guard.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/ado/Recordset.h"

#include <windows.h>

#include <olectl.h>

using namespace sandbox;

namespace
{

HINSTANCE gModule = nullptr;

HRESULT Register()
{
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(gModule, path, ARRAYSIZE(path));
    const std::wstring server = ClassKey(kRecordsetClass) + L"\\InprocServer32";
    SetClassText(server, nullptr, path);
    SetClassText(server, L"ThreadingModel", L"Both");
    RegisterProgId(kRecordsetProgId, kRecordsetClass);
    return S_OK;
}

HRESULT Unregister()
{
    DeleteClassKey(ClassKey(kRecordsetClass));
    DeleteClassKey(kRecordsetProgId);
    return S_OK;
}

// The switches of the sandbox: see AwkwardAdo.h.
automation::Object NewRecordset()
{
    wchar_t text[1024];
    DWORD size = sizeof text;
    AwkwardAdo awkward;
    if (RegGetValueW(HKEY_CURRENT_USER, L"Software\\TelvixSandbox", L"Ado", RRF_RT_REG_SZ, nullptr, text,
                     &size) == ERROR_SUCCESS)
    {
        SetSwitches(awkward, text);
    }
    return MakeRecordset(std::move(awkward));
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        gModule = module;
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, LPVOID* result)
{
    return automation::Guard([&]() -> HRESULT {
        *result = nullptr;
        return classId == kRecordsetClass ? MakeClassObject(&NewRecordset).CopyTo(interfaceId, result)
                                          : CLASS_E_CLASSNOTAVAILABLE;
    });
}

STDAPI DllCanUnloadNow()
{
    return LiveObjects() == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer()
{
    return automation::Guard(Register);
}

STDAPI DllUnregisterServer()
{
    return automation::Guard(Unregister);
}
