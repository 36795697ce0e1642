#include "config/outlook/OutlookProfiles.h"

#include "config/outlook/LocalSysInfo.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "ui/ShowMessage.h"
#include "ui/ShowMessageBox.h"

#include <algorithm>
#include <cwchar>
#include <optional>
#include <ranges>
#include <utility>

namespace config
{

namespace
{

constexpr int kWindowsNt = 1; // the operating-system code of the NT family
constexpr wchar_t kOffice[] = L"Software\\Microsoft\\Office";
constexpr wchar_t kBelowVersion[] = L"\\Outlook\\Profiles";

struct OfficeVersion
{
    unsigned long majorNumber;
    unsigned long minorNumber;
    std::wstring name;

    bool IsNewerThan(const OfficeVersion& other) const
    {
        return std::pair(majorNumber, minorNumber) > std::pair(other.majorNumber, other.minorNumber);
    }
};

// A key named like "16.0"; nothing for the others ("Common", "Outlook").
std::optional<OfficeVersion> VersionOf(const std::wstring& name)
{
    const size_t point = name.find(L'.');
    if (point == std::wstring::npos || point == 0 || point + 1 == name.size() ||
        name.find_first_not_of(L"0123456789.") != std::wstring::npos)
    {
        return std::nullopt;
    }
    const wchar_t* const text = name.c_str();
    return OfficeVersion{wcstoul(text, nullptr, 10), wcstoul(text + point + 1, nullptr, 10), name};
}

std::vector<OfficeVersion> OfficeVersions()
{
    TSysReg registry;
    std::vector<std::wstring> names;
    registry.OpenKey(HKEY_CURRENT_USER, kOffice);
    registry.GetSubKeyNames(names);
    std::vector<OfficeVersion> versions;
    for (const std::wstring& name : names)
    {
        if (auto version = VersionOf(name))
        {
            versions.push_back(std::move(*version));
        }
    }
    std::ranges::sort(versions, [](const auto& left, const auto& right) { return left.IsNewerThan(right); });
    return versions;
}

std::vector<std::wstring> NewerProfileKeys()
{
    std::vector<std::wstring> paths = {ProfileKeyPath(kWindowsNt)};
    for (const OfficeVersion& version : OfficeVersions())
    {
        paths.push_back(std::wstring(kOffice) + L"\\" + version.name + kBelowVersion);
    }
    return paths;
}

// Names that were listed before a failure count.
bool HasProfile(TSysReg& registry)
{
    std::vector<std::wstring> profiles;
    registry.GetSubKeyNames(profiles);
    return !profiles.empty();
}

bool IsMissing(const TSysReg& registry)
{
    return !registry.IsOpened() && registry.APIErrorCode() == ERROR_FILE_NOT_FOUND;
}

} // namespace

long OpenProfileKey(TSysReg& registry)
{
    std::wstring chosen = ProfileKeyPath(GetOSVersionCode());
    const long opened = registry.OpenKey(HKEY_CURRENT_USER, chosen);
    if (!IsMissing(registry))
    {
        return opened;
    }
    bool isAnyThere = false;
    for (const std::wstring& path : NewerProfileKeys())
    {
        const long result = registry.OpenKey(HKEY_CURRENT_USER, path);
        if (IsMissing(registry))
        {
            continue;
        }
        if (result != 0 || HasProfile(registry))
        {
            return result;
        }
        chosen = isAnyThere ? chosen : path;
        isAnyThere = true;
    }
    return registry.OpenKey(HKEY_CURRENT_USER, chosen);
}

long MoveToDefaultProfile(TSysReg& registry)
{
    return registry.Path().starts_with(kOffice) ? registry.GoUpPath() : 0;
}

void ShowRegistryFailure(const wchar_t* text, const TSysReg& registry)
{
    ui::ShowMessageBox(text + std::to_wstring(registry.APIErrorCode()), MB_OK);
}

bool CheckOutlookProfiles()
{
    return state::Trapped(true, [] {
        TSysReg registry;
        if (OpenProfileKey(registry) != 0)
        {
            ShowRegistryFailure(L"Open key error, code ", registry);
            state::LogError();
            return true;
        }
        if (HasProfile(registry))
        {
            return false;
        }
        ui::ShowMessage(resources::String(IDS_ERROR), 0,
                        resources::Choose(L"请你先配置Outlook.", L"Please configue Outlook."));
        return true;
    });
}

} // namespace config
