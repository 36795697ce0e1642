// The ways in which Outlook, ADO and the host are awkward in a trial: the switches of the fakes, and what
// other programs do while a run works.
#pragma once

#include "tests/awkward/Disturber.h"
#include "tests/awkward/World.h"

#include <functional>
#include <vector>

namespace test_support
{

struct Way
{
    std::string name;
    std::function<void(World& world)> set = [](World&) {};
    // The store that the run's folder is in.
    std::wstring store = L"Personal Folders";
    std::function<void(World& world)> whileConfirmed = {};
    // Happens at a call of the run; empty for a way that has none.
    std::function<void(World& world)> atCall = {};
    CallsOf side = CallsOf::Outlook;
    // The first run fails, and changes nothing.
    bool isOffline = false;
    // The first run may leave out what it should do.
    bool isDisturbed = false;
    bool mayPassBy = false; // see Interference
    int hiddenNumber = 0;   // of the row that the host's filter leaves out
    // Before the next run, which is undisturbed.
    std::function<void(World& world)> settle = [](World&) {};
};

// Those without a moment of their own, and those that happen at a call.
std::vector<Way> StandingWays();
std::vector<Way> MomentaryWays();

} // namespace test_support
