#include "ui/Handover.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <array>
#include <cstring>

#include <commdlg.h>

namespace ui
{

namespace
{

constexpr char kMark[] = "\xEF\xBB\xBF";

// Null without memory.
HGLOBAL InGlobalMemory(const std::wstring& text)
{
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    HGLOBAL const memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (void* const data = memory != nullptr ? GlobalLock(memory) : nullptr)
    {
        std::memcpy(data, text.c_str(), bytes);
        GlobalUnlock(memory);
    }
    return memory;
}

// Loaded when it is needed: it brings the shell with it, and every host would wait for that. It stays loaded,
// because extensions of the shell may have left threads in it.
template<typename Function>
Function* FromDialogs(const char* name)
{
    static const HMODULE kDialogs = LoadLibraryExW(L"comdlg32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const auto found = kDialogs != nullptr ? GetProcAddress(kDialogs, name) : nullptr;
    if (found == nullptr)
    {
        throw automation::Error(HRESULT_FROM_WIN32(GetLastError()), L"comdlg32.dll");
    }
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

bool WriteAll(HANDLE file, const std::string& bytes)
{
    DWORD written = 0;
    return WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != 0 &&
           written == bytes.size();
}

} // namespace

bool CopyToClipboard(HWND owner, const std::wstring& text)
{
    if (!OpenClipboard(owner))
    {
        return false;
    }
    EmptyClipboard();
    HGLOBAL const memory = InGlobalMemory(text);
    const bool isTaken = memory != nullptr && SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
    if (!isTaken)
    {
        // cppcheck-suppress doubleFree ; the clipboard has the memory only if it took it
        GlobalFree(memory);
    }
    CloseClipboard();
    return isTaken;
}

std::optional<std::wstring> AskForFile(HWND owner, const std::wstring& name, const std::wstring& files,
                                       const std::wstring& pattern, const wchar_t* extension)
{
    std::array<wchar_t, 1024> path = {};
    name.copy(path.data(), path.size() - 1);
    const std::wstring filter = files + L'\0' + pattern + L'\0';
    OPENFILENAMEW question = {};
    question.lStructSize = sizeof question;
    question.hwndOwner = owner;
    question.lpstrFilter = filter.c_str();
    question.lpstrFile = path.data();
    question.nMaxFile = static_cast<DWORD>(path.size());
    question.lpstrDefExt = extension;
    question.Flags =
        OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
    if (FromDialogs<decltype(GetSaveFileNameW)>("GetSaveFileNameW")(&question))
    {
        return path.data();
    }
    if (FromDialogs<decltype(CommDlgExtendedError)>("CommDlgExtendedError")() != 0)
    {
        throw automation::Error(E_FAIL, L"GetSaveFileName");
    }
    return std::nullopt;
}

bool WriteTextFile(const std::wstring& path, const std::wstring& text)
{
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return false;
    }
    const bool isWritten = WriteAll(file, kMark + automation::ToUtf8(text));
    const DWORD error = GetLastError();
    CloseHandle(file);
    SetLastError(error);
    return isWritten;
}

} // namespace ui
