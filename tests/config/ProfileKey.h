// The registry key of Outlook's profiles, as this system has it, empty at the start of a test and gone at the
// end, and the keys that take its place where it does not exist. The tests run in a prefix of their own: no
// profile of a user's is lost.
#pragma once

#include "config/outlook/LocalSysInfo.h"

#include <string>

#include <windows.h>

namespace config_tests
{

class ProfileKey
{
  public:
    ProfileKey()
    {
        Remove();
        RegCreateKeyExW(HKEY_CURRENT_USER, Path(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &mKey, nullptr);
    }
    ProfileKey(const ProfileKey&) = delete;
    ProfileKey& operator=(const ProfileKey&) = delete;
    ~ProfileKey()
    {
        RegCloseKey(mKey);
        Remove();
    }

    static const wchar_t* Path() { return config::ProfileKeyPath(config::GetOSVersionCode()); }
    // None of the keys that profiles are looked for in is left.
    static void Remove()
    {
        for (const std::wstring& path : {std::wstring(Path()), std::wstring(NtPath()), OfficePath(L"16.0")})
        {
            RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str());
        }
    }
    static const wchar_t* NtPath() { return config::ProfileKeyPath(1); }
    static std::wstring OfficePath(const std::wstring& version)
    {
        return L"Software\\Microsoft\\Office\\" + version + L"\\Outlook\\Profiles";
    }

    HKEY Key() const { return mKey; }
    void AddProfile(const std::wstring& name) const
    {
        HKEY made = nullptr;
        RegCreateKeyExW(mKey, name.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &made, nullptr);
        RegCloseKey(made);
    }
    void SetDefault(const std::wstring& name) const
    {
        RegSetValueExW(mKey, L"DefaultProfile", 0, REG_SZ, reinterpret_cast<const BYTE*>(name.c_str()),
                       static_cast<DWORD>((name.size() + 1) * sizeof(wchar_t)));
    }
    std::wstring Default() const
    {
        wchar_t text[256] = {};
        DWORD size = sizeof text;
        RegGetValueW(mKey, nullptr, L"DefaultProfile", RRF_RT_REG_SZ, nullptr, text, &size);
        return text;
    }

  private:
    HKEY mKey = nullptr;
};

} // namespace config_tests
