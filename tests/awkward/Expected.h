// The records that a run by a direction and a rule must change and add, worked out from their numbers alone.
#pragma once

#include "tests/awkward/Expectation.h"

#include <map>
#include <set>
#include <string>
#include <utility>

namespace test_support
{

using Number = std::pair<int, wchar_t>; // with the side of its values

// The records of both sides by number; the sides of the values.
struct Model
{
    std::multimap<int, wchar_t> rows;
    std::multimap<int, wchar_t> items;
};

struct Expected
{
    std::map<int, wchar_t> changedRows; // by number: the side of their values then
    std::map<int, wchar_t> changedItems;
    std::multiset<Number> newRows;
    std::multiset<Number> newItems;
};

// Without the records of these keys and EntryIDs.
Model ModelOf(const States& states, const std::set<std::wstring>& absent);

// In a two-way run by rule 3 the pass that writes first decides; the other one reads what it has written, or
// leaves it out.
Expected ExpectedOf(const Combination& what, const Model& model);

// With what has arrived, and what may be added at most.
Expected WidestOf(const Combination& what, const States& before, const Interference& interference);

} // namespace test_support
