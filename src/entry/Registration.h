// Self-registration: the class, its programmatic identifier, its interface and the type library, written per
// machine where the caller may, else per user. A registration that fails leaves nothing behind.
#pragma once

#include <windows.h>

namespace entry
{

// Registers the module; SELFREG_E_CLASS where a key cannot be written.
HRESULT Register(HMODULE module);

// Removes every key that Register writes, per machine and per user, except those that the other architecture
// shares while it is registered; keys that are absent count as removed. SELFREG_E_CLASS where a key stays. A
// caller without rights to the machine's keys succeeds when he had a registration of his own.
HRESULT Unregister();

} // namespace entry
