#include "tests/awkward/Expectation.h"

#include "automation/Text.h"
#include "tests/awkward/Expected.h"

#include <algorithm>

namespace test_support
{

namespace
{

std::string Written(const NumberedRecord& record)
{
    return std::to_string(record.number) +
           automation::ToUtf8(std::wstring(1, record.side == 0 ? L'-' : record.side));
}

// One side of the comparison of two states.
struct Side
{
    const char* name;
    const NumberedRecords& before;
    const NumberedRecords& after;
    const std::map<int, wchar_t>& changed;
    std::multiset<Number> added;
    std::set<std::wstring> hidden;

    // The first of several records of one number is the partner: it is left open which one that is.
    bool IsOneOfSeveral(int number) const
    {
        return std::ranges::count_if(before, [&](const auto& one) { return one.second.number == number; }) >
               1;
    }
};

void CompareKnown(const Side& side, const std::wstring& id, const NumberedRecord& before,
                  const NumberedRecord& after, bool isStrict, std::vector<std::string>& complaints)
{
    const std::string name = std::string(side.name) + " " + automation::ToUtf8(id) + " was " +
                             Written(before) + " and is " + Written(after) + " (" +
                             automation::ToUtf8(after.values) + ")";
    const auto changed = side.changed.find(before.number);
    if (changed == side.changed.end() || side.hidden.contains(id))
    {
        if (before.whole != after.whole)
        {
            complaints.push_back(name + ": it was not proposed");
        }
        return;
    }
    const bool isAsBefore = after.number == before.number && after.side == before.side;
    const bool isAsExpected = after.number == before.number && after.side == changed->second;
    const bool isOfEither = after.number == before.number && after.side != kMixed;
    if (isStrict && !side.IsOneOfSeveral(before.number) ? !isAsExpected
                                                        : !isAsBefore && !isAsExpected && !isOfEither)
    {
        complaints.push_back(name + ": expected " + std::to_string(before.number) +
                             automation::ToUtf8(std::wstring(1, changed->second)));
    }
    if (before.exceptions != after.exceptions)
    {
        complaints.push_back(name + ": its exceptions were " + automation::ToUtf8(before.exceptions) +
                             " and are " + automation::ToUtf8(after.exceptions));
    }
}

void Compare(Side side, const std::set<std::wstring>& gone, bool isStrict,
             std::vector<std::string>& complaints)
{
    for (const auto& [id, before] : side.before)
    {
        const auto after = side.after.find(id);
        if (after != side.after.end())
        {
            CompareKnown(side, id, before, after->second, isStrict, complaints);
        }
        else if (!gone.contains(id))
        {
            complaints.push_back(std::string(side.name) + " " + Written(before) + " is gone");
        }
    }
    for (const auto& [id, after] : side.after)
    {
        if (side.before.contains(id))
        {
            continue;
        }
        auto expected = side.added.find({after.number, after.side});
        if (expected == side.added.end() && !isStrict)
        {
            expected = std::ranges::find_if(side.added, [&added = after](const Number& one) {
                return one.first == added.number && added.side != kMixed;
            });
        }
        if (expected == side.added.end())
        {
            complaints.push_back(std::string("new ") + side.name + " " + Written(after) + " (" +
                                 automation::ToUtf8(after.values) + ") was not proposed");
        }
        else
        {
            side.added.erase(expected);
        }
    }
    for (const auto& [number, one] : side.added)
    {
        if (isStrict)
        {
            complaints.push_back(std::string(side.name) + " " + std::to_string(number) +
                                 " has not been added");
        }
    }
}

void CompareRest(const States& before, const States& after, std::vector<std::string>& complaints)
{
    complaints.insert(complaints.end(), after.complaints.begin(), after.complaints.end());
    for (const auto& [id, text] : before.others)
    {
        const auto now = after.others.find(id);
        if (now == after.others.end() || now->second != text)
        {
            complaints.push_back(
                automation::ToUtf8(L"an item or a row of another kind has changed: " + text));
        }
    }
    for (const auto& [id, text] : after.others)
    {
        if (!before.others.contains(id))
        {
            complaints.push_back(automation::ToUtf8(L"an item or a row of another kind is new: " + text));
        }
    }
}

} // namespace

std::vector<std::string> Differences(const Combination& what, const States& before, const States& after,
                                     const std::set<std::wstring>& hidden)
{
    const Expected expected = ExpectedOf(what, ModelOf(before, hidden));
    std::vector<std::string> complaints;
    Compare({"row", before.rows, after.rows, expected.changedRows, expected.newRows, hidden}, {}, true,
            complaints);
    Compare({"item", before.items, after.items, expected.changedItems, expected.newItems, hidden}, {}, true,
            complaints);
    CompareRest(before, after, complaints);
    return complaints;
}

std::vector<std::string> Violations(const Combination& what, const States& before, const States& after,
                                    const Interference& interference)
{
    Expected widest = WidestOf(what, before, interference);
    if (interference.arrivedItem != 0)
    {
        widest.newItems.emplace(interference.arrivedItem, kOutlook);
    }
    if (interference.arrivedRow != 0)
    {
        widest.newRows.emplace(interference.arrivedRow, kHost);
    }
    std::vector<std::string> complaints;
    Compare({"row", before.rows, after.rows, widest.changedRows, widest.newRows, {}}, interference.gone,
            false, complaints);
    Compare({"item", before.items, after.items, widest.changedItems, widest.newItems, {}}, interference.gone,
            false, complaints);
    CompareRest(before, after, complaints);
    return complaints;
}

} // namespace test_support
