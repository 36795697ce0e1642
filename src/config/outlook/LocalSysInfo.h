// The kind of Windows, as a small code, and the place where that kind keeps Outlook's mail profiles. Called
// by the profile check and the profile dialog.
#pragma once

#include <windows.h>

namespace config
{

// The code of a platform: 6 Win32s, 5 to 3 the Windows 9x family by minor version, 2 and 1 Windows NT 4 and
// 5, 0 anything else.
int OSVersionCode(DWORD platformId, DWORD majorVersion, DWORD minorVersion);

// The code of the running system; 0 when it does not say.
int GetOSVersionCode();

// The path of the profile key, below HKEY_CURRENT_USER, on a system with this code.
const wchar_t* ProfileKeyPath(int osVersionCode);

} // namespace config
