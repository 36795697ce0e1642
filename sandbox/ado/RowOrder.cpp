#include "sandbox/ado/RowOrder.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "sandbox/ado/Recordset.h"

#include <algorithm>
#include <cwchar>

namespace sandbox
{

namespace
{

[[noreturn]] void RefuseCriteria()
{
    throw automation::Error(kInvalidArgument, L"Recordset",
                            L"Arguments are of the wrong type, are out of acceptable range, or are in "
                            L"conflict with one another.");
}

std::vector<std::wstring> Split(const std::wstring& text, const std::wstring& separator)
{
    std::vector<std::wstring> parts;
    const std::wstring upper = automation::UpperCased(text);
    for (size_t at = 0; at <= text.size();)
    {
        const size_t end = std::min(upper.find(separator, at), text.size());
        parts.push_back(automation::Trimmed(text.substr(at, end - at)));
        at = end + separator.size();
    }
    return parts;
}

size_t ColumnOf(const ResultSet& result, const std::wstring& name)
{
    const size_t column = result.IndexOf(name);
    if (column == ResultSet::npos)
    {
        RefuseCriteria();
    }
    return column;
}

// Negative, 0 or positive; Null comes first, and texts are compared without regard to case.
int Compared(const Value& left, const Value& right)
{
    const bool noLeft = automation::IsEmptyOrNull(left);
    const bool noRight = automation::IsEmptyOrNull(right);
    if (noLeft || noRight)
    {
        return static_cast<int>(noRight) - static_cast<int>(noLeft);
    }
    if (left.Type() == VT_BSTR || right.Type() == VT_BSTR)
    {
        return _wcsicmp(automation::TextOf(left).c_str(), automation::TextOf(right).c_str());
    }
    const double a = automation::DoubleOf(left);
    const double b = automation::DoubleOf(right);
    return a < b ? -1 : a > b;
}

struct Operator
{
    const wchar_t* text;
    bool (*holds)(int order);
};

// Longer ones first: "<" begins some of them.
constexpr Operator kComparisons[] = {
    {L"<=", [](int order) { return order <= 0; }}, {L">=", [](int order) { return order >= 0; }},
    {L"<>", [](int order) { return order != 0; }}, {L"<", [](int order) { return order < 0; }},
    {L">", [](int order) { return order > 0; }},   {L"=", [](int order) { return order == 0; }},
};

std::function<bool(const Row&)> Clause(const ResultSet& result, const std::wstring& text)
{
    for (const Operator& operation : kComparisons)
    {
        const size_t at = text.find(operation.text);
        if (at != std::wstring::npos)
        {
            const size_t column = ColumnOf(result, automation::Trimmed(text.substr(0, at)));
            std::wstring literal = automation::Trimmed(text.substr(at + std::wcslen(operation.text)));
            const bool isQuoted = literal.size() > 1 && literal.front() == L'\'' && literal.back() == L'\'';
            const Value value =
                isQuoted ? Value(automation::Replaced(literal.substr(1, literal.size() - 2), L"''", L"'"))
                         : Value(std::wcstod(literal.c_str(), nullptr));
            return [column, value, holds = operation.holds](const Row& row) {
                return !automation::IsEmptyOrNull(row[column]) && holds(Compared(row[column], value));
            };
        }
    }
    RefuseCriteria();
}

} // namespace

void SortRows(const ResultSet& result, const std::wstring& columns, std::vector<size_t>& order)
{
    auto keys = Split(columns, L",");
    std::ranges::reverse(keys); // stable sorting by the last key first
    for (const std::wstring& key : keys)
    {
        const auto words = Split(key, L" ");
        const size_t column = ColumnOf(result, words.front());
        const bool isDescending = words.size() > 1 && automation::UpperCased(words.back()) == L"DESC";
        std::ranges::stable_sort(order, [&](size_t left, size_t right) {
            const int compared = Compared(result.rows[left][column], result.rows[right][column]);
            return isDescending ? compared > 0 : compared < 0;
        });
    }
}

std::function<bool(const Row&)> RowFilter(const ResultSet& result, const std::wstring& criteria)
{
    std::vector<std::function<bool(const Row&)>> clauses;
    for (const std::wstring& text : Split(criteria, L" AND "))
    {
        clauses.push_back(Clause(result, text));
    }
    return [clauses](const Row& row) {
        return std::ranges::all_of(clauses, [&](const auto& holds) { return holds(row); });
    };
}

} // namespace sandbox
