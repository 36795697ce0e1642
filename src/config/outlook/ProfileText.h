// How a registry value reads in the profile dialog.
#pragma once

#include "automation/Value.h"

#include <optional>
#include <string>

#include <windows.h>

namespace config
{

// Texts as they are, a number in decimal, bytes as "0x" and two upper-case hexadecimal digits each from the
// last to the first. Nothing for any other registry type.
std::optional<std::wstring> ProfileText(DWORD type, const automation::Value& value);

} // namespace config
