// Folder paths: the names of the folders from the top-level store down, joined by a backslash.
#pragma once

#include <string>

namespace sandbox::outlook
{

inline constexpr wchar_t kPathSeparator = L'\\';

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

} // namespace sandbox::outlook
