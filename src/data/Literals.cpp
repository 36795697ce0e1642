#include "data/Literals.h"

#include "automation/Text.h"

#include <algorithm>

#include <windows.h>

namespace data
{

namespace
{

// Removes what the text begins with; the number of characters removed.
template<typename Predicate>
size_t Skip(std::wstring_view& text, Predicate&& fits)
{
    const auto end = std::ranges::find_if_not(text, fits);
    const auto count = static_cast<size_t>(end - text.begin());
    text.remove_prefix(count);
    return count;
}

size_t SkipDigits(std::wstring_view& text)
{
    return Skip(text, [](wchar_t c) { return c >= L'0' && c <= L'9'; });
}

bool SkipOneOf(std::wstring_view& text, std::wstring_view characters)
{
    const bool found = !text.empty() && characters.find(text.front()) != std::wstring_view::npos;
    text.remove_prefix(found ? 1 : 0);
    return found;
}

} // namespace

std::wstring QuotedText(std::wstring_view text)
{
    return L"'" + automation::Replaced(std::wstring(text), L"'", L"''") + L"'";
}

std::wstring NumberOrQuotedText(std::wstring_view text)
{
    return IsPlainNumber(text) ? std::wstring(text) : QuotedText(text);
}

bool IsPlainNumber(std::wstring_view text)
{
    SkipOneOf(text, L"+-");
    size_t digits = SkipDigits(text);
    if (SkipOneOf(text, L"."))
    {
        digits += SkipDigits(text);
    }
    if (digits > 0 && SkipOneOf(text, L"eE"))
    {
        SkipOneOf(text, L"+-");
        return SkipDigits(text) > 0 && text.empty();
    }
    return digits > 0 && text.empty();
}

bool IsColumnName(std::wstring_view text)
{
    const auto isPart = [](wchar_t c) { return c == L'_' || IsCharAlphaNumericW(c) != 0; };
    return !text.empty() && std::ranges::all_of(text, isPart);
}

} // namespace data
