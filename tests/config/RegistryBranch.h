// A key of a test's own below HKEY_CURRENT_USER\Software\TelvixTests, made empty at the start and removed
// with everything in it at the end.
#pragma once

#include <string>

#include <windows.h>

namespace config_tests
{

inline const std::wstring kTestsPath = L"Software\\TelvixTests";

class RegistryBranch
{
  public:
    explicit RegistryBranch(const std::wstring& name) : mPath(kTestsPath + L"\\" + name)
    {
        RegDeleteTreeW(HKEY_CURRENT_USER, mPath.c_str());
        RegCreateKeyExW(HKEY_CURRENT_USER, mPath.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &mKey,
                        nullptr);
    }
    RegistryBranch(const RegistryBranch&) = delete;
    RegistryBranch& operator=(const RegistryBranch&) = delete;
    ~RegistryBranch()
    {
        RegCloseKey(mKey);
        RegDeleteTreeW(HKEY_CURRENT_USER, mPath.c_str());
    }

    HKEY Key() const { return mKey; }
    const std::wstring& Path() const { return mPath; }

    void MakeSubKey(const std::wstring& name) const
    {
        HKEY made = nullptr;
        RegCreateKeyExW(mKey, name.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &made, nullptr);
        RegCloseKey(made);
    }

  private:
    std::wstring mPath;
    HKEY mKey = nullptr;
};

} // namespace config_tests
