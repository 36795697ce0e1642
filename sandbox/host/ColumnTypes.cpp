#include "sandbox/host/ColumnTypes.h"

#include <algorithm>

namespace sandbox
{

namespace
{

constexpr wchar_t kTextQuote = L'\'';

std::wstring AsKept(std::wstring text, const AwkwardAdo& awkward)
{
    if (awkward.charWidth > 0)
    {
        text.erase(text.find_last_not_of(L' ') + 1);
    }
    const bool isInBraces = text.size() > 2 && text.front() == L'{' && text.back() == L'}';
    return awkward.guids && isInBraces ? text.substr(1, text.size() - 2) : text;
}

// The closing quote; a doubled one is a part of the text.
size_t EndOfText(const std::wstring& sql, size_t start)
{
    size_t end = std::min(sql.find(kTextQuote, start + 1), sql.size());
    while (end + 1 < sql.size() && sql[end + 1] == kTextQuote)
    {
        end = std::min(sql.find(kTextQuote, end + 2), sql.size());
    }
    return end;
}

} // namespace

std::wstring InColumnTypes(const std::wstring& sql, const AwkwardAdo& awkward)
{
    std::wstring result;
    for (size_t at = 0; at < sql.size();)
    {
        const size_t start = std::min(sql.find(kTextQuote, at), sql.size());
        const size_t end = EndOfText(sql, start);
        result += sql.substr(at, start - at);
        if (end < sql.size())
        {
            result += kTextQuote + AsKept(sql.substr(start + 1, end - start - 1), awkward) + kTextQuote;
        }
        else
        {
            result += sql.substr(start);
        }
        at = end + 1;
    }
    return result;
}

} // namespace sandbox
