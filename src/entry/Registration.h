// Self-registration: the class, its programmatic identifier, its interface and the type library, written per
// machine where the caller may, else per user. A registration that fails leaves nothing behind.
#pragma once

#include <windows.h>

namespace entry
{

// Registers the module; SELFREG_E_CLASS where a key cannot be written.
HRESULT Register(HMODULE module);

// Removes every key that Register writes, per machine and per user; keys that are absent count as removed.
HRESULT Unregister();

} // namespace entry
