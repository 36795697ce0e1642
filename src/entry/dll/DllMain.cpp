// The module's entry point and its four exports: each one only hands over.
#include "entry/ClassFactory.h"
#include "entry/Registration.h"
#include "entry/dll/GnuRuntime.h"
#include "resources/Strings.h"
#include "state/SharedState.h"

#include "automation/Guard.h"

#include <windows.h>

#include <olectl.h>

using automation::Guard;

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds)
{
    switch (reason)
    {
    case DLL_THREAD_DETACH: state::FreeStateOfThread(); break;
    case DLL_PROCESS_DETACH:
        // When the process ends, the modules behind the references may be gone already.
        if (processEnds == nullptr)
        {
            state::FreeStateOfAllThreads();
            entry::FreeGnuRuntime();
        }
        break;
    default: break;
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, LPVOID* result)
{
    return Guard([&] { return entry::GetClassObject(classId, interfaceId, result); });
}

STDAPI DllCanUnloadNow()
{
    return entry::IsModuleInUse() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer()
{
    return Guard([] { return entry::Register(resources::Module()); });
}

STDAPI DllUnregisterServer()
{
    return Guard([] { return entry::Unregister(); });
}
