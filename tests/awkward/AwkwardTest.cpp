// Whatever Outlook, ADO and the host do that their documentation allows, no record gets another one's data,
// nothing that was not proposed changes, no run fails, nothing stays open, and the next run puts things
// right.
#include "tests/awkward/Expectation.h"
#include "tests/awkward/Ways.h"

#include "automation/Text.h"
#include "tests/support/RunCodes.h"
#include "tests/support/Thoroughness.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

namespace
{

using namespace test_support;

struct Trial
{
    Combination what;
    const Way* way;
    long atCall = 0; // of a momentary way
};

std::string Named(const Trial& trial)
{
    return std::string(trial.what.kind->name) + ", direction " + std::to_string(trial.what.direction) +
           ", rule " + std::to_string(trial.what.rule) + ", " + trial.way->name +
           (trial.atCall == 0 ? "" : " at call " + std::to_string(trial.atCall));
}

// Makes trials, and counts what is wrong.
class Trials
{
  public:
    void Make(const Trial& trial);
    // The calls of an undisturbed run that reach a side.
    long CallsOfRun(const Combination& what, CallsOf side);

    long Made() const noexcept { return mMade; }
    long Violations() const noexcept { return mViolations; }

  private:
    World::Outcome Run(const Trial& trial);
    Interference InterferenceOf(const Trial& trial);
    std::vector<std::string> FirstRun(const Trial& trial);
    std::vector<std::string> NextRun(const Trial& trial);

