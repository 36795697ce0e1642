#include "automation/Text.h"
#include "tests/boundary/Server.h"
#include "tests/support/Thoroughness.h"

#include <ostream>

namespace boundary_tests
{

namespace
{

enum class When
{
    Collecting,
    Asking, // the confirmation is open
    Writing,
};

constexpr const char* kWhenNames[] = {"Collecting", "Asking", "Writing"};

struct Death
{
    Task task;
    When when;
    double share = 0.5; // of the calls of that phase that still go through
};

std::ostream& operator<<(std::ostream& stream, const Death& death)
{
    return stream << automation::ToUtf8(death.task.kind) << ", direction " << death.task.direction << ", "
                  << kWhenNames[static_cast<int>(death.when)] << " " << death.share;
}

std::vector<Death> Deaths()
{
    if (!test_support::IsLongRun())
    {
        return {{{L"contact", kBoth}, When::Writing},
                {{L"task", kExport}, When::Writing},
                {{L"calendar", kImport}, When::Asking}};
    }
    std::vector<Death> deaths;
    for (const wchar_t* kind : kKinds)
    {
        for (const long direction : kDirections)
        {
            deaths.push_back({{kind, direction}, When::Asking});
            for (const double share : {0.2, 0.5, 0.9})
            {
                deaths.push_back({{kind, direction}, When::Collecting, share});
                deaths.push_back({{kind, direction}, When::Writing, share});
            }
        }
    }
    return deaths;
}

class OutlookDies : public testing::TestWithParam<Death>
{
  protected:
    static long Share(long calls) { return std::max(1L, static_cast<long>(calls * GetParam().share)); }

    // The run in which Outlook is ended, and another one with the dialog that is still open.
    void RunUntilItDies()
    {
        Server server(mSite);
        if (GetParam().when == When::Collecting)
        {
            server.Disturb(L"TerminateAfter", Share(mCourse.callsUntilConfirmation));
        }
        const bool refused = mSite.SynLoad([&](Robot& robot) {
            User user(robot);
            mSeen = user.Run(mTask.kind, [&] { DisturbAtConfirmation(server); });
            mSeenAfterwards = user.Run(mTask.kind);
            user.Leave();
        });
        EXPECT_FALSE(refused);
    }

    void DisturbAtConfirmation(Server& server)
    {
        if (GetParam().when == When::Asking)
        {
            server.Disturb(L"Terminate");
        }
        if (GetParam().when == When::Writing)
        {
            server.Disturb(L"TerminateAfter", Share(mCourse.callsInAll - mCourse.callsUntilConfirmation));
        }
    }

    // A record that cannot be written to the host is passed over without a word, as the host contract asks;
    // only the next one shows that Outlook has gone, and after the last there is none.
    bool DiesWithTheLastRecordForTheHost() const
    {
        const bool hostComesLast =
            mTask.direction == kImport || (mTask.direction == kBoth && mTask.kind != L"task");
        return hostComesLast && GetParam().when == When::Writing && GetParam().share > 0.5;
    }

    const Task& mTask = GetParam().task;
    const Course& mCourse = UndisturbedCourse(mTask);
    Site mSite;
    Seen mSeen;
    Seen mSeenAfterwards;
};

} // namespace

TEST_P(OutlookDies, TheRunFailsNothingIsHalfWrittenAndTheNextOneCompletesIt)
{
    mSite.Prepare(mTask.direction);
    RunUntilItDies();
    if (mSeen.status != SuccessStatus() || !DiesWithTheLastRecordForTheHost())
    {
        EXPECT_EQ(FailureStatus(), mSeen.status);
    }
    EXPECT_EQ(GetParam().when != When::Collecting, mSeen.wasAsked);
    EXPECT_EQ(FailureStatus(), mSeenAfterwards.status);
    EXPECT_FALSE(mSeenAfterwards.wasAsked);
    mSite.ExpectNothingLeft();
    const State between = mSite.Look();
    ExpectWhole(between, mCourse.before, mCourse.after, UnfinishedRecords(mTask));

    Server next(mSite);
    EXPECT_EQ(SuccessStatus(), mSite.Run(mTask).status);
    mSite.ExpectNothingLeft();
    ExpectReached(mSite.Look(), mCourse.after, UnfinishedRecords(mTask));
    EXPECT_EQ(0, next.ObjectCount());
    EXPECT_TRUE(next.EndsWhenLetGo());
}

INSTANTIATE_TEST_SUITE_P(, OutlookDies, testing::ValuesIn(Deaths()));

TEST(OutlookDiesFigure, IsReported)
{
    test_support::ReportFigure("moments of a run at which the Outlook server was ended: " +
                               std::to_string(Deaths().size()));
}

} // namespace boundary_tests
