// The class object of ClsSynOutlook, and the count that keeps the module loaded while anybody uses it.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace entry
{

// The class object, for DllGetClassObject: CLASS_E_CLASSNOTAVAILABLE for any other class.
HRESULT GetClassObject(REFCLSID classId, REFIID interfaceId, void** result);

// Whether an instance, a class object or a lock exists.
bool IsModuleInUse() noexcept;

// Counts one user of the module for the length of its own life.
class ModuleUse
{
  public:
    ModuleUse() noexcept;
    ModuleUse(const ModuleUse&) = delete;
    ModuleUse& operator=(const ModuleUse&) = delete;
    ~ModuleUse();
};

} // namespace entry
