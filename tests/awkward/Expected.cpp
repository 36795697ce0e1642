#include "tests/awkward/Expected.h"

#include "tests/support/RunCodes.h"

#include <algorithm>
#include <iterator>

namespace test_support
{

namespace
{

bool WritesItems(const Combination& what)
{
    return what.direction != kImport;
}

bool WritesRows(const Combination& what)
{
    return what.direction != kExport;
}

bool ChangesItems(const Combination& what)
{
    return WritesItems(what) && (what.rule == kNotify || what.rule == kHostWins);
}

bool ChangesRows(const Combination& what)
{
    return WritesRows(what) && (what.rule == kNotify || what.rule == kOutlookWins);
}

void AddNew(const Combination& what, const std::multimap<int, wchar_t>& records,
            const std::multimap<int, wchar_t>& partners, std::multiset<Number>& added)
{
    for (const auto& [number, side] : records)
    {
        if (!partners.contains(number) || what.rule == kAddAll)
        {
            added.emplace(number, side);
        }
    }
}

// What may be added where records are there at some moments and not at others.
std::multiset<Number> EitherOf(const std::multiset<Number>& one, const std::multiset<Number>& other)
{
    std::multiset<Number> either;
    std::ranges::set_union(one, other, std::inserter(either, either.end()));
    return either;
}

} // namespace

Model ModelOf(const States& states, const std::set<std::wstring>& absent)
{
    Model model;
    for (const auto& [key, row] : states.rows)
    {
        if (!absent.contains(key))
        {
            model.rows.emplace(row.number, row.side);
        }
    }
    for (const auto& [id, item] : states.items)
    {
        if (!absent.contains(id))
        {
            model.items.emplace(item.number, item.side);
        }
    }
    return model;
}

Expected ExpectedOf(const Combination& what, const Model& model)
{
    Expected expected;
    if (WritesItems(what))
    {
        AddNew(what, model.rows, model.items, expected.newItems);
    }
    if (WritesRows(what))
    {
        AddNew(what, model.items, model.rows, expected.newRows);
    }
    const bool isTwoWay = ChangesItems(what) && ChangesRows(what);
    for (const auto& [number, side] : model.rows)
    {
        const auto item = model.items.find(number);
        if (item == model.items.end())
        {
            continue;
        }
        const wchar_t winner = isTwoWay ? (what.kind->writesHostFirst ? item->second : side) : L'\0';
        if (ChangesItems(what))
        {
            expected.changedItems[number] = isTwoWay ? winner : side;
        }
        if (ChangesRows(what))
        {
            expected.changedRows[number] = isTwoWay ? winner : item->second;
        }
    }
    return expected;
}

Expected WidestOf(const Combination& what, const States& before, const Interference& interference)
{
    std::set<std::wstring> missing = interference.hidden;
    missing.insert(interference.gone.begin(), interference.gone.end());
    Expected widest;
    std::set<std::wstring> passedBy = missing;
    for (const auto& [id, item] : before.items)
    {
        passedBy.insert(interference.mayPassBy ? id : L"");
    }
    for (const std::set<std::wstring>& absent :
         {std::set<std::wstring>(), interference.hidden, missing, passedBy})
    {
        for (const bool hasArrivals : {false, true})
        {
            Model model = ModelOf(before, absent);
            if (interference.arrivedItem != 0 && hasArrivals)
            {
                model.items.emplace(interference.arrivedItem, kOutlook);
            }
            if (interference.arrivedRow != 0 && hasArrivals)
            {
                model.rows.emplace(interference.arrivedRow, kHost);
            }
            const Expected expected = ExpectedOf(what, model);
            widest.newRows = EitherOf(widest.newRows, expected.newRows);
            widest.newItems = EitherOf(widest.newItems, expected.newItems);
            widest.changedRows.insert(expected.changedRows.begin(), expected.changedRows.end());
            widest.changedItems.insert(expected.changedItems.begin(), expected.changedItems.end());
        }
    }
    return widest;
}

} // namespace test_support
