// The report of whole runs: failures of every origin arrive with their record, field and reason.
#include "tests/run/RunsFixture.h"

#include "automation/Error.h"
#include "exchange/Report.h"
#include "sandbox/dispatch/DispatchObject.h"
#include "state/SharedState.h"
#include "tests/support/Days.h"
#include "tests/support/MessageBoxes.h"

#include <functional>

namespace
{

using namespace test_support;
using exchange::Change;
using exchange::ReportRow;
using state::Cause;

class RunReport : public RunsFixture
{
  protected:
    const exchange::Report& Report() const { return Display.Report; }
    // The only row of the report of a run.
    ReportRow OnlyRow() const
    {
        EXPECT_EQ(1u, Report().Rows().size());
        return Report().Rows().empty() ? ReportRow{} : Report().Rows().front();
    }
};

// Breaks one member of a fake for the length of a run, with words of its own.
class Breaks : public sandbox::CallObserver
{
  public:
    Breaks(std::wstring member, HRESULT code, std::wstring words)
        : mMember(std::move(member)), mCode(code), mWords(std::move(words)), mPrevious(sandbox::Observe(this))
    {
    }
    Breaks(const Breaks&) = delete;
    Breaks& operator=(const Breaks&) = delete;
    ~Breaks() override { sandbox::Observe(mPrevious); }

    void OnCall(const wchar_t* className, const wchar_t* member) override
    {
        if (std::wstring(className) + L"." + member == mMember)
        {
            throw automation::Error(mCode, member, mWords);
        }
    }

