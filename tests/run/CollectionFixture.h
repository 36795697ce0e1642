// Fixture of the change collection tests: two sides as plain data, a host with rights and a clock, and the
// collection of a category over them, next to the plain nested walk that it must equal.
#pragma once

#include "run/ChangeCollection.h"
#include "tests/run/Sides.h"
#include "tests/support/FakeHost.h"
#include "tests/support/RecordingDisplay.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace test_support
{

// Chances of a test, the same in each of its runs.
class RandomData
{
  public:
    Value Pick(const std::vector<Value>& values) { return values[Number(values.size())]; }
    bool OneIn(size_t n) { return Number(n) == 0; }
    // From 0 to n - 1.
    size_t Number(size_t n) { return std::uniform_int_distribution<size_t>(0, n - 1)(mEngine); }

  private:
    std::mt19937 mEngine{20031};
};

class CollectionFixture : public testing::Test
{
  protected:
    explicit CollectionFixture(const exchange::Kind& category);
    ~CollectionFixture() override;

    // Collects by a conflict rule and direction (1 from Outlook, 2 to Outlook, 3 both): what was proposed, as
    // "newRow2/0 changedItem1/1 ...": position and mark; "failed" when it failed.
    std::string Collect(long rule, long direction);
    // The same where the folder has a table.
    std::string CollectByTable(long rule, long direction);
    // The same by the nested walk.
    std::string Walk(long rule, long direction);

    struct Rounds
    {
        long rounds;
        std::function<Record(RandomData&)> item;
        std::function<Record(RandomData&)> row;
        std::function<void(RandomData&)> parameters = {}; // sets the run's parameters, once a round
    };
    // Expects the collection, with a table and without, and the walk to agree over random data, for every
    // rule and direction. Returns how often anything was proposed, or failed.
    long CompareWithTheNestedWalk(const Rounds& rounds);

    exchange::Run NewRun();

    WithFakeHost Host;
    RecordingDisplay Display;
    std::shared_ptr<Records> Items = std::make_shared<Records>();
    std::shared_ptr<Records> Rows = std::make_shared<Records>();

  private:
    std::string Collect(exchange::Run run, long rule, long direction);
    long CompareAllRulesAndDirections();

    const exchange::Kind& mCategory;
};

} // namespace test_support
