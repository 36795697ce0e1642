#include "exchange/Secrets.h"

#include "automation/Text.h"

#include <algorithm>
#include <cwctype>
#include <functional>
#include <vector>

namespace exchange
{

using automation::UpperCased;

namespace
{

constexpr wchar_t kMask[] = L"***";
constexpr wchar_t kQuotedMask[] = L"'***'";
constexpr const wchar_t* kPasswordKeys[] = {L"PASSWORD", L"PWD"};
constexpr size_t kShortestMasked = 3; // a shorter password is masked behind its key only

bool IsWordCharacter(wchar_t character)
{
    return std::iswalnum(character) != 0 || character == L'_';
}

// Where a value that begins at a position ends: at its closing quote, or before the next ";" or line.
size_t EndOfValue(const std::wstring& text, size_t begin)
{
    const bool isQuoted =
        begin < text.size() && (text[begin] == L'"' || text[begin] == L'\'' || text[begin] == L'{');
    if (isQuoted)
    {
        const size_t end = text.find(text[begin] == L'{' ? L'}' : text[begin], begin + 1);
        return end == std::wstring::npos ? text.size() : end + 1;
    }
    return std::min(text.find_first_of(L";\"\r\n", begin), text.size());
}

struct Span
{
    size_t Begin;
    size_t End;
};

// The values of "password = value", in any letter case.
std::vector<Span> PasswordsIn(const std::wstring& text)
{
    std::vector<Span> found;
    const std::wstring upper = UpperCased(text);
    for (const std::wstring key : kPasswordKeys)
    {
        for (size_t at = upper.find(key); at != std::wstring::npos; at = upper.find(key, at + 1))
        {
            const size_t sign = upper.find_first_not_of(L' ', at + key.size());
            if (sign == std::wstring::npos || upper[sign] != L'=')
            {
                continue;
            }
            const size_t begin = std::min(upper.find_first_not_of(L' ', sign + 1), upper.size());
            found.push_back({begin, EndOfValue(text, begin)});
        }
    }
    return found;
}

std::wstring Unquoted(std::wstring value)
{
    const bool isQuoted =
        value.size() >= 2 && std::wstring(L"\"'{").find(value.front()) != std::wstring::npos;
    return isQuoted ? value.substr(1, value.size() - 2) : automation::Trimmed(value);
}

std::wstring MaskedPasswords(std::wstring words)
{
    std::vector<Span> passwords = PasswordsIn(words);
    std::ranges::sort(passwords, std::ranges::greater(), &Span::Begin);
    for (const Span& password : passwords)
    {
        words.replace(password.Begin, password.End - password.Begin, kMask);
    }
    return words;
}

// Whether a literal begins at a quote, and not an apostrophe within or behind a word: N'...' is one too.
bool BeginsLiteral(const std::wstring& text, size_t quote)
{
    const auto isWord = [&](size_t before) {
        return quote >= before && IsWordCharacter(text[quote - before]);
    };
    return !isWord(1) || (text[quote - 1] == L'N' && !isWord(2));
}

// The closing quote of a literal that begins at a position, or the last character of a text that was cut.
size_t EndOfLiteral(const std::wstring& text, size_t begin)
{
    for (size_t at = begin + 1; at < text.size(); ++at)
    {
        const bool isQuote = text[at] == L'\'';
        const bool isDoubled = isQuote && at + 1 < text.size() && text[at + 1] == L'\'';
        if (isDoubled)
        {
            ++at;
        }
        else if (isQuote && (at + 1 == text.size() || !IsWordCharacter(text[at + 1])))
        {
            return at;
        }
    }
    return text.size() - 1;
}

std::wstring MaskedLiterals(const std::wstring& words)
{
    std::wstring masked;
    for (size_t at = 0; at < words.size(); ++at)
    {
        const bool isLiteral = words[at] == L'\'' && BeginsLiteral(words, at);
        masked += isLiteral ? kQuotedMask : std::wstring(1, words[at]);
        at = isLiteral ? EndOfLiteral(words, at) : at;
    }
    return masked;
}

} // namespace

std::wstring WithoutSecrets(std::wstring words, const std::wstring& connection)
{
    if (words.empty())
    {
        return words;
    }
    if (!connection.empty())
    {
        words = automation::Replaced(std::move(words), connection, kMask);
    }
    for (const Span& password : PasswordsIn(connection))
    {
        const std::wstring value = Unquoted(connection.substr(password.Begin, password.End - password.Begin));
        if (value.size() >= kShortestMasked)
        {
            words = automation::Replaced(std::move(words), value, kMask);
        }
    }
    return MaskedLiterals(MaskedPasswords(std::move(words)));
}

} // namespace exchange
