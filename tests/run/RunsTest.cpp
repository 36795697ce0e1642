// The run procedures from the host's rows to the written changes: what they ask, what they do in which order,
// and how they end.
#include "tests/run/RunsFixture.h"

#include "state/SharedState.h"
#include "tests/support/CallWatch.h"

#include <functional>

namespace
{

using namespace test_support;
using state::Shared;

using Runs = RunsFixture;

// A run both ways with one record alone on either side: whether the item or the row was written first.
using Order = std::vector<std::wstring>;
const Order kItemFirst = {L"Items.Add", L"DTC.Insert"};
const Order kRowFirst = {L"DTC.Insert", L"Items.Add"};

TEST_F(Runs, ADirectionThatIsNoneDoesNothingAndSucceeds)
{
    for (const RunKind& kind : kRuns)
    {
        AddHostRecord(kind);
        AddItem(kind);
        for (const long transType : {0L, 4L, -1L})
        {
            const CallWatch calls;
            const Outcome outcome = Run(kind, transType, Answer::Accept);
            EXPECT_FALSE(outcome.failed);
            EXPECT_TRUE(outcome.shown.empty());
            EXPECT_EQ(0, calls.Of(L"Items.Item"));
            EXPECT_EQ(0, calls.Of(L"DTC.Insert") + calls.Of(L"Items.Add"));
        }
    }
}

TEST_F(Runs, BothWaysWithNothingToChangeStillShowsTheConfirmationAndSucceeds)
{
    for (const RunKind& kind : kRuns)
    {
        for (const Answer answer : {Answer::Accept, Answer::Cancel, Answer::CloseButton})
        {
            const Outcome outcome = Run(kind, 3, answer);
            EXPECT_FALSE(outcome.failed);
            EXPECT_EQ(1, Confirmations(outcome));
            EXPECT_EQ(1u, outcome.shown.size());
        }
    }
}

TEST_F(Runs, WithRule2AndEveryRecordMatchedNothingIsWrittenAndTheRunSucceeds)
{
    AddHostRecord(kContactRun);
    EXPECT_FALSE(Run(kContactRun, 2, Answer::Accept).failed);
    Shared().gSynParameter.TransType = 3;
    Shared().gSynParameter.TransConflictOption = state::kIgnoreAllConflicting;
    const CallWatch calls;
    const Outcome outcome = Run(kContactRun);
    EXPECT_FALSE(outcome.failed);
    EXPECT_EQ(1, Confirmations(outcome));
    EXPECT_EQ(0, calls.Of(L"ContactItem.Save") + calls.Of(L"DTC.Update") + calls.Of(L"DTC.Insert"));
}

TEST_F(Runs, TheConfirmationIsShownBeforeAnythingIsWrittenAndCancelWritesNothing)
{
    for (const RunKind& kind : kRuns)
    {
        AddHostRecord(kind);
        AddItem(kind);
        const long rows = CountRows(kind);
        for (const long transType : {1L, 2L, 3L})
        {
            const Outcome outcome = Run(kind, transType, Answer::Cancel);
            EXPECT_FALSE(outcome.failed);
            EXPECT_EQ(1, Confirmations(outcome));
            EXPECT_EQ(rows, CountRows(kind));
            EXPECT_EQ(1, CountItems(kind));
        }
    }
}

TEST_F(Runs, EachDirectionWritesItsOwnSideOnly)
{
    for (const RunKind& kind : kRuns)
    {
        SCOPED_TRACE(kind.name);
        AddHostRecord(kind);
        AddItem(kind);
        const long rows = CountRows(kind);
        EXPECT_FALSE(Run(kind, 1, Answer::Accept).failed);
        EXPECT_EQ(rows + 1, CountRows(kind));
        EXPECT_EQ(1, CountItems(kind));
        Shared().gSynParameter.TransConflictOption = state::kIgnoreAllConflicting;
        Shared().gSynParameter.TransType = 2;
        EXPECT_FALSE(Run(kind).failed);
        EXPECT_EQ(rows + 1, CountRows(kind));
        EXPECT_EQ(2, CountItems(kind));
    }
}

TEST_F(Runs, BothWaysTasksWriteTheHostFirstAndTheOthersOutlook)
{
    for (const RunKind& kind : kRuns)
    {
        SCOPED_TRACE(kind.name);
        AddHostRecord(kind);
        AddItem(kind);
        const CallWatch watch;
        EXPECT_FALSE(Run(kind, 3, Answer::Accept).failed);
        EXPECT_EQ(kind.writesHostFirst ? kRowFirst : kItemFirst,
                  watch.InOrder({L"Items.Add", L"DTC.Insert"}));
    }
}

TEST_F(Runs, AFirstPassThatFailsKeepsTheSecondFromStarting)
{
    AddHostRecord(kContactRun);
    AddItem(kContactRun);
    CallWatch watch;
    watch.FailEvery(L"Items.Add");
    EXPECT_TRUE(Run(kContactRun, 3, Answer::Accept).failed);
    EXPECT_EQ(Order{L"Items.Add"}, watch.InOrder({L"DTC.Insert", L"Items.Add"}));
    EXPECT_EQ(1, CountRows(kContactRun));
}

TEST_F(Runs, HostRowsThatCannotBeOpenedAreSuccessForTasksAndFailureForTheOthers)
{
    for (const RunKind& kind : kRuns)
    {
        AddItem(kind);
        TheHost.Failures().Order(L"OpenRecordset", 1, {-1});
        const Outcome outcome = Run(kind, 3, Answer::Accept);
        EXPECT_EQ(!kind.succeedsWithoutHostRows, outcome.failed) << kind.name;
        EXPECT_TRUE(outcome.shown.empty());
    }
}

TEST_F(Runs, AnErrorThatTheHostRaisesInsteadOfRowsFailsEveryKind)
{
    for (const RunKind& kind : kRuns)
    {
        TheHost.Failures().Order(L"OpenRecordset", 1, {std::nullopt});
        const Outcome outcome = Run(kind, 3, Answer::Accept);
        EXPECT_TRUE(outcome.failed);
        EXPECT_TRUE(outcome.shown.empty());
    }
}

TEST_F(Runs, TheCalendarTakesTheEntriesOfTheSignedInUserOnly)
{
    AddHostRecord(kCalendarRun);
    Execute(L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_ACTESDATE) VALUES "
            L"('B',99,'Of somebody else','2003-05-06 00:00:00')");
    EXPECT_FALSE(Run(kCalendarRun, 2, Answer::Accept).failed);
    ASSERT_EQ(1, CountItems(kCalendarRun));
    EXPECT_EQ(L"Host", automation::TextOf(Mailbox->ItemProperty(kCalendarRun.folder, 1, L"Subject")));
}

