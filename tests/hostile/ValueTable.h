// The tables of the page about the exchange rules that say what a value does to a pass, and the values that
// stand for their columns.
#pragma once

#include "automation/Text.h"
#include "sandbox/host/RelationRows.h"
#include "tests/support/Days.h"
#include "tests/support/PageTable.h"

#include <array>
#include <set>

namespace test_support
{

inline constexpr size_t kValueColumns = 7;

// In the order of the tables' columns, after kind and properties.
inline std::array<automation::Value, kValueColumns> ValuesOfColumns()
{
    using automation::Value;
    return {Value(),
            Value::Null(),
            Value(L""),
            Value(std::wstring(10000, L'x')),
            Day(1500, 5, 6, 10, 15),
            Day(1850, 5, 6, 10, 15),
            Day(9999, 5, 6, 10, 15)};
}

// The entries of a cell, "A, B, C".
inline std::vector<std::wstring> NamesIn(const std::string& cell)
{
    std::vector<std::wstring> names;
    std::wstring rest = automation::FromUtf8(cell);
    for (size_t comma = rest.find(L", "); comma != std::wstring::npos; comma = rest.find(L", "))
    {
        names.push_back(rest.substr(0, comma));
        rest.erase(0, comma + 2);
    }
    names.push_back(rest);
    return names;
}

// Of every relation row of a host, "Kind property": what a table must tell of at least.
inline std::set<std::wstring> RelatedProperties()
{
    std::set<std::wstring> names;
    for (const auto& rows : {sandbox::RelationRows(), sandbox::NameRows(sandbox::Edition::English)})
    {
        for (const sandbox::RelationRow& row : rows)
        {
            const std::wstring table = row.table;
            const wchar_t* const kind = table == L"TBLCONTACT"    ? L"Contact "
                                        : table == L"TBLACTIVITY" ? L"Task "
                                                                  : L"Calendar ";
            names.insert(kind + std::wstring(row.property));
        }
    }
    return names;
}

} // namespace test_support
