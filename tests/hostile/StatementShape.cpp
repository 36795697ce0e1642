#include "tests/hostile/StatementShape.h"

#include "automation/Text.h"

#include <algorithm>

namespace test_support
{

namespace
{

constexpr wchar_t kQuote = L'\'';

// Behind the text that begins here; npos when it is not closed.
size_t EndOfText(std::wstring_view sql, size_t start)
{
    for (size_t i = start + 1; i < sql.size(); ++i)
    {
        if (sql[i] != kQuote)
        {
            continue;
        }
        if (i + 1 == sql.size() || sql[i + 1] != kQuote)
        {
            return i + 1;
        }
        ++i;
    }
    return std::wstring_view::npos;
}

// Values stand at the beginning of a list, behind a comma and behind "=".
bool IsPlaceOfValue(const std::wstring& before)
{
    const std::wstring seen = automation::Trimmed(before);
    return seen.empty() || seen.ends_with(L',') || seen.ends_with(L'=');
}

std::wstring_view WordAt(std::wstring_view sql, size_t start)
{
    return sql.substr(start, std::min(sql.find_first_of(L", '=", start), sql.size()) - start);
}

bool IsBareValue(std::wstring_view word)
{
    return word == L"NULL" || sandbox::IsNumber(word);
}

} // namespace

std::wstring ShapeOf(std::wstring_view text)
{
    std::wstring shape;
    for (size_t i = 0; i < text.size();)
    {
        const std::wstring_view word = WordAt(text, i);
        if (text[i] == kQuote)
        {
            const size_t end = EndOfText(text, i);
            if (end == std::wstring_view::npos)
            {
                return shape + L"(open)";
            }
            shape += L'?';
            i = end;
        }
        else if (IsPlaceOfValue(shape) && IsBareValue(word))
        {
            shape += L'?';
            i += word.size();
        }
        else
        {
            shape += text[i++];
        }
    }
    return shape;
}

std::vector<std::wstring> ShapesOf(const Statements& statements)
{
    std::vector<std::wstring> shapes;
    for (const Statement& statement : statements)
    {
        std::wstring shape = statement.member;
        for (const std::wstring& argument : statement.arguments)
        {
            shape += L"|" + ShapeOf(argument);
        }
        shapes.push_back(std::move(shape));
    }
    return shapes;
}

} // namespace test_support
