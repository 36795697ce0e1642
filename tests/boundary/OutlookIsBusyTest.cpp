#include "resources/Strings.h"
#include "sandbox/outlook/Registration.h"
#include "tests/boundary/Server.h"
#include "tests/support/Thoroughness.h"

namespace boundary_tests
{

namespace
{

constexpr long kBriefly = 800;           // milliseconds
constexpr long kLong = 10'000;           // likewise
constexpr long kBeyondPatience = 45'000; // likewise; one call is retried for 30 seconds

long BusyPeriod()
{
    return test_support::IsLongRun() ? kLong : kBriefly;
}

// When Outlook begins to refuse calls.
enum BusyPhase
{
    kCreating = 1, // before SynLoad
    kCollecting = 2,
    kWriting = 4, // the confirmation is open
};

struct Busy
{
    Task task;
    int when; // of BusyPhase, added
};

std::vector<Busy> Tried()
{
    if (!test_support::IsLongRun())
    {
        return {{{L"contact", kBoth}, kCreating | kWriting}};
    }
    std::vector<Busy> tried;
    for (const wchar_t* kind : kKinds)
    {
        for (const BusyPhase when : {kCreating, kCollecting, kWriting})
        {
            tried.push_back({{kind, kBoth}, when});
        }
    }
    return tried;
}

class OutlookIsBusy : public testing::Test
{
  protected:
    static Seen RunWhile(Site& site, const Busy& busy, long milliseconds, int boxAnswer = IDOK)
    {
        site.Prepare(busy.task.direction);
        Server server(site);
        const auto disturb = [&](BusyPhase when) {
            if ((busy.when & when) != 0)
            {
                server.Disturb(L"RejectCallsFor", milliseconds);
            }
        };
        Seen seen;
        disturb(kCreating);
        site.SynLoad([&](Robot& robot) {
            User user(robot);
            user.AnswerBoxesBy(boxAnswer);
            disturb(kCollecting);
            seen = user.Run(busy.task.kind, [&] { disturb(kWriting); });
            user.Leave();
        });
        site.ExpectNothingLeft();
        return seen;
    }

    Site mSite;
};

} // namespace

TEST_F(OutlookIsBusy, SynLoadAndTheRunWaitForItAndTheRunIsComplete)
{
    for (const Busy& busy : Tried())
    {
        Site site;
        const Seen seen = RunWhile(site, busy, BusyPeriod());
        EXPECT_EQ(SuccessStatus(), seen.status);
        EXPECT_TRUE(seen.messages.empty());
        ExpectReached(site.Look(), UndisturbedCourse(busy.task).after);
    }
    test_support::ReportFigure("runs that wait for a busy Outlook, " + std::to_string(BusyPeriod()) +
                               " milliseconds each: " + std::to_string(Tried().size()));
}

TEST_F(OutlookIsBusy, ForLongerThanThePatienceTheUserIsAskedAndARetryCompletesTheRun)
{
    if (!test_support::IsLongRun())
    {
        GTEST_SKIP() << "takes a minute; run with --long";
    }
    const Task task{L"contact", kImport};
    const Seen seen = RunWhile(mSite, {task, kCollecting}, kBeyondPatience, IDRETRY);
    EXPECT_EQ(SuccessStatus(), seen.status);
    EXPECT_EQ(std::vector{resources::String(IDS_OUTLOOK_BUSY)}, seen.messages);
    ExpectReached(mSite.Look(), UndisturbedCourse(task).after);
}

TEST_F(OutlookIsBusy, WhenTheUserGivesUpTheRunFailsAndTheNextOneCompletesIt)
{
    if (!test_support::IsLongRun())
    {
        GTEST_SKIP() << "takes a minute; run with --long";
    }
    const Task task{L"contact", kImport};
    const Seen seen = RunWhile(mSite, {task, kCollecting}, kBeyondPatience, IDCANCEL);
    EXPECT_EQ(FailureStatus(), seen.status);
    EXPECT_EQ(std::vector{resources::String(IDS_OUTLOOK_BUSY)}, seen.messages);
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
