#include "automation/Text.h"

#include <algorithm>
#include <charconv>
#include <cwchar>

#include <windows.h>

namespace automation
{

std::string ToUtf8(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring FromUtf8(std::string_view text)
{
    const int length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring result(static_cast<size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), size);
    return result;
}

std::wstring Trimmed(std::wstring_view text)
{
    const size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos)
    {
        return {};
    }
    return std::wstring(text.substr(first, text.find_last_not_of(L' ') - first + 1));
}

std::wstring UpperCased(std::wstring text)
{
    // Most texts need no table of the system.
    if (std::ranges::all_of(text, [](wchar_t letter) { return letter < 0x80; }))
    {
        std::ranges::transform(text, text.begin(), [](wchar_t letter) {
            return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - L'a' + L'A') : letter;
        });
    }
    else
    {
        const int length = static_cast<int>(text.size());
        LCMapStringW(LOCALE_INVARIANT, LCMAP_UPPERCASE, text.c_str(), length, text.data(), length);
    }
    return text;
}

std::wstring DecimalText(long long number)
{
    char digits[24];
    const char* const end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    return std::wstring(static_cast<const char*>(digits), end);
}

double LeadingNumber(const std::wstring& text)
{
    const size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring::npos)
    {
        return 0;
    }
    const size_t end = text.find_first_not_of(L"+-.0123456789", first);
    return std::wcstod(text.substr(first, end == std::wstring::npos ? end : end - first).c_str(), nullptr);
}

std::wstring Replaced(std::wstring text, std::wstring_view what, std::wstring_view by)
{
    for (size_t at = text.find(what); at != std::wstring::npos; at = text.find(what, at + by.size()))
    {
        text.replace(at, what.size(), by);
    }
    return text;
}

} // namespace automation
