// A class object: what COM asks for a new object of a registered class.
#pragma once

#include "automation/Object.h"

#include <functional>

#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace sandbox::outlook
{

// The classes of the stand-in.
inline constexpr CLSID kOutlookClass = {
    0x8c1d3a52, 0x6e0b, 0x4e0b, {0x9c, 0x57, 0x2d, 0x5d, 0x0b, 0x7a, 0x6f, 0x11}};
inline constexpr CLSID kControlClass = {
    0x8c1d3a53, 0x6e0b, 0x4e0b, {0x9c, 0x57, 0x2d, 0x5d, 0x0b, 0x7a, 0x6f, 0x11}};
inline constexpr const wchar_t* kOutlookProgId = L"Outlook.Application";
inline constexpr const wchar_t* kControlProgId = L"TelvixSandbox.OutlookControl";

// A class object registered with COM for as long as this lives, for every new object that clients of the
// context (CLSCTX_INPROC_SERVER: this apartment; CLSCTX_LOCAL_SERVER: other processes) create.
class RegisteredClass
{
  public:
    // create makes a new object; what it throws is the failure of the creation. Throws automation::Error.
    RegisteredClass(const CLSID& id, DWORD context, std::function<automation::Object()> create);
    RegisteredClass(const RegisteredClass&) = delete;
    RegisteredClass& operator=(const RegisteredClass&) = delete;
    ~RegisteredClass() { Revoke(); }

    void Revoke() noexcept;

  private:
    DWORD mCookie = 0;
};

} // namespace sandbox::outlook