    World mWorld;
    long mMade = 0;
    long mViolations = 0;
};

// A row that the host has deleted meanwhile is reported to the user where it was to be written.
void Append(std::vector<std::string>& complaints, const World::Outcome& outcome, const Way* way)
{
    if (outcome.failed != (way != nullptr && way->isOffline))
    {
        complaints.emplace_back(outcome.failed ? "the run has failed" : "the run has not failed");
    }
    if (!outcome.left.empty())
    {
        complaints.push_back(outcome.left);
    }
    for (const std::wstring& message : outcome.messages)
    {
        if (way != nullptr && way->isDisturbed)
        {
            continue;
        }
        complaints.push_back("message " + automation::ToUtf8(message));
    }
}

std::set<std::wstring> HiddenBy(const Trial& trial)
{
    return trial.way->hiddenNumber == 0
               ? std::set<std::wstring>()
               : std::set<std::wstring>{KeyOf(*trial.what.kind, trial.way->hiddenNumber)};
}

World::Outcome Trials::Run(const Trial& trial)
{
    const Disturber disturber(trial.way->side, trial.atCall, [&] { trial.way->atCall(mWorld); });
    return mWorld.Run(trial.what.direction, trial.what.rule, [&] {
        if (trial.way->whileConfirmed)
        {
            trial.way->whileConfirmed(mWorld);
        }
    });
}

Interference Trials::InterferenceOf(const Trial& trial)
{
    return {.hidden = HiddenBy(trial),
            .gone = mWorld.Gone(),
            .arrivedItem = mWorld.ItemHasArrived() ? kArrivingNumber : 0,
            .arrivedRow = mWorld.RowHasArrived() ? kArrivingNumber : 0,
            .mayPassBy = trial.way->mayPassBy};
}

std::vector<std::string> Trials::FirstRun(const Trial& trial)
{
    mWorld.Reset(*trial.what.kind, trial.way->store);
    trial.way->set(mWorld);
    const States before = mWorld.Look();
    std::vector<std::string> complaints;
    const World::Outcome outcome = Run(trial);
    const States after = mWorld.Look();
    if (trial.way->isOffline)
    {
        complaints = test_support::Violations({trial.what.kind, trial.what.direction, 2}, before, after, {});
    }
    else
    {
        complaints = trial.way->isDisturbed
                         ? test_support::Violations(trial.what, before, after, InterferenceOf(trial))
                         : Differences(trial.what, before, after, HiddenBy(trial));
    }
    Append(complaints, outcome, trial.way);
    return complaints;
}

std::vector<std::string> Trials::NextRun(const Trial& trial)
{
    trial.way->settle(mWorld);
    const States before = mWorld.Look();
    const World::Outcome outcome = mWorld.Run(trial.what.direction, trial.what.rule);
    std::vector<std::string> complaints = Differences(trial.what, before, mWorld.Look(), HiddenBy(trial));
    Append(complaints, outcome, nullptr);
    return complaints;
}

void Trials::Make(const Trial& trial)
{
    ++mMade;
    std::vector<std::string> complaints = FirstRun(trial);
    if (complaints.empty())
    {
        complaints = NextRun(trial);
        std::ranges::for_each(complaints, [](std::string& one) { one = "the next run: " + one; });
    }
    mViolations += static_cast<long>(complaints.size());
    for (const std::string& complaint : complaints)
    {
        ADD_FAILURE() << Named(trial) << ": " << complaint;
    }
}

long Trials::CallsOfRun(const Combination& what, CallsOf side)
{
    mWorld.Reset(*what.kind, L"Personal Folders");
    const Disturber counter(side, 0, {});
    mWorld.Run(what.direction, what.rule);
    return counter.Calls();
}

std::vector<Combination> CombinationsOf(const NumberedKind& kind)
{
    std::vector<Combination> all;
    for (const long direction : kDirections)
    {
        for (const long rule : kRules)
        {
            all.push_back({&kind, direction, rule});
        }
    }
    return all;
}

// The seed of a bounded run; TELVIX_SEED chooses another one.
unsigned Seed()
{
    const char* const given = std::getenv("TELVIX_SEED");
    return given == nullptr ? 20031121U : static_cast<unsigned>(std::strtoul(given, nullptr, 10));
}

void Report(const std::string& what, const Trials& trials, size_t all)
{
    ReportFigure("awkward ways, " + what + ": " + std::to_string(trials.Made()) + " of " +
                 std::to_string(all) + " combinations tried, each with the next run; violations " +
                 std::to_string(trials.Violations()) +
                 (IsLongRun() ? "" : " (seed " + std::to_string(Seed()) + ")"));
}

// A bounded run draws some of them.
void MakeSome(const std::string& what, Trials& trials, std::vector<Trial> all)
{
    if (!IsLongRun())
    {
        std::ranges::shuffle(all, std::mt19937(Seed()));
    }
    const size_t count = std::min(ByThoroughness<size_t>(12, 40, all.size()), all.size());
    for (size_t i = 0; i < count; ++i)
    {
        trials.Make(all[i]);
    }
    Report(what, trials, all.size());
}

class AwkwardWorld : public testing::TestWithParam<const NumberedKind*>
{
  protected:
    Trials mTrials;
};

TEST_P(AwkwardWorld, EveryDirectionAndRuleIsRightUnderEverySwitch)
{
    const std::vector<Way> ways = StandingWays();
    std::vector<Trial> all;
    for (const Way& way : ways)
    {
        for (const Combination& what : CombinationsOf(*GetParam()))
        {
            all.push_back({what, &way});
        }
    }
    MakeSome(std::string("switches, ") + GetParam()->name, mTrials, std::move(all));
}

TEST_P(AwkwardWorld, EveryDirectionAndRuleIsRightWhenRecordsComeAndGoAtAnyCall)
{
    constexpr long kMoments = 8; // of a run, spread over its calls
    const std::vector<Way> ways = MomentaryWays();
    std::vector<Trial> all;
    for (const Combination& what : CombinationsOf(*GetParam()))
    {
        for (const CallsOf side : {CallsOf::Outlook, CallsOf::Host})
        {
            const long calls = mTrials.CallsOfRun(what, side);
            const long step = std::max(1L, calls / kMoments);
            for (const Way& way : ways)
            {
                for (long call = 1; way.side == side && call <= calls; call += step)
                {
                    all.push_back({what, &way, call});
                }
            }
        }
    }
    MakeSome(std::string("moments, ") + GetParam()->name, mTrials, std::move(all));
}

INSTANTIATE_TEST_SUITE_P(All, AwkwardWorld, testing::ValuesIn(kNumberedKinds),
                         [](const auto& kind) { return std::string(kind.param->name); });

} // namespace
