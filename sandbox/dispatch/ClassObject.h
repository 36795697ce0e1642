// Class objects of the fakes: what COM asks for a new object of a registered class, in this process or
// for others, and the registry entries by which clients find a class under its programmatic identifier.
#pragma once

#include "automation/Object.h"

#include <functional>
#include <string>

#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace sandbox
{

using Creator = std::function<automation::Object()>;

// A class object that makes its objects by the creator; what that throws is the failure of the creation.
Microsoft::WRL::ComPtr<IClassFactory> MakeClassObject(Creator create);

// A class object registered with COM for as long as this lives, for every new object that clients of the
// context (CLSCTX_INPROC_SERVER: this apartment; CLSCTX_LOCAL_SERVER: other processes) create.
class RegisteredClass
{
  public:
    // Throws automation::Error.
    RegisteredClass(const CLSID& id, DWORD context, Creator create);
    RegisteredClass(const RegisteredClass&) = delete;
    RegisteredClass& operator=(const RegisteredClass&) = delete;
    ~RegisteredClass() { Revoke(); }

    void Revoke() noexcept;

  private:
    DWORD mCookie = 0;
};

// The key of a class below "Software\Classes": "CLSID\{...}".
std::wstring ClassKey(const CLSID& id);

// Entries of the machine below "Software\Classes" (Wine looks for classes nowhere else); all throw
// automation::Error. A null name is the key's default value.
void SetClassText(const std::wstring& key, const wchar_t* name, const std::wstring& text);
void DeleteClassKey(const std::wstring& key);

// Makes the programmatic identifier name the class, as far as it does not yet.
void RegisterProgId(const wchar_t* progId, const CLSID& id);

} // namespace sandbox
