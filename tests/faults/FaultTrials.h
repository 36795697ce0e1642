// Runs in which one call fails, and what must be true after each of them. A trial starts from the same two
// sides, strikes one call, looks at what is left, then lets an undisturbed run put things right.
#pragma once

#include "tests/faults/Faults.h"
#include "tests/faults/TwoSides.h"
#include "tests/support/TestedKind.h"

#include <gtest/gtest.h>

#include <string>

namespace test_support
{

enum class Direction : long
{
    FromOutlook = state::kOutlookToQuenlar,
    ToOutlook = state::kQuenlarToOutlook,
};

// The part of a run that the faults strike.
enum class Phase
{
    Collection,
    Apply,
    Whole, // from the host's rows to the end, with the confirmation
};

struct Exchanged
{
    const TestedKind& kind;
    Direction direction;

    bool IsToOutlook() const noexcept { return direction == Direction::ToOutlook; }
};

struct Trial
{
    Exchanged what;
    Phase phase;
    Fault fault;
    long at;
};

class FaultTrials : public testing::Test, protected TwoSides
{
  protected:
    FaultTrials();

    // Strikes every step-th call of the phase, by every kind of fault, and checks each trial; how many calls
    // were struck. Every message and confirmation must be answered around it.
    long StrikeEveryCall(const Exchanged& what, Phase phase, long step);

  private:
    struct Outcome
    {
        bool reportedFailure = false;
        std::wstring struck; // the member; empty when there were not so many calls
    };

    Outcome Exchange(const Trial& trial);
    bool ExchangeInSteps(const Trial& trial);
    void ExchangeUndisturbed(const Exchanged& what);

    // The states that a trial can be compared with.
    void LearnStates(const Exchanged& what);
    bool Strike(const Trial& trial);
    void ExpectNothingOpen();
    void ExpectWholeRecords(const Trial& trial, const TwoStates& now);
    void ExpectPuttingRight(const Trial& trial);

    std::shared_ptr<Faults> mFaults = std::make_shared<Faults>();
    TwoStates mBefore;
    TwoStates mAfter;
    long mLiveObjects = 0; // between two trials
};

} // namespace test_support
