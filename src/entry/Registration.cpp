#include "entry/Registration.h"

#include "automation/Error.h"

#include <initguid.h> // the library's identifier is defined here

#include "TelvixIdl.h"
#include "Version.h"

#include <string>
#include <vector>

#include <objbase.h>
#include <olectl.h>

namespace entry
{

namespace
{

constexpr wchar_t kClasses[] = L"Software\\Classes\\";
constexpr wchar_t kProgId[] = L"TelvixOutlook.ClsSynOutlook";
constexpr wchar_t kLibraryVersion[] = L"" TELVIX_LIBRARY_VERSION;
constexpr wchar_t kDescription[] = L"QUENLAR Sales System - Synchronize Outlook";
// The marshaler of OLE Automation, which serves every interface that a type library describes.
constexpr wchar_t kAutomationMarshaler[] = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr const wchar_t* kOtherPlatform = sizeof(void*) == 8 ? L"win32" : L"win64";

std::wstring TextOfGuid(REFGUID guid)
{
    wchar_t text[39];
    return {text, static_cast<size_t>(StringFromGUID2(guid, text, ARRAYSIZE(text))) - 1};
}

struct Keys
{
    std::wstring clsid = TextOfGuid(__uuidof(::ClsSynOutlook));
    std::wstring iid = TextOfGuid(__uuidof(_ClsSynOutlook));
    std::wstring libid = TextOfGuid(LIBID_TelvixOutlook);
    std::wstring classKey = L"CLSID\\" + clsid;
    std::wstring interfaceKey = L"Interface\\" + iid;
    std::wstring libraryKey = L"TypeLib\\" + libid;
    std::wstring versionKey = libraryKey + L"\\" + kLibraryVersion;
};

struct Row
{
    std::wstring key;
    const wchar_t* name; // null for the key's default value
    std::wstring value;
};

std::vector<Row> RowsFor(const std::wstring& path)
{
    const Keys keys;
    const std::wstring folder = path.substr(0, path.find_last_of(L'\\'));
    return {
        {kProgId, nullptr, kProgId},
        {std::wstring(kProgId) + L"\\CLSID", nullptr, keys.clsid},
        {keys.classKey, nullptr, kProgId},
        {keys.classKey + L"\\InprocServer32", nullptr, path},
        {keys.classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {keys.classKey + L"\\ProgID", nullptr, kProgId},
        {keys.classKey + L"\\Programmable", nullptr, L""},
        {keys.classKey + L"\\TypeLib", nullptr, keys.libid},
        {keys.classKey + L"\\VERSION", nullptr, kLibraryVersion},
        {keys.interfaceKey, nullptr, L"_ClsSynOutlook"},
        {keys.interfaceKey + L"\\ProxyStubClsid32", nullptr, kAutomationMarshaler},
        {keys.interfaceKey + L"\\TypeLib", nullptr, keys.libid},
        {keys.interfaceKey + L"\\TypeLib", L"Version", kLibraryVersion},
        {keys.versionKey, nullptr, kDescription},
        {keys.versionKey + L"\\0\\" + kPlatform, nullptr, path},
        {keys.versionKey + L"\\FLAGS", nullptr, L"0"},
        {keys.versionKey + L"\\HELPDIR", nullptr, folder},
    };
}

LSTATUS Write(HKEY root, const Row& row)
{
    HKEY key = nullptr;
    const LSTATUS created = RegCreateKeyExW(root, (kClasses + row.key).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                                            nullptr, &key, nullptr);
    if (created != ERROR_SUCCESS)
    {
        return created;
    }
    const LSTATUS written =
        RegSetValueExW(key, row.name, 0, REG_SZ, reinterpret_cast<const BYTE*>(row.value.c_str()),
                       static_cast<DWORD>((row.value.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(key);
    return written;
}

bool KeyExists(HKEY root, const std::wstring& path)
{
    HKEY key = nullptr;
    const bool exists = RegOpenKeyExW(root, path.c_str(), 0, KEY_QUERY_VALUE, &key) == ERROR_SUCCESS;
    if (exists)
    {
        RegCloseKey(key);
    }
    return exists;
}

LSTATUS DeleteTree(HKEY root, const std::wstring& key)
{
    const std::wstring path = kClasses + key;
    const LSTATUS emptied = RegDeleteTreeW(root, path.c_str());
    if (emptied == ERROR_SUCCESS)
    {
        RegDeleteKeyW(root, path.c_str()); // some systems leave the emptied key itself
    }
    return emptied == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : emptied;
}

// The other architecture's module shares the type library's key; it keeps what is its own.
LSTATUS DeleteAll(HKEY root)
{
    const Keys keys;
    const std::wstring platforms = keys.versionKey + L"\\0\\";
    const bool isShared = KeyExists(root, kClasses + platforms + kOtherPlatform);
    LSTATUS result = ERROR_SUCCESS;
    for (const std::wstring& key : {std::wstring(kProgId), keys.classKey, keys.interfaceKey,
                                    isShared ? platforms + kPlatform : keys.libraryKey})
    {
        const LSTATUS deleted = DeleteTree(root, key);
        result = result == ERROR_SUCCESS ? deleted : result;
    }
    return result;
}

LSTATUS WriteAll(HKEY root, const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        const LSTATUS written = Write(root, row);
        if (written != ERROR_SUCCESS)
        {
            DeleteAll(root);
            return written;
        }
    }
    return ERROR_SUCCESS;
}

std::wstring PathOf(HMODULE module)
{
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(module, path, ARRAYSIZE(path));
    if (length == 0 || length == ARRAYSIZE(path))
    {
        throw automation::Error(HRESULT_FROM_WIN32(ERROR_FILENAME_EXCED_RANGE), L"GetModuleFileName");
    }
    return path;
}

} // namespace

HRESULT Register(HMODULE module)
{
    const std::vector<Row> rows = RowsFor(PathOf(module));
    LSTATUS written = WriteAll(HKEY_LOCAL_MACHINE, rows);
    if (written == ERROR_ACCESS_DENIED)
    {
        written = WriteAll(HKEY_CURRENT_USER, rows);
    }
    return written == ERROR_SUCCESS ? S_OK : SELFREG_E_CLASS;
}

HRESULT Unregister()
{
    const LSTATUS user = DeleteAll(HKEY_CURRENT_USER);
    const LSTATUS machine = DeleteAll(HKEY_LOCAL_MACHINE);
    // Nothing of ours can be where the caller may not write, unless somebody else put it there.
    const bool isMachineLeft = machine != ERROR_SUCCESS && machine != ERROR_ACCESS_DENIED;
    return user == ERROR_SUCCESS && !isMachineLeft ? S_OK : SELFREG_E_CLASS;
}

} // namespace entry
