// Both sides as an observer sees them: each record by what tells it from all others, with the number and the
// side that its values bear, and with what is wrong with them.
#pragma once

#include "tests/awkward/NumberedKind.h"

#include <map>
#include <string>
#include <vector>

namespace test_support
{

struct NumberedRecord
{
    int number = 0;
    wchar_t side = 0;        // kHost, kOutlook or kMixed: where its values come from
    std::wstring exceptions; // of a series
    std::wstring values;     // those that bear its number
    std::wstring whole;      // all values
};

// Rows by their keys, items by their EntryIDs.
using NumberedRecords = std::map<std::wstring, NumberedRecord>;

struct States
{
    NumberedRecords rows;
    NumberedRecords items;
    // Everything that no run of the kind may touch: items of other kinds, other folders and tables.
    std::map<std::wstring, std::wstring> others;
    std::vector<std::string> complaints; // records that have another one's data
};

// Where a run works.
struct Place
{
    const NumberedKind* kind = nullptr;
    std::wstring folderPath{};
    bool isGuarded = false; // values that the object model guard protects say nothing
};

States Look(sandbox::Connection& database, sandbox::Mailbox& mailbox, const Place& place);

} // namespace test_support
