#include "tests/support/LeakCheck.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace test_support
{

namespace
{

struct Counter
{
    std::string What;
    std::function<long()> Count;
};

std::vector<Counter>& Counters()
{
    static std::vector<Counter> counters;
    return counters;
}

class Listener : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo& /*test*/) override
    {
        for (const Counter& counter : Counters())
        {
            EXPECT_EQ(0, counter.Count()) << counter.What << " are left after the test";
        }
    }
};

} // namespace

LeakCheck::LeakCheck(std::string what, std::function<long()> count)
{
    Counters().push_back({std::move(what), std::move(count)});
}

void ListenForLeaks()
{
    testing::UnitTest::GetInstance()->listeners().Append(new Listener); // which takes it over
}

} // namespace test_support
