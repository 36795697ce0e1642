#include "config/outlook/LocalSysInfo.h"

namespace config
{

namespace
{

constexpr DWORD kAny = ~DWORD{0};

struct VersionRow
{
    DWORD platformId;
    DWORD majorVersion;
    DWORD minorVersion;
    int code;
};

constexpr VersionRow kVersions[] = {
    {VER_PLATFORM_WIN32s, kAny, kAny, 6},      // Win32s
    {VER_PLATFORM_WIN32_WINDOWS, kAny, 0, 5},  // Windows 95
    {VER_PLATFORM_WIN32_WINDOWS, kAny, 10, 4}, // Windows 98
    {VER_PLATFORM_WIN32_WINDOWS, kAny, 90, 3}, // Windows Me
    {VER_PLATFORM_WIN32_NT, 4, kAny, 2},       // Windows NT 4
    {VER_PLATFORM_WIN32_NT, 5, kAny, 1},       // Windows 2000, XP, Server 2003
};

constexpr wchar_t kNtProfiles[] =
    L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging Subsystem\\Profiles";
constexpr wchar_t kOtherProfiles[] = L"Software\\Microsoft\\Windows Messaging Subsystem\\Profiles";

bool Fits(DWORD expected, DWORD actual)
{
    return expected == kAny || expected == actual;
}

} // namespace

int OSVersionCode(DWORD platformId, DWORD majorVersion, DWORD minorVersion)
{
    for (const VersionRow& row : kVersions)
    {
        if (row.platformId == platformId && Fits(row.majorVersion, majorVersion) &&
            Fits(row.minorVersion, minorVersion))
        {
            return row.code;
        }
    }
    return 0;
}

int GetOSVersionCode()
{
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    static_assert(sizeof version == 148);
#ifdef _MSC_VER
    // The contract classifies by this very call; its answer for newer systems (6.2 without a manifest entry)
    // makes no difference to the code.
#pragma warning(suppress : 4996)
#endif
    const BOOL known = GetVersionExA(&version);
    return known ? OSVersionCode(version.dwPlatformId, version.dwMajorVersion, version.dwMinorVersion) : 0;
}

const wchar_t* ProfileKeyPath(int osVersionCode)
{
    return osVersionCode == 1 || osVersionCode == 2 ? kNtProfiles : kOtherProfiles;
}

} // namespace config
