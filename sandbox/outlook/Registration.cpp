#include "sandbox/outlook/Registration.h"

#include "automation/Error.h"
#include "sandbox/dispatch/ClassObject.h"
#include "sandbox/outlook/Classes.h"

#include <cwchar>

namespace sandbox::outlook
{

namespace
{

constexpr const wchar_t* kSettings = L"Software\\TelvixSandbox";
constexpr const wchar_t* kMailboxValue = L"Mailbox";
constexpr const wchar_t* kDelayValue = L"StartDelay";
constexpr const wchar_t* kMailboxVariable = L"TELVIX_SANDBOX_MAILBOX";

struct ServedClass
{
    const wchar_t* progId;
    const CLSID& id;
};

constexpr ServedClass kServedClasses[] = {{kOutlookProgId, kOutlookClass}, {kControlProgId, kControlClass}};

void Check(LSTATUS status, const std::wstring& what)
{
    automation::Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), what.c_str());
}

std::wstring ReadSetting(const wchar_t* name)
{
    wchar_t text[MAX_PATH * 4];
    DWORD size = sizeof text;
    const LSTATUS status =
        RegGetValueW(HKEY_CURRENT_USER, kSettings, name, RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? std::wstring(text) : std::wstring();
}

// A setting of the sandbox; an empty text removes it.
void SetOrRemove(const wchar_t* name, const std::wstring& text)
{
    if (!text.empty())
    {
        const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        Check(RegSetKeyValueW(HKEY_CURRENT_USER, kSettings, name, REG_SZ, text.c_str(), size), kSettings);
        return;
    }
    const LSTATUS status = RegDeleteKeyValueW(HKEY_CURRENT_USER, kSettings, name);
    if (status != ERROR_FILE_NOT_FOUND)
    {
        Check(status, kSettings);
    }
}

} // namespace

void RegisterServer(const std::wstring& program)
{
    for (const ServedClass& served : kServedClasses)
    {
        RegisterProgId(served.progId, served.id);
        SetClassText(ClassKey(served.id) + L"\\LocalServer32", nullptr, L"\"" + program + L"\"");
        SetClassText(ClassKey(served.id) + L"\\ProgID", nullptr, served.progId);
    }
}

void UnregisterServer()
{
    for (const ServedClass& served : kServedClasses)
    {
        DeleteClassKey(ClassKey(served.id));
    }
}

std::wstring ChosenMailbox()
{
    std::wstring chosen = ReadSetting(kMailboxValue);
    if (!chosen.empty())
    {
        return chosen;
    }
    wchar_t path[MAX_PATH * 4];
    const DWORD length = GetEnvironmentVariableW(kMailboxVariable, path, ARRAYSIZE(path));
    return length < ARRAYSIZE(path) ? std::wstring(path, length) : std::wstring();
}

void ChooseMailbox(const std::wstring& path)
{
    SetOrRemove(kMailboxValue, path);
}

long ChosenStartDelay()
{
    return std::wcstol(ReadSetting(kDelayValue).c_str(), nullptr, 10);
}

void ChooseStartDelay(long milliseconds)
{
    SetOrRemove(kDelayValue, milliseconds == 0 ? std::wstring() : std::to_wstring(milliseconds));
}

} // namespace sandbox::outlook
