// Folder paths: the names of the folders from the top-level store down, joined by a backslash.
#pragma once

#include <string>

namespace sandbox::outlook
{

inline constexpr wchar_t kPathSeparator = L'\\';
// Behind this character stands what tells two stores of one name apart; it is no part of the name.
inline constexpr wchar_t kTwinMark = L'\x1F';

// The path without its last name; empty for that of a top-level store.
inline std::wstring ParentOf(const std::wstring& path)
{
    const size_t at = path.rfind(kPathSeparator);
    return at == std::wstring::npos ? std::wstring() : path.substr(0, at);
}

// The last name of a path.
inline std::wstring NameIn(const std::wstring& path)
{
    const size_t at = path.rfind(kPathSeparator);
    return at == std::wstring::npos ? path : path.substr(at + 1);
}

// A path without the marks of twins: as Outlook shows it.
inline std::wstring ShownPath(std::wstring path)
{
    for (size_t at = path.find(kTwinMark); at != std::wstring::npos; at = path.find(kTwinMark))
    {
        path.erase(at, path.find(kPathSeparator, at) - at);
    }
    return path;
}

} // namespace sandbox::outlook
