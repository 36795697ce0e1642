// A row as a test writes it: names of columns, each with its value as an SQL expression. Header only.
#pragma once

#include <string>

namespace test_support
{

// "INSERT INTO table (names) SELECT values". columns: any range of pairs of texts, in its order.
template<typename Columns>
std::wstring InsertStatement(const std::wstring& table, const Columns& columns)
{
    std::wstring names;
    std::wstring values;
    for (const auto& [name, value] : columns)
    {
        names += (names.empty() ? L"" : L",") + name;
        values += (values.empty() ? L"" : L",") + value;
    }
    return L"INSERT INTO " + table + L" (" + names + L") SELECT " + values;
}

} // namespace test_support
