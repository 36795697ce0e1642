// The result that a run must have, worked out from the records' numbers alone: by the rules for pairs, and
// without the component. And how far a run may fall short of it when other programs interfere.
#pragma once

#include "tests/awkward/States.h"

#include <set>

namespace test_support
{

struct Combination
{
    const NumberedKind* kind;
    long direction; // 1 from Outlook, 2 to Outlook, 3 both
    long rule;      // 1 add all, 2 ignore, 3 notify me, 4 the host wins, 5 Outlook wins
};

// What happened besides the run.
struct Interference
{
    std::set<std::wstring> hidden; // keys of rows that the host's filter keeps from the component
    std::set<std::wstring> gone;   // EntryIDs and keys of deleted records
    int arrivedItem = 0;           // their numbers; 0 for none
    int arrivedRow = 0;
    // Items have changed places and are as many as before: the walk may pass an item by, and propose its
    // partner as new.
    bool mayPassBy = false;
};

// What is wrong with the states after a run that was not disturbed. hidden: keys of rows that the host's
// filter keeps from the component.
std::vector<std::string> Differences(const Combination& what, const States& before, const States& after,
                                     const std::set<std::wstring>& hidden);

// What is wrong after one that was disturbed: it may leave out what it should do, and nothing else.
std::vector<std::string> Violations(const Combination& what, const States& before, const States& after,
                                    const Interference& interference);

} // namespace test_support
