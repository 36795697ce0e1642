#include "sandbox/outlook/Registration.h"
#include "tests/boundary/Server.h"
#include "tests/support/Thoroughness.h"

namespace boundary_tests
{

namespace
{

constexpr long kBriefly = 1'500;         // milliseconds
constexpr long kLong = 10'000;           // likewise
constexpr long kBeyondPatience = 45'000; // likewise; one call is retried for 30 seconds

long BusyPeriod()
{
    return test_support::IsLongRun() ? kLong : kBriefly;
}

// From the run's start, or from the confirmation on.
std::vector<bool> StartsOfPeriod()
{
    return test_support::IsLongRun() ? std::vector<bool>{true, false} : std::vector<bool>{false};
}

std::vector<Task> Tasks()
{
    if (!test_support::IsLongRun())
    {
        return {{L"contact", kBoth}};
    }
    std::vector<Task> tasks;
    for (const wchar_t* kind : kKinds)
    {
        tasks.push_back({kind, kBoth});
    }
    return tasks;
}

class OutlookIsBusy : public testing::Test
{
  protected:
    // A run in whose course Outlook refuses calls: from its start, or from the confirmation on.
    static Seen RunWhileBusy(Site& site, const Task& task, bool fromStart, long milliseconds)
    {
        site.Prepare(task.direction);
        Server server(site);
        Seen seen;
        site.SynLoad([&](Robot& robot) {
            User user(robot);
            const std::function<void()> disturb = [&] { server.Disturb(L"RejectCallsFor", milliseconds); };
            if (fromStart)
            {
                disturb();
            }
            seen = user.Run(task.kind, fromStart ? std::function<void()>() : disturb);
            user.Leave();
        });
        site.ExpectNothingLeft();
        return seen;
    }

    Site mSite;
};

} // namespace

TEST_F(OutlookIsBusy, TheRunWaitsForItAndIsComplete)
{
    for (const Task& task : Tasks())
    {
        for (const bool fromStart : StartsOfPeriod())
        {
            Site site;
            const Seen seen = RunWhileBusy(site, task, fromStart, BusyPeriod());
            EXPECT_EQ(SuccessStatus(), seen.status);
            EXPECT_TRUE(seen.messages.empty());
            ExpectReached(site.Look(), UndisturbedCourse(task).after);
        }
    }
    test_support::ReportFigure("a busy Outlook is waited for, milliseconds tried: " +
                               std::to_string(BusyPeriod()));
}

TEST_F(OutlookIsBusy, SynLoadWaitsForItToo)
{
    const Task task{L"task", kImport};
    mSite.Prepare(task.direction);
    Server server(mSite);
    server.Disturb(L"RejectCallsFor", BusyPeriod());
    EXPECT_EQ(SuccessStatus(), mSite.Run(task).status);
    ExpectReached(mSite.Look(), UndisturbedCourse(task).after);
}

TEST_F(OutlookIsBusy, ForLongerThanAnybodyWaitsTheRunFailsAndTheNextOneCompletesIt)
{
    if (!test_support::IsLongRun())
    {
        GTEST_SKIP() << "takes a minute; run with --long";
    }
    const Task task{L"contact", kImport};
    EXPECT_EQ(FailureStatus(), RunWhileBusy(mSite, task, true, kBeyondPatience).status);
    ExpectWhole(mSite.Look(), UndisturbedCourse(task).before, UndisturbedCourse(task).after);
    const Server next(mSite);
    EXPECT_EQ(SuccessStatus(), mSite.Run(task).status);
    ExpectReached(mSite.Look(), UndisturbedCourse(task).after);
}

TEST(OutlookIsSlowToStart, SynLoadWaitsAndTheRunIsComplete)
{
    const Task task{L"calendar", kBoth};
    Site site;
    site.Prepare(task.direction);
    const Serves serves(site);
    sandbox::outlook::ChooseStartDelay(BusyPeriod());
    const Seen seen = site.Run(task);
    sandbox::outlook::ChooseStartDelay(0);
    EXPECT_EQ(SuccessStatus(), seen.status);
    ExpectReached(site.Look(), UndisturbedCourse(task).after);
}

} // namespace boundary_tests
