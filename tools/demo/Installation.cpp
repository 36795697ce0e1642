#include "tools/demo/Installation.h"

#include "automation/Error.h"

#include <array>

namespace tools::demo
{

namespace
{

constexpr wchar_t kProfile[] = L"Outlook";
constexpr wchar_t kDefaultProfile[] = L"DefaultProfile";

struct ProfileKey
{
    Profiles where;
    const wchar_t* profiles;
    const wchar_t* keyOfDefault;
};

constexpr wchar_t kWindowsProfiles[] = L"Software\\Microsoft\\Windows Messaging Subsystem\\Profiles";
constexpr wchar_t kWindowsNtProfiles[] =
    L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging Subsystem\\Profiles";

constexpr ProfileKey kProfileKeys[] = {
    {Profiles::Classic, kWindowsProfiles, kWindowsProfiles},
    {Profiles::Classic, kWindowsNtProfiles, kWindowsNtProfiles},
    {Profiles::Modern, L"Software\\Microsoft\\Office\\16.0\\Outlook\\Profiles",
     L"Software\\Microsoft\\Office\\16.0\\Outlook"},
};

struct Direction
{
    long transType;
    const wchar_t* picture;
};
constexpr std::array<Direction, 3> kDirections{{{1, L"left"}, {2, L"right"}, {3, L"each"}}};

void Remove(const ProfileKey& key)
{
    RegDeleteTreeW(HKEY_CURRENT_USER, key.profiles);
    RegDeleteKeyW(HKEY_CURRENT_USER, key.profiles); // some systems leave the emptied key itself
    RegDeleteKeyValueW(HKEY_CURRENT_USER, key.keyOfDefault, kDefaultProfile);
}

void CheckStatus(LSTATUS status, const wchar_t* key)
{
    automation::Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), key);
}

// Writes over a profile that is there: another thread may be reading it.
void Install(const ProfileKey& key)
{
    const std::wstring profile = std::wstring(key.profiles) + L"\\" + kProfile;
    CheckStatus(
        RegSetKeyValueW(HKEY_CURRENT_USER, profile.c_str(), L"Name", REG_SZ, kProfile, sizeof kProfile),
        key.profiles);
    CheckStatus(RegSetKeyValueW(HKEY_CURRENT_USER, key.keyOfDefault, kDefaultProfile, REG_SZ, kProfile,
                                sizeof kProfile),
                key.keyOfDefault);
}

} // namespace

void InstallOutlookProfile(Profiles where)
{
    for (const ProfileKey& key : kProfileKeys)
    {
        if (key.where == where)
        {
            Install(key);
        }
        else
        {
            Remove(key);
        }
    }
}

void RemoveOutlookProfiles()
{
    for (const ProfileKey& key : kProfileKeys)
    {
        Remove(key);
    }
}

void StoreSettings(sandbox::Connection& host, const std::wstring& userId, const Options& options)
{
    constexpr const wchar_t* kOwn = L" FROM T_POutlookSyncParam AS Own WHERE Own.F_UID=?";
    host.Execute(
        std::wstring(
            L"CREATE TEMP TABLE Fresh AS SELECT * FROM T_POutlookSyncParam AS Template WHERE F_UID=0 "
            L"AND NOT EXISTS (SELECT 1") +
            kOwn + L" AND Own.TransObject=Template.TransObject)",
        {userId});
    host.Execute(L"UPDATE Fresh SET F_UID=?", {userId});
    host.Execute(L"INSERT INTO T_POutlookSyncParam SELECT * FROM Fresh");
    host.Execute(L"DROP TABLE Fresh");
    if (options.TransType)
    {
        const Direction& direction = kDirections.at(static_cast<size_t>(*options.TransType - 1));
        host.Execute(L"UPDATE T_POutlookSyncParam SET TransType=?, TransTypePic=? WHERE F_UID=?",
                     {direction.transType, direction.picture, userId});
    }
    if (options.ConflictOption)
    {
        host.Execute(L"UPDATE T_POutlookSyncParam SET TransConflictOption=? WHERE F_UID=?",
                     {*options.ConflictOption, userId});
    }
}

} // namespace tools::demo
