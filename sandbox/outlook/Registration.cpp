#include "sandbox/outlook/Registration.h"

#include "automation/Error.h"
#include "sandbox/outlook/ClassObject.h"

#include <cwchar>

#include <objbase.h>

namespace sandbox::outlook
{

namespace
{

// Per machine, since Wine looks programmatic identifiers up there only.
const HKEY kClassesRoot = HKEY_LOCAL_MACHINE;
constexpr const wchar_t* kClasses = L"Software\\Classes\\";
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

std::wstring TextOf(const CLSID& id)
{
    wchar_t text[40];
    StringFromGUID2(id, text, ARRAYSIZE(text));
    return text;
}

void SetText(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& text)
{
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    Check(RegSetKeyValueW(root, key.c_str(), name, REG_SZ, text.c_str(), size), key);
}

std::wstring ReadText(HKEY root, const std::wstring& key, const wchar_t* name)
{
    wchar_t text[MAX_PATH * 4];
    DWORD size = sizeof text;
    const LSTATUS status = RegGetValueW(root, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? std::wstring(text) : std::wstring();
}

// A setting of the sandbox; an empty text removes it.
void SetOrRemove(const wchar_t* name, const std::wstring& text)
{
    if (!text.empty())
    {
        SetText(HKEY_CURRENT_USER, kSettings, name, text);
        return;
    }
    const LSTATUS status = RegDeleteKeyValueW(HKEY_CURRENT_USER, kSettings, name);
    if (status != ERROR_FILE_NOT_FOUND)
    {
        Check(status, kSettings);
    }
}

void DeleteKey(const std::wstring& key)
{
    const LSTATUS status = RegDeleteTreeW(kClassesRoot, key.c_str());
    if (status != ERROR_FILE_NOT_FOUND)
    {
        Check(status, key);
    }
}

std::wstring ClassKey(const CLSID& id)
{
    return std::wstring(kClasses) + L"CLSID\\" + TextOf(id);
}

} // namespace

void RegisterProgId(const wchar_t* progId, const CLSID& id)
{
    const std::wstring key = std::wstring(kClasses) + progId + L"\\CLSID";
    if (ReadText(kClassesRoot, key, nullptr) != TextOf(id))
    {
        SetText(kClassesRoot, key, nullptr, TextOf(id));
    }
}

void RegisterServer(const std::wstring& program)
{
    for (const ServedClass& served : kServedClasses)
    {
        RegisterProgId(served.progId, served.id);
        SetText(kClassesRoot, ClassKey(served.id) + L"\\LocalServer32", nullptr, L"\"" + program + L"\"");
        SetText(kClassesRoot, ClassKey(served.id) + L"\\ProgID", nullptr, served.progId);
    }
}

void UnregisterServer()
{
    for (const ServedClass& served : kServedClasses)
    {
        DeleteKey(ClassKey(served.id));
    }
}

std::wstring ChosenMailbox()
{
    const std::wstring chosen = ReadText(HKEY_CURRENT_USER, kSettings, kMailboxValue);
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
    return std::wcstol(ReadText(HKEY_CURRENT_USER, kSettings, kDelayValue).c_str(), nullptr, 10);
}

void ChooseStartDelay(long milliseconds)
{
    SetOrRemove(kDelayValue, milliseconds == 0 ? std::wstring() : std::to_wstring(milliseconds));
}

} // namespace sandbox::outlook
