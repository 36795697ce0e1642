// Profiles in a key of a newer version's, on a system that lacks the usual key: made for the length of a
// test.
#pragma once

#include "tests/config/ProfileKey.h"

#include <string>
#include <vector>

#include <windows.h>

namespace config_tests
{

class NewerProfiles
{
  public:
    // The key with these profiles. The name of the default one is in the key itself or in the one above.
    NewerProfiles(std::wstring path, const std::vector<std::wstring>& profiles,
                  std::wstring keyOfDefault = {})
        : mPath(std::move(path)), mKeyOfDefault(std::move(keyOfDefault))
    {
        Create(mPath);
        for (const std::wstring& profile : profiles)
        {
            Create(mPath + L"\\" + profile);
        }
        if (!mKeyOfDefault.empty())
        {
            SetDefault(profiles.front());
        }
    }
    NewerProfiles(const NewerProfiles&) = delete;
    NewerProfiles& operator=(const NewerProfiles&) = delete;
    ~NewerProfiles()
    {
        RegDeleteTreeW(HKEY_CURRENT_USER, mPath.c_str());
        RegDeleteKeyValueW(HKEY_CURRENT_USER, mKeyOfDefault.c_str(), L"DefaultProfile");
    }

    std::wstring Default() const { return DefaultIn(mKeyOfDefault); }
    static std::wstring DefaultIn(const std::wstring& path)
    {
        wchar_t text[256] = {};
        DWORD size = sizeof text;
        RegGetValueW(HKEY_CURRENT_USER, path.c_str(), L"DefaultProfile", RRF_RT_REG_SZ, nullptr, text, &size);
        return text;
    }
    const std::wstring& Path() const { return mPath; }

  private:
    static void Create(const std::wstring& path)
    {
        HKEY made = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &made,
                        nullptr);
        RegCloseKey(made);
    }
    void SetDefault(const std::wstring& profile) const
    {
        RegSetKeyValueW(HKEY_CURRENT_USER, mKeyOfDefault.c_str(), L"DefaultProfile", REG_SZ, profile.c_str(),
                        static_cast<DWORD>((profile.size() + 1) * sizeof(wchar_t)));
    }

    std::wstring mPath;
    std::wstring mKeyOfDefault;
};

} // namespace config_tests