TEST_F(Runs, WithoutAChosenFolderAMessageIsShownAndTheRunFails)
{
    Shared().gSynParameter.TransType = 3;
    for (const RunKind& kind : kRuns)
    {
        const Outcome english = Run(kind);
        EXPECT_TRUE(english.failed);
        EXPECT_EQ((std::vector<std::wstring>{L"Message|You have not selected the synchronise folder .\r\n\r\n"
                                             L"Please select an effective folder for synchronization."}),
                  english.shown);
        const WithLanguage withChinese(resources::Language::Chinese);
        const Outcome chinese = Run(kind);
        EXPECT_TRUE(chinese.failed);
        EXPECT_EQ((std::vector<std::wstring>{L"信息|没有选择同步的目录\r\n\r\n"
                                             L"请选择一个有效的目录作为的同步对象,然后再进行同步。"}),
                  chinese.shown);
    }
}

TEST_F(Runs, AFolderThatIsNotThereFailsWithoutAWord)
{
    for (const RunKind& kind : kRuns)
    {
        Shared().gSynParameter.TransType = 3;
        for (const wchar_t* path : {L"Elsewhere", L"Personal Folders\\Gone", L"Personal Folders\\Tasks\\a"})
        {
            Shared().gSynParameter.CurrentFolder = path;
            const Outcome outcome = Run(kind);
            EXPECT_TRUE(outcome.failed);
            EXPECT_TRUE(outcome.shown.empty());
        }
    }
}

