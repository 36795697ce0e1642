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

// What the removal of the keys below one root comes to.
struct Removal
{
    bool found = false;  // a key was there, and is gone
    bool denied = false; // a key is there, and may not be removed
    bool failed = false; // a key is there, and is not removed for another reason
};

void DeleteTree(HKEY root, const std::wstring& key, Removal& removal)
{
    const std::wstring path = kClasses + key;
    switch (RegDeleteTreeW(root, path.c_str()))
    {
    case ERROR_SUCCESS:
        RegDeleteKeyW(root, path.c_str()); // some systems leave the emptied key itself
        removal.found = true;
        break;
    case ERROR_FILE_NOT_FOUND: break;
    case ERROR_ACCESS_DENIED: removal.denied = true; break;
    default: removal.failed = true;
    }
}

// Both architectures share the programmatic identifier and the type library's key, since Windows redirects
// neither of them. They stay as long as the other architecture is registered, which its platform's entry in
// the type library tells.
std::vector<std::wstring> KeysToDelete(HKEY root)
{
    const Keys keys;
    const std::wstring platforms = keys.versionKey + L"\\0\\";
    if (KeyExists(root, kClasses + platforms + kOtherPlatform))
    {
        return {keys.classKey, keys.interfaceKey, platforms + kPlatform};
    }
    return {kProgId, keys.classKey, keys.interfaceKey, keys.libraryKey};
}

Removal DeleteAll(HKEY root)
{
    Removal removal;
    for (const std::wstring& key : KeysToDelete(root))
    {
        DeleteTree(root, key, removal);
    }
    return removal;
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
    const Removal user = DeleteAll(HKEY_CURRENT_USER);
    const Removal machine = DeleteAll(HKEY_LOCAL_MACHINE);
    // A caller who has a registration of his own removes that one. The machine's then belongs to all users.
    const bool isMachineLeft = machine.failed || (machine.denied && !user.found);
    return user.denied || user.failed || isMachineLeft ? SELFREG_E_CLASS : S_OK;
}

} // namespace entry
