#include "tests/boundary/ProfileKeys.h"

#include "tools/demo/Installation.h"

namespace boundary_tests
{

const std::array<const wchar_t*, 2> ProfileKeys::kPaths = {
    L"Software\\Microsoft\\Windows Messaging Subsystem\\Profiles",
    L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging Subsystem\\Profiles",
};

ProfileKeys::ProfileKeys(const std::vector<std::wstring>& profiles)
{
    Remove();
    for (const wchar_t* path : kPaths)
    {
        for (const std::wstring& profile : profiles)
        {
            RegSetKeyValueW(HKEY_CURRENT_USER, (std::wstring(path) + L"\\" + profile).c_str(), L"Name",
                            REG_SZ, profile.c_str(),
                            static_cast<DWORD>((profile.size() + 1) * sizeof(wchar_t)));
        }
        if (!profiles.empty())
        {
            const std::wstring& first = profiles.front();
            RegSetKeyValueW(HKEY_CURRENT_USER, path, L"DefaultProfile", REG_SZ, first.c_str(),
                            static_cast<DWORD>((first.size() + 1) * sizeof(wchar_t)));
        }
    }
}

ProfileKeys::~ProfileKeys()
{
    Remove();
    tools::demo::InstallOutlookProfile(tools::demo::Profiles::Classic);
}

std::wstring ProfileKeys::Default() const
{
    for (const wchar_t* path : kPaths)
    {
        wchar_t text[256] = {};
        DWORD size = sizeof text;
        if (RegGetValueW(HKEY_CURRENT_USER, path, L"DefaultProfile", RRF_RT_REG_SZ, nullptr, text, &size) ==
                ERROR_SUCCESS &&
            std::wstring(text) != L"Outlook")
        {
            return text;
        }
    }
    return L"Outlook";
}

void ProfileKeys::Remove() const
{
    tools::demo::RemoveOutlookProfiles();
}

} // namespace boundary_tests