TEST_F(Runs, ACollectionThatFailsEndsTheRunBeforeTheConfirmation)
{
    for (const RunKind& kind : kRuns)
    {
        AddHostRecord(kind);
        AddItem(kind);
        for (const long transType : {1L, 2L, 3L})
        {
            CallWatch watch;
            watch.FailEvery(L"Items.Item");
            const Outcome outcome = Run(kind, transType, Answer::Accept);
            EXPECT_TRUE(outcome.failed);
            EXPECT_TRUE(outcome.shown.empty());
            EXPECT_FALSE(Display.IsShown) << "the progress bar stays";
        }
    }
}

TEST_F(Runs, ClosingTheConfirmationByItsCloseButtonWritesNothingEvenAfterAnAcceptedRun)
{
    for (const RunKind& kind : kRuns)
    {
        AddHostRecord(kind);
        EXPECT_FALSE(Run(kind, 2, Answer::Accept).failed);
        EXPECT_EQ(1, CountItems(kind));
        EXPECT_TRUE(Shared().gChangesAccepted);
        AddItem(kind);
        const long rows = CountRows(kind);
        EXPECT_FALSE(Run(kind, 1, Answer::CloseButton).failed);
        EXPECT_EQ(rows, CountRows(kind));
    }
}

TEST_F(Runs, TheHostRowsAreClosedAtEveryWayOut)
{
    const auto expectClosed = [&](const char* way, const std::function<Outcome(const RunKind&)>& run) {
        for (const RunKind& kind : kRuns)
        {
            SCOPED_TRACE(std::string(way) + " " + kind.name);
            const CallWatch calls;
            run(kind);
            const long opened = calls.Of(L"DTC.OpenRecordset") + calls.Of(L"DTC.OpenRecordsetByString") +
                                calls.Of(L"Recordset.Open");
            EXPECT_GE(calls.Of(L"DTC.OpenRecordset"), 1);
            EXPECT_EQ(opened, calls.Of(L"Recordset.Close"));
        }
    };
    for (const RunKind& kind : kRuns)
    {
        AddHostRecord(kind);
        AddItem(kind);
    }
    expectClosed("no direction", [&](const RunKind& kind) { return Run(kind, 0, Answer::Accept); });
    expectClosed("cancelled", [&](const RunKind& kind) { return Run(kind, 3, Answer::Cancel); });
    expectClosed("no folder", [&](const RunKind& kind) {
        Shared().gSynParameter.CurrentFolder.clear();
        return Run(kind);
    });
    expectClosed("collection fails", [&](const RunKind& kind) {
        CallWatch watch;
        watch.FailEvery(L"Items.Item");
        return Run(kind, 3, Answer::Accept);
    });
    expectClosed("applying fails", [&](const RunKind& kind) {
        CallWatch watch;
        watch.FailEvery(L"Items.Add");
        Outcome outcome = Run(kind, 2, Answer::Accept);
        EXPECT_TRUE(outcome.failed);
        return outcome;
    });
    expectClosed("accepted", [&](const RunKind& kind) { return Run(kind, 3, Answer::Accept); });
}

TEST_F(Runs, TheFoldersItemsAreFetchedOncePerRun)
{
    for (const RunKind& kind : kRuns)
    {
        AddHostRecord(kind);
        AddItem(kind);
        const CallWatch calls;
        Run(kind, 3, Answer::Cancel);
        EXPECT_EQ(1, calls.Of(L"MAPIFolder.Items"));
    }
}

} // namespace
