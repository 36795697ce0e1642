#include "report/RunLog.h"

#include "automation/Text.h"
#include "state/Failures.h"
#include "ui/Handover.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <vector>

namespace report
{

namespace
{

constexpr wchar_t kCut[] = L"...\r\n";
constexpr size_t kMark = 3; // bytes, before the text

std::optional<DWORD> SettingBelow(HKEY root, const wchar_t* name)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, kSettingsKey, 0, KEY_QUERY_VALUE | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS)
    {
        return std::nullopt;
    }
    DWORD value = 0;
    DWORD size = sizeof value;
    DWORD type = 0;
    const LSTATUS read = RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(&value), &size);
    RegCloseKey(key);
    return read == ERROR_SUCCESS && type == REG_DWORD ? std::optional(value) : std::nullopt;
}

bool IsSet(const wchar_t* name)
{
    for (HKEY const root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER})
    {
        if (const auto value = SettingBelow(root, name))
        {
            return *value != 0;
        }
    }
    return false;
}

// The folder of the logs, made where it does not exist; nothing without a folder for the user's data.
std::optional<std::wstring> Folder()
{
    std::array<wchar_t, MAX_PATH> data = {};
    const DWORD length = GetEnvironmentVariableW(L"LOCALAPPDATA", data.data(), MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
    {
        return std::nullopt;
    }
    std::wstring folder = data.data();
    for (const wchar_t* part : {L"\\Telvix", L"\\Logs"})
    {
        folder += part;
        CreateDirectoryW(folder.c_str(), nullptr);
    }
    return folder + L"\\";
}

// Names sort by time; those of two processes differ.
std::wstring FileName(const SYSTEMTIME& now)
{
    std::array<wchar_t, 64> name = {};
    std::swprintf(name.data(), name.size(), L"run-%04u%02u%02u-%02u%02u%02u-%03u-%lu.log", now.wYear,
                  now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds,
                  GetCurrentProcessId());
    return name.data();
}

std::vector<std::wstring> LogsIn(const std::wstring& folder)
{
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((folder + L"run-*.log").c_str(), &found);
    for (bool any = search != INVALID_HANDLE_VALUE; any; any = FindNextFileW(search, &found) != 0)
    {
        names.emplace_back(found.cFileName);
    }
    if (search != INVALID_HANDLE_VALUE)
    {
        FindClose(search);
    }
    std::ranges::sort(names);
    return names;
}

void DeleteOldest(const std::wstring& folder)
{
    const std::vector<std::wstring> names = LogsIn(folder);
    for (size_t i = 0; i + kMostLogs < names.size(); ++i)
    {
        DeleteFileW((folder + names[i]).c_str());
    }
}

// Whole lines only.
std::wstring CutToSize(std::wstring text)
{
    constexpr size_t kMostBytesOfCharacter = 3; // of a UTF-16 unit in UTF-8
    constexpr size_t kMostCharacters = kMostLogBytes / kMostBytesOfCharacter - 8;
    if (text.size() <= kMostCharacters || automation::ToUtf8(text).size() + kMark <= kMostLogBytes)
    {
        return text;
    }
    text.resize(kMostCharacters);
    text.resize(text.rfind(L'\n') + 1);
    return text + kCut;
}

} // namespace

void LogRun(const FinishedRun& run) noexcept
{
    state::Trapped(false, [&] {
        const auto folder = IsSet(kLogsRuns) ? Folder() : std::nullopt;
        if (folder)
        {
            const Values values = IsSet(kLogsValues) ? Values::Included : Values::LeftOut;
            ui::WriteTextFile(*folder + FileName(run.EndedAt), CutToSize(TextOf(run, values)));
            DeleteOldest(*folder);
        }
        return folder.has_value();
    });
}

} // namespace report
