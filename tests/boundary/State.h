// The contents of the host's database and of the mailbox, in a form in which two courses of events can be
// compared: keys that the host makes afresh each time read alike, and order says nothing.
#pragma once

#include "sandbox/database/Connection.h"

#include <string>
#include <vector>

namespace boundary_tests
{

using Records = std::vector<std::wstring>; // sorted

struct State
{
    Records hostRows;
    Records items;

    bool operator==(const State&) const = default;
};

State LookAt(sandbox::Connection& host, sandbox::Connection& mailbox);

// The records of one that the other one has not, each as often as it is missing.
Records Missing(const Records& expected, const Records& actual);
// The records of either, each as often as it occurs where it occurs more often.
Records Either(const Records& one, const Records& other);

// How many records a test excuses.
struct Excused
{
    size_t rows = 0;
    size_t items = 0;
};

// Each row and item is one of before or of after, but for the items excused: nothing half-written, and
// nothing lost.
void ExpectWhole(const State& state, const State& before, const State& after, const Excused& excused = {});
// All that should be there is, and nothing else but what is excused.
void ExpectReached(const State& state, const State& goal, const Excused& excused = {});

} // namespace boundary_tests
