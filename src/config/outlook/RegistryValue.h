// The registry's form of values: the bytes of each value type, both ways. Called by TSysReg, and free of
// the registry itself.
#pragma once

#include "automation/Value.h"

#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

namespace config
{

// Texts as the narrow registry functions take and give them (the system's single-byte code page).
std::string NarrowText(std::wstring_view text);
std::wstring WideText(std::string_view text);

// The error that an unknown value type raises: source "Class TSysReg", description "Unknown value type.".
[[noreturn]] void RaiseUnknownValueType();
// Whether the type is one of 1 to 5 and 7.
bool IsKnownValueType(DWORD type);

// The bytes to write for a value. Throw automation::Error for an unknown type, and for a value that cannot
// be read as the type asks.
std::vector<BYTE> RegistryBytes(DWORD type, const automation::Value& value);
// The value of the bytes. Texts lose their terminating zeros.
automation::Value ValueOfRegistryBytes(DWORD type, std::vector<BYTE> bytes);

} // namespace config
