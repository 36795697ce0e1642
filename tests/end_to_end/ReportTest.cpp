// What the user reads in the report of a run of the registered component, for failures of several origins.
#include "resources/Strings.h"
#include "tests/end_to_end/Exchange.h"

#include <algorithm>

namespace
{

using namespace test_support;
using tools::demo::Outcome;

class ReportOfARun : public Exchange
{
  protected:
    ReportOfARun() { LooksAtReport = true; }

    // How awkward Outlook is for the length of the test.
    void Switch(const std::wstring& name)
    {
        MailboxSide().Execute(L"INSERT INTO Switch (Name, Value) VALUES ('" + name + L"', '1')");
    }
};

long RowsWith(const Outcome& outcome, const std::wstring& text)
{
    return static_cast<long>(std::ranges::count_if(
        outcome.reportRows, [&](const std::wstring& row) { return row.find(text) != std::wstring::npos; }));
}

TEST_F(ReportOfARun, ARunInWhichAllGoesWellHasNone)
{
    const Outcome outcome = Run(L"contact", kImport, kIgnoreAll);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_EQ(L"", outcome.reportSummary);
    EXPECT_TRUE(outcome.reportRows.empty());
}

TEST_F(ReportOfARun, ARecordThatTheHostRefusesHasTheHostsWords)
{
    for (const wchar_t* kind : {L"contact", L"task", L"calendar"})
    {
        HostSide().Failures().Order(L"Insert", 3, {std::nullopt, L"Disk full"});
        const Outcome outcome = Run(kind, kImport, kIgnoreAll);
        EXPECT_TRUE(outcome.succeeded);
        ASSERT_EQ(1u, outcome.reportRows.size());
        EXPECT_EQ(1, RowsWith(outcome, L"|Insert||Disk full"));
        EXPECT_EQ(0, RowsWith(outcome, L"||" + resources::String(IDS_REPORT_FAILED))) << "without a name";
        EXPECT_NE(std::wstring::npos, outcome.reportSummary.find(std::to_wstring(Records() / 2 - 1)));
    }
}

TEST_F(ReportOfARun, LinksThatOutlookRefusesAreRemarksOfTasksThatAreWritten)
{
    Switch(L"LinksRaise");
    HostSide().Database().Execute(L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) "
                                  L"VALUES ('link',1,'Qvist','Åsa')");
    HostSide().Database().Execute(L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_CNTCTID) VALUES "
                                  L"('linked',1,'Call Åsa','link')");
    const Outcome outcome = Run(L"task", kExport, kIgnoreAll);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_EQ(1, RowsWith(outcome, L"|Call Åsa|" + resources::String(IDS_REPORT_LINK_REFUSED) + L"|"));
    EXPECT_EQ(1, CountItems(L"ItemProperty WHERE Name='Subject' AND Value='Call Åsa'"));
}

TEST_F(ReportOfARun, FieldsThatTheGuardRefusesAndItemsOfOtherKindsAreTold)
{
    Switch(L"Guard");
    Switch(L"ForeignItems");
    const Outcome outcome = Run(L"contact", kImport, kIgnoreAll);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_EQ(Records() / 2,
              RowsWith(outcome, resources::String(IDS_REPORT_READ_REFUSED) + L"|Email1Address|"));
    const std::wstring others = resources::String(IDS_REPORT_OTHER_ITEMS);
    EXPECT_NE(std::wstring::npos, outcome.reportSummary.find(others.substr(0, others.find(L'{'))));
}

TEST_F(ReportOfARun, ARightThatIsMissingHasOneRow)
{
    HostSide().SetRight(1, 2, 2, 1); // to add accounts
    const Outcome outcome = Run(L"task", kImport, kIgnoreAll);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_TRUE(outcome.messages.empty()) << "tasks ask for the right without a message";
    const std::wstring right =
        resources::Choose(L"你没有添加单位的权限!", L"You are not permit to add account record(s)!");
    EXPECT_EQ(1, RowsWith(outcome, L"|" + right));
}

} // namespace
