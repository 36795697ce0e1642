// Every call of a pass fails once: whatever it was, nothing is left open or half-written that the contract
// does not leave, and nothing leaks.
#include "tasks/Tasks.h"
#include "tests/tasks/TaskExchange.h"

#include "tests/support/CallWatch.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/Thoroughness.h"

namespace
{

using test_support::CallWatch;
using test_support::Day;
using test_support::MessagesDuring;

class TaskFailure : public test_support::TaskExchange
{
  protected:
    // Runs the pass while the n-th call fails; false if there were fewer. Questions for rights do not count:
    // if one fails, the task is written without its link.
    template<typename Pass>
    static bool WithFailureAt(long n, Pass&& pass)
    {
        CallWatch watch;
        watch.FailNth(n, [](const std::wstring& name) {
            return !name.ends_with(L".MyInfo") && !name.ends_with(L".PermissionOn");
        });
        pass();
        return watch.HasFailed();
    }

    // From one failing call to the next.
    static long Step() { return test_support::ByThoroughness(8, 1, 1); }
};

} // namespace

TEST_F(TaskFailure, FromOutlookEachTaskIsWrittenWholeOrNotAtAllAndTheNextRunConverges)
{
    AddOutlookTask({{L"Subject", L"One"}, {L"Companies", L"First Inc."}, {L"ContactNames", L"张伟"}});
    AddOutlookTask({{L"Subject", L"Two"}, {L"Companies", L"Second Inc."}, {L"StartDate", Day(2003, 5, 6)}});
    long k = 0;
    for (bool failed = true; failed;)
    {
        SCOPED_TRACE(k += Step());
        for (const wchar_t* table : {L"TBLACTIVITY", L"TBLACCOUNT", L"TBLACCINFO"})
        {
            Execute(std::wstring(L"DELETE FROM ") + table);
        }
        exchange::Run run = NewRun();
        run.Pending.NewOutlookItems.Add(L"1", 0);
        run.Pending.NewOutlookItems.Add(L"2", 0);
        MessagesDuring([&] { failed = WithFailureAt(k, [&] { tasks::kTasks.FromOutlook(run); }); });
        EXPECT_FALSE(TheHost.Database().InTransaction());
        EXPECT_EQ(Count(L"TBLACCOUNT"), Count(L"TBLACCINFO"));
        EXPECT_EQ(L"0",
                  Count(L"TBLACCOUNT WHERE F_ACCID NOT IN (SELECT F_ACCID FROM TBLACTIVITY WHERE F_ACCID "
                        L"IS NOT NULL)"));
        EXPECT_EQ(L"(hidden)", Display.Events.back());
        ExchangeFromOutlook();
        EXPECT_EQ(L"2", Count(L"TBLACTIVITY"));
        EXPECT_EQ(L"2", Count(L"TBLACCOUNT"));
        EXPECT_EQ(0, ExchangeFromOutlook());
    }
    EXPECT_LT(50, k);
}

TEST_F(TaskFailure, TowardsOutlookAPassThatDoesNotReportAFailureHasWrittenEverything)
{
    Execute(
        L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) VALUES ('C1',1,'张','伟')");
    AddHostTask(L"F_ACTNAME,F_CNTCTID,F_ACTREMIND,F_ACTPSTIME", L"'One','C1',1,'2003-05-06 09:30:00'");
    AddHostTask(L"F_ACTNAME,F_ACTSTATUS,F_ACTCTIME,F_ACTCOMPLETED", L"'Two',2,'2003-05-07',1");
    long k = 0;
    for (bool failed = true; failed;)
    {
        SCOPED_TRACE(k += Step());
        UseNewMailbox();
        exchange::Run run = NewRun();
        run.Pending.NewHostRecords.Add(1L, 0);
        run.Pending.NewHostRecords.Add(2L, 0);
        bool reported = false;
        failed = WithFailureAt(k, [&] { reported = tasks::kTasks.ToOutlook(run); });
        EXPECT_EQ(L"(hidden)", Display.Events.back());
        if (!reported)
        {
            ASSERT_EQ(2, Mailbox->ItemCount(test_support::kTaskKind.folder));
            EXPECT_EQ(L"张伟", automation::TextOf(TaskProperty(1, L"ContactNames")));
            EXPECT_EQ(2, automation::LongOf(TaskProperty(2, L"Status")));
            EXPECT_EQ(0, ExchangeToOutlook());
        }
    }
    EXPECT_LT(50, k);
}