  private:
    std::wstring mMember;
    HRESULT mCode;
    std::wstring mWords;
    sandbox::CallObserver* mPrevious;
};

TEST_F(RunReport, ARunInWhichAllGoesWellHasNothingToTell)
{
    for (const RunKind& kind : kRuns)
    {
        AddHostRecord(kind);
        AddItem(kind);
        EXPECT_FALSE(Run(kind, 3, Answer::Accept).failed);
        EXPECT_FALSE(Report().HasSomethingToTell());
        EXPECT_FALSE(Report().HasFailed());
        EXPECT_EQ(1, Report().CountOf(Change::AddToOutlook).Written);
        EXPECT_EQ(1, Report().CountOf(Change::AddToHost).Written);
    }
}

TEST_F(RunReport, ARecordThatTheHostRefusesIsThereWithTheHostsWords)
{
    const wchar_t* const names[] = {L"Outlook", L"Outlook", L"Ann Outlook"};
    size_t i = 0;
    for (const RunKind& kind : kRuns)
    {
        AddItem(kind);
        TheHost.Failures().Order(L"Insert", 1, {std::nullopt, L"Disk full at 'Ann'"});
        EXPECT_FALSE(Run(kind, 1, Answer::Accept).failed);
        const ReportRow row = OnlyRow();
        EXPECT_EQ(Change::AddToHost, row.Of);
        EXPECT_EQ(names[i++], row.Name);
        EXPECT_EQ(Cause::Failed, row.Remark.Why);
        EXPECT_EQ(L"Disk full at '***'", row.Remark.Words);
        EXPECT_EQ(L"Insert", row.Remark.Field);
        EXPECT_EQ(1, Report().CountOf(Change::AddToHost).NotWritten);
        EXPECT_EQ(0, Report().CountOf(Change::AddToHost).Written);
        EXPECT_FALSE(Report().HasFailed());
    }
}

TEST_F(RunReport, AStatusOfTheHostThatIsAFailureIsAReasonToo)
{
    AddItem(kContactRun);
    TheHost.Failures().Order(L"Insert", 1, {-7});
    EXPECT_FALSE(Run(kContactRun, 1, Answer::Accept).failed);
    EXPECT_EQ(L"The host reported a failure", OnlyRow().Remark.Words);
    EXPECT_EQ(L"Insert", OnlyRow().Remark.Field);
}

TEST_F(RunReport, AnItemThatOutlookDoesNotSaveEndsThePassAndTheOthersAreCounted)
{
    const wchar_t* const saves[] = {L"TaskItem.Save", L"AppointmentItem.Save", L"ContactItem.Save"};
    size_t i = 0;
    for (const RunKind& kind : kRuns)
    {
        AddHostRecord(kind);
        AddHostRecord(kind);
        AddHostRecord(kind);
        const Breaks breaks(saves[i++], E_FAIL, L"The store is full");
        EXPECT_TRUE(Run(kind, 2, Answer::Accept).failed);
        const ReportRow row = OnlyRow();
        EXPECT_EQ(Change::AddToOutlook, row.Of);
        EXPECT_EQ(&kind == &kContactRun ? L"Ann Host" : L"Host", row.Name);
        EXPECT_EQ(L"The store is full", row.Remark.Words);
        EXPECT_TRUE(Report().HasFailed());
        EXPECT_EQ(1, Report().CountOf(Change::AddToOutlook).NotWritten);
        EXPECT_EQ(2, Report().NotReached());
    }
}

TEST_F(RunReport, APropertyThatOutlookRefusesIsThereWithTheLengthOfTheValue)
{
    AddHostRecord(kCalendarRun);
    const Breaks breaks(L"AppointmentItem.Subject", E_INVALIDARG, L"Not this one");
    EXPECT_TRUE(Run(kCalendarRun, 2, Answer::Accept).failed);
    EXPECT_EQ(L"Subject", OnlyRow().Remark.Field);
    EXPECT_EQ(4, OnlyRow().Remark.Length);
    EXPECT_EQ(L"Not this one", OnlyRow().Remark.Words);
}

TEST_F(RunReport, ALinkThatOutlookRefusesIsARemarkOfARecordThatIsWritten)
{
    Mailbox->Switch(L"LinksRaise", true);
    Execute(L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) VALUES ('C',1,'Li','Na')");
    Execute(L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_CNTCTID) VALUES ('A',1,'Call','C')");
    EXPECT_FALSE(Run(kTaskRun, 2, Answer::Accept).failed);
    const ReportRow row = OnlyRow();
    EXPECT_EQ(Cause::LinkRefused, row.Remark.Why);
    EXPECT_EQ(L"Call", row.Name);
    EXPECT_NE(L"", row.Remark.Words);
    EXPECT_EQ(1, Report().CountOf(Change::AddToOutlook).Written);
}

TEST_F(RunReport, APropertyThatTheGuardRefusesIsARemark)
{
    Mailbox->AddItem(kContactRun.folder,
                     {{L"LastName", L"Li"}, {L"FirstName", L"Na"}, {L"Email1Address", L"na@li.example"}});
    Mailbox->Switch(L"Guard", true);
    EXPECT_FALSE(Run(kContactRun, 1, Answer::Accept).failed);
    EXPECT_EQ(Cause::ReadRefused, OnlyRow().Remark.Why);
    EXPECT_EQ(L"Email1Address", OnlyRow().Remark.Field);
    EXPECT_EQ(L"Na Li", OnlyRow().Name);
}

TEST_F(RunReport, ATextThatIsCutToItsColumnIsARemarkWithItsLengths)
{
    Mailbox->AddItem(
        kContactRun.folder,
        {{L"LastName", L"Li"}, {L"FirstName", L"Na"}, {L"NickName", std::wstring(900, L'\'') + L"x"}});
    EXPECT_FALSE(Run(kContactRun, 1, Answer::Accept).failed);
    const ReportRow row = OnlyRow();
    EXPECT_EQ(Cause::TextCut, row.Remark.Why);
    EXPECT_EQ(L"F_NICKNAME", row.Remark.Field);
    EXPECT_EQ(901, row.Remark.Length);
    const long stored =
        automation::LongOf(TheHost.Database().QueryValue(L"SELECT length(F_NICKNAME) FROM TBLCONTACT"));
    EXPECT_EQ(stored, row.Remark.Kept);
    EXPECT_EQ(1, Report().CountOf(Change::AddToHost).Written);
}

TEST_F(RunReport, AMissingRightIsToldOnceForAllRecords)
{
    TheHost.SetRight(1, 2, 2, 1); // to add accounts
    for (const wchar_t* name : {L"One", L"Two", L"Three"})
    {
        Mailbox->AddItem(kTaskRun.folder,
                         {{L"Subject", name}, {L"Companies", std::wstring(name) + L" Inc."}});
    }
    EXPECT_FALSE(Run(kTaskRun, 1, Answer::Accept).failed);
    EXPECT_EQ(Cause::RightMissing, OnlyRow().Remark.Why);
    EXPECT_EQ(L"You are not permit to add account record(s)!", OnlyRow().Remark.Words);
    EXPECT_EQ(3, OnlyRow().Times);
    EXPECT_EQ(3, Report().CountOf(Change::AddToHost).Written);
}

TEST_F(RunReport, ARightThatTheCollectionMissesIsTold)
{
    TheHost.SetRight(2, 2, 2, 1); // to add contacts
    AddItem(kContactRun);
    Run(kContactRun, 1, Answer::Accept);
    EXPECT_EQ(L"You are not permit to add contact record(s)!", OnlyRow().Remark.Words);
}

TEST_F(RunReport, ItemsOfOtherKindsAreCounted)
{
    for (const RunKind& kind : kRuns)
    {
        AddItem(kind);
    }
    Mailbox->Switch(L"ForeignItems", true);
    for (const RunKind& kind : kRuns)
    {
        EXPECT_FALSE(Run(kind, 1, Answer::Accept).failed);
        EXPECT_LT(0, Report().OtherItems());
        EXPECT_TRUE(Report().HasSomethingToTell());
        EXPECT_TRUE(Report().Rows().empty());
    }
}

TEST_F(RunReport, ARecordThatVanishesBeforeItIsWrittenIsCounted)
{
    AddItem(kContactRun);
    AddItem(kContactRun);
    Outcome outcome;
    AnswerDialogsDuring(
        [&] {
            state::Shared().gSynParameter.TransType = 1;
            state::Shared().gSynParameter.TransConflictOption = state::kNotifyMe;
            state::Shared().gSynParameter.CurrentFolder = kContactRun.folder;
            outcome.failed = kContactRun.run(Display);
        },
        [&](const tools::ShownDialog& dialog) {
            Mailbox->RemoveItem(kContactRun.folder, 1);
            dialog.Click(IDOK);
        });
    EXPECT_FALSE(outcome.failed);
    EXPECT_EQ(1, Report().Vanished());
    EXPECT_EQ(Cause::Vanished, OnlyRow().Remark.Why);
    EXPECT_EQ(1, Report().CountOf(Change::AddToHost).Written);
    EXPECT_EQ(1, Report().CountOf(Change::AddToHost).NotWritten);
}

TEST_F(RunReport, AnItemWithoutItsRequiredTextIsNotWritten)
{
    Mailbox->AddItem(kContactRun.folder, {{L"LastName", L"Only"}});
    Mailbox->AddItem(kTaskRun.folder, {{L"Companies", L"Subjectless Inc."}});
    Mailbox->AddItem(kCalendarRun.folder, {{L"Start", Day(2003, 5, 7)}});
    const wchar_t* const fields[] = {L"Subject", L"Subject", L"FirstName"};
    size_t i = 0;
    for (const RunKind& kind : kRuns)
    {
        EXPECT_FALSE(Run(kind, 1, Answer::Accept).failed);
        EXPECT_EQ(Cause::EmptyField, OnlyRow().Remark.Why);
        EXPECT_EQ(fields[i++], OnlyRow().Remark.Field);
        EXPECT_EQ(1, Report().CountOf(Change::AddToHost).NotWritten);
    }
}

TEST_F(RunReport, AnEntryWithoutADateIsNotWritten)
{
    Execute(L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_ACTESTIME) VALUES ('A',1,'Some "
            L"day','09:00')");
    EXPECT_FALSE(Run(kCalendarRun, 2, Answer::Accept).failed);
    EXPECT_EQ(Cause::NoDate, OnlyRow().Remark.Why);
    EXPECT_EQ(L"Some day", OnlyRow().Name);
    EXPECT_EQ(1, Report().CountOf(Change::AddToOutlook).NotWritten);
}

TEST_F(RunReport, ARunThatDoesNotComeToItsChangesSaysWhy)
{
    TheHost.Failures().Order(L"OpenRecordset", 1, {-1});
    EXPECT_FALSE(Run(kTaskRun, 3, Answer::Accept).failed);
    EXPECT_EQ(Cause::NoHostRows, OnlyRow().Remark.Why);
    EXPECT_FALSE(OnlyRow().Of.has_value());
    state::Shared().gSynParameter.CurrentFolder = L"Elsewhere";
    EXPECT_TRUE(Run(kContactRun).failed);
    EXPECT_EQ(Cause::NoFolder, OnlyRow().Remark.Why);
    AddItem(kContactRun);
    const Breaks breaks(L"Items.Item", E_FAIL, L"No connection");
    EXPECT_TRUE(Run(kContactRun, 1, Answer::Accept).failed);
    EXPECT_EQ(L"No connection", OnlyRow().Remark.Words);
    EXPECT_TRUE(Report().HasFailed());
}

TEST_F(RunReport, TasksThatTheFirstPassHasWrittenAreLeftAloneByTheSecond)
{
    AddHostRecord(kTaskRun);
    Mailbox->AddItem(kTaskRun.folder, {{L"Subject", L"Host"}});
    EXPECT_FALSE(Run(kTaskRun, 3, Answer::Accept).failed);
    EXPECT_EQ(1, Report().CountOf(Change::ChangeInHost).Written);
    EXPECT_EQ(0, Report().CountOf(Change::ChangeInOutlook).Written);
    EXPECT_EQ(0, Report().NotReached());
}

TEST_F(RunReport, ADeclinedRunHasNothingToTell)
{
    AddHostRecord(kContactRun);
    Run(kContactRun, 2, Answer::Cancel);
    EXPECT_FALSE(Report().HasSomethingToTell());
}

} // namespace
