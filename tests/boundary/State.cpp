#include "tests/boundary/State.h"

#include "automation/Text.h"
#include "tools/demo/Snapshot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include <cwctype>

namespace boundary_tests
{

namespace
{

constexpr std::wstring_view kKeyForm = L"xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

bool IsKeyAt(const std::wstring& text, size_t position)
{
    if (text.size() - position < kKeyForm.size())
    {
        return false;
    }
    for (size_t i = 0; i < kKeyForm.size(); ++i)
    {
        const wchar_t letter = text[position + i];
        if (kKeyForm[i] == L'-' ? letter != L'-' : !std::iswxdigit(letter))
        {
            return false;
        }
    }
    return true;
}

std::wstring WithoutKeys(const std::wstring& text)
{
    std::wstring result;
    for (size_t i = 0; i < text.size();)
    {
        const bool isKey = IsKeyAt(text, i);
        result += isKey ? L'#' : text[i];
        i += isKey ? kKeyForm.size() : 1;
    }
    return result;
}

void Add(Records& records, const wchar_t* kind, const tools::demo::Entries& entries)
{
    for (const auto& [key, entry] : entries)
    {
        records.push_back(kind + WithoutKeys(entry.content));
    }
}

void AddTable(Records& records, sandbox::Connection& host, const std::wstring& table)
{
    for (const sandbox::Row& row : host.Query(L"SELECT * FROM " + table).rows)
    {
        std::wstring text = table;
        for (const sandbox::Value& value : row)
        {
            text += L'|' + automation::TextOrEmpty(value);
        }
        records.push_back(WithoutKeys(text));
    }
}

std::string Shown(const Records& records)
{
    std::string text;
    for (const std::wstring& record : records)
    {
        text += "\n  " + automation::ToUtf8(record);
    }
    return text;
}

} // namespace

State LookAt(sandbox::Connection& host, sandbox::Connection& mailbox)
{
    const tools::demo::Snapshot snapshot = tools::demo::TakeSnapshot(host, mailbox);
    State state;
    Add(state.hostRows, L"contact ", snapshot.hostContacts);
    Add(state.hostRows, L"account ", snapshot.hostAccounts);
    Add(state.hostRows, L"activity ", snapshot.hostActivities);
    AddTable(state.hostRows, host, L"TBLADDRESS");
    AddTable(state.hostRows, host, L"TBLACCINFO");
    Add(state.items, L"item ", snapshot.outlookItems);
    std::ranges::sort(state.hostRows);
    std::ranges::sort(state.items);
    return state;
}

Records Missing(const Records& expected, const Records& actual)
{
    Records missing;
    std::ranges::set_difference(expected, actual, std::back_inserter(missing));
    return missing;
}

Records Either(const Records& one, const Records& other)
{
    Records either;
    std::ranges::set_union(one, other, std::back_inserter(either));
    return either;
}

void ExpectWhole(const State& state, const State& before, const State& after, const Excused& excused)
{
    const Records rows = Missing(state.hostRows, Either(before.hostRows, after.hostRows));
    EXPECT_TRUE(rows.empty()) << "rows that are neither old nor new:" << Shown(rows);
    const Records items = Missing(state.items, Either(before.items, after.items));
    EXPECT_LE(items.size(), excused.items) << "items that are neither old nor new:" << Shown(items);
    EXPECT_GE(state.hostRows.size(), before.hostRows.size());
    EXPECT_GE(state.items.size(), before.items.size());
}

void ExpectReached(const State& state, const State& goal, const Excused& excused)
{
    const Records absentRows = Missing(goal.hostRows, state.hostRows);
    EXPECT_TRUE(absentRows.empty()) << "rows that are not there:" << Shown(absentRows);
    const Records rows = Missing(state.hostRows, goal.hostRows);
    EXPECT_LE(rows.size(), excused.rows) << "rows too many:" << Shown(rows);
    const Records absentItems = Missing(goal.items, state.items);
    EXPECT_TRUE(absentItems.empty()) << "items that are not there:" << Shown(absentItems);
    const Records items = Missing(state.items, goal.items);
    EXPECT_LE(items.size(), excused.items) << "items too many:" << Shown(items);
}

} // namespace boundary_tests
