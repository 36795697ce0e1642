#include "sandbox/host/Literals.h"

#include "automation/Text.h"
#include "sandbox/host/Rejection.h"

#include <algorithm>
#include <cwctype>
#include <iterator>

namespace sandbox
{

namespace
{

constexpr wchar_t kQuote = L'\'';

std::wstring Quoted(std::wstring_view text)
{
    return L"\"" + std::wstring(text) + L"\"";
}

[[noreturn]] void Malformed(std::wstring_view text)
{
    throw Rejection(Refusal::MalformedLiteral,
                    Quoted(text) + L" is neither NULL, a number nor a text in quotes");
}

// The entries between the commas that stand outside quotes, without the blanks around them.
std::vector<std::wstring> Split(std::wstring_view list)
{
    CheckQuotes(list);
    std::vector<std::wstring> entries;
    bool isQuoted = false;
    size_t start = 0;
    for (size_t i = 0; i <= list.size(); ++i)
    {
        if (i == list.size() || (list[i] == L',' && !isQuoted))
        {
            entries.push_back(automation::Trimmed(list.substr(start, i - start)));
            start = i + 1;
        }
        else if (list[i] == kQuote)
        {
            isQuoted = !isQuoted;
        }
    }
    return entries;
}

bool IsIdentifier(std::wstring_view text)
{
    const auto isPart = [](wchar_t c) { return c < 128 && (std::iswalnum(c) != 0 || c == L'_'); };
    return !text.empty() && std::iswdigit(text.front()) == 0 && std::ranges::all_of(text, isPart);
}

std::wstring ParseColumn(const std::wstring& text)
{
    if (!IsIdentifier(text))
    {
        throw Rejection(Refusal::UnknownColumn, Quoted(text) + L" is no column name");
    }
    return text;
}

size_t DigitsFrom(std::wstring_view text, size_t at)
{
    const auto* end = std::find_if(text.data() + at, text.data() + text.size(),
                                   [](wchar_t c) { return c < L'0' || c > L'9'; });
    return static_cast<size_t>(end - (text.data() + at));
}

std::wstring Unquoted(std::wstring_view text)
{
    const std::wstring_view inside = text.substr(1, text.size() - 2);
    std::wstring result;
    for (size_t i = 0; i < inside.size(); ++i)
    {
        if (inside[i] == kQuote && (++i == inside.size() || inside[i] != kQuote))
        {
            Malformed(text);
        }
        result += inside[i];
    }
    return result;
}

} // namespace

bool IsNumber(std::wstring_view text)
{
    const auto skipSign = [&](size_t at) {
        return at < text.size() && (text[at] == L'+' || text[at] == L'-') ? at + 1 : at;
    };
    size_t at = skipSign(0);
    const size_t whole = DigitsFrom(text, at);
    at += whole;
    size_t fraction = 0;
    if (at < text.size() && text[at] == L'.')
    {
        fraction = DigitsFrom(text, at + 1);
        at += 1 + fraction;
    }
    if (whole + fraction > 0 && at < text.size() && std::towupper(text[at]) == L'E')
    {
        at = skipSign(at + 1);
        const size_t exponent = DigitsFrom(text, at);
        return exponent > 0 && at + exponent == text.size();
    }
    return whole + fraction > 0 && at == text.size();
}

void CheckQuotes(std::wstring_view sql)
{
    bool isQuoted = false;
    for (const wchar_t c : sql)
    {
        if (c == kQuote)
        {
            isQuoted = !isQuoted;
        }
        else if (c == L';' && !isQuoted)
        {
            throw Rejection(Refusal::BadStatement, L"A second statement in " + Quoted(sql));
        }
    }
    if (isQuoted)
    {
        throw Rejection(Refusal::UnbalancedQuotes, L"A quote is not closed in " + Quoted(sql));
    }
}

Literal ParseLiteral(std::wstring_view text)
{
    if (automation::UpperCased(std::wstring(text)) == L"NULL")
    {
        return {Literal::Kind::Null, {}};
    }
    if (IsNumber(text))
    {
        return {Literal::Kind::Number, std::wstring(text)};
    }
    if (text.size() < 2 || text.front() != kQuote || text.back() != kQuote)
    {
        Malformed(text);
    }
    return {Literal::Kind::Text, Unquoted(text)};
}

std::vector<std::wstring> ParseColumns(std::wstring_view list)
{
    const std::vector<std::wstring> entries = Split(list);
    std::vector<std::wstring> columns;
    std::ranges::transform(entries, std::back_inserter(columns), ParseColumn);
    return columns;
}

std::vector<Literal> ParseLiterals(std::wstring_view list)
{
    const std::vector<std::wstring> entries = Split(list);
    std::vector<Literal> literals;
    std::ranges::transform(entries, std::back_inserter(literals), ParseLiteral);
    return literals;
}

std::vector<Assignment> ParseAssignments(std::wstring_view list)
{
    std::vector<Assignment> assignments;
    for (const std::wstring& entry : Split(list))
    {
        const size_t sign = entry.find(L'=');
        if (sign == std::wstring::npos)
        {
            throw Rejection(Refusal::BadStatement, Quoted(entry) + L" sets nothing");
        }
        assignments.push_back({ParseColumn(automation::Trimmed(entry.substr(0, sign))),
                               ParseLiteral(automation::Trimmed(entry.substr(sign + 1)))});
    }
    return assignments;
}

} // namespace sandbox
