// The lists that callers of the host pass as text: columns, SQL literals and "column=literal" pairs, taken
// apart strictly. Blanks around an entry are allowed, nothing else is. All throw Rejection.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sandbox
{

struct Literal
{
    enum class Kind
    {
        Null,
        Number,
        Text,
    };

    Kind kind = Kind::Null;
    std::wstring text; // a number's digits, or a text without its quotes and their doubling
};

struct Assignment
{
    std::wstring column;
    Literal literal;
};

// [+-] digits [. digits] [E [+-] digits]
bool IsNumber(std::wstring_view text);

// NULL, a number, or a text between single quotes with the quotes inside it doubled.
Literal ParseLiteral(std::wstring_view text);

std::vector<std::wstring> ParseColumns(std::wstring_view list);
std::vector<Literal> ParseLiterals(std::wstring_view list);
std::vector<Assignment> ParseAssignments(std::wstring_view list);

// Refuses a text with an odd number of single quotes, or with a second statement behind a ";".
void CheckQuotes(std::wstring_view sql);

} // namespace sandbox
