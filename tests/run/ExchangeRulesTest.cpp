// The page about the exchange rules says what the collection does.
#include "automation/Text.h"
#include "calendar/Calendar.h"
#include "contacts/Contacts.h"
#include "run/ChangeCollection.h"
#include "state/SharedState.h"
#include "tasks/Tasks.h"
#include "tests/run/Sides.h"
#include "tests/support/FakeHost.h"
#include "tests/support/PageTable.h"
#include "tests/support/RecordingDisplay.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

using namespace test_support;
using automation::Value;
using state::Shared;

using Cells = PageCells;

constexpr const char* kPage = "exchange-rules.md";

long DirectionNamed(const std::string& name)
{
    const std::map<std::string, long> directions = {{"Outlook to Quenlar", state::kOutlookToQuenlar},
                                                    {"Quenlar to Outlook", state::kQuenlarToOutlook},
                                                    {"Both", state::kBothWays}};
    const auto found = directions.find(name);
    return found == directions.end() ? 0 : found->second;
}

Record ItemNamed(const wchar_t* name)
{
    return {{L"LastName", name},  {L"FirstName", L""}, {L"CompanyName", L""},   {L"Subject", name},
            {L"Categories", L""}, {L"Companies", L""}, {L"StartDate", Value()}, {L"Start", Value()}};
}

Record RowNamed(const wchar_t* name)
{
    return {{L"F_SURNAME", name},
            {L"F_GIVENNAME", L""},
            {L"ACC_SNAME", Value::Null()},
            {L"F_ACTNAME", name},
            {L"F_ACTTYPE", Value::Null()},
            {L"F_ACTPSTIME", Value::Null()},
            {L"F_ACTESDATE", Value::Null()},
            {L"F_ACTESTIME", Value::Null()}};
}

// The proposal for a row and the item at a position; 0 for none.
struct Pair
{
    long row;
    long item;
};

std::string ProposedFor(const data::Changes& changes, const Pair& pair)
{
    std::vector<std::string> proposals;
    for (const auto& record : changes.NewHostRecords)
    {
        if (record.RecordBookmark == pair.row)
        {
            proposals.emplace_back("new item");
        }
    }
    for (const auto& record : changes.ChangedHostRecords)
    {
        if (record.RecordBookmark == pair.row)
        {
            proposals.emplace_back(record.RecordState == 1 ? "item overwritten" : "row overwritten");
        }
    }
    for (const auto& record : changes.NewOutlookItems)
    {
        if (record.ItemIndex == std::to_wstring(pair.item))
        {
            proposals.emplace_back("new row");
        }
    }
    std::string text;
    for (const std::string& proposal : proposals)
    {
        text += (text.empty() ? "" : ", ") + proposal;
    }
    return text.empty() ? "nothing" : text;
}

class ExchangeRules : public testing::Test
{
  protected:
    ~ExchangeRules() override
    {
        Shared().gDTC = {};
        Shared().gSynParameter = {};
    }

    // The cells of a row of the page as the collection would have them: a matching pair, a row alone and an
    // item alone.
    Cells Proposed(const exchange::Kind& category, long direction, long rule)
    {
        Shared().gSynParameter = {};
        Shared().gSynParameter.TransConflictOption = rule;
        RecordingDisplay display;
        exchange::Run run{.Display = display};
        run.Items = MakeItems(std::make_shared<Records>(Records{ItemNamed(L"both"), ItemNamed(L"item")}));
        run.HostRows = MakeRows(std::make_shared<Records>(Records{RowNamed(L"both"), RowNamed(L"row")}));
        run::ChangeCollection collection(category, run);
        EXPECT_FALSE(direction != state::kOutlookToQuenlar && collection.CollectToOutlook());
        EXPECT_FALSE(direction != state::kQuenlarToOutlook && collection.CollectFromOutlook());
        EXPECT_EQ(run.Pending.ChangedHostRecords.Count(), run.Pending.ChangedOutlookItems.Count());
        return {ProposedFor(run.Pending, {1, 1}), ProposedFor(run.Pending, {2, 0}),
                ProposedFor(run.Pending, {0, 2})};
    }

  private:
    WithFakeHost mHost;
};

const exchange::Kind* const kCategories[] = {&contacts::kContacts, &tasks::kTasks, &calendar::kCalendar};

TEST_F(ExchangeRules, ThePageListsTheProposalsOfEveryDirectionAndConflictRule)
{
    std::set<std::pair<long, long>> described;
    for (const Cells& cells : TableOfPage(kPage, "Direction"))
    {
        ASSERT_EQ(5u, cells.size());
        const long direction = DirectionNamed(cells[0]);
        const long rule = std::stol(cells[1]);
        SCOPED_TRACE(cells[0] + ", " + cells[1]);
        for (const exchange::Kind* const category : kCategories)
        {
            EXPECT_EQ(Proposed(*category, direction, rule), Cells(cells.begin() + 2, cells.end()))
                << automation::ToUtf8(category->Name.TransObject);
        }
        described.emplace(direction, rule);
    }
    EXPECT_EQ(15u, described.size());
    EXPECT_EQ((std::pair<long, long>{1, 1}), *described.begin());
    EXPECT_EQ((std::pair<long, long>{3, 5}), *described.rbegin());
}

TEST_F(ExchangeRules, ThePageTellsTheOrderOfATwoWayRunOfEveryKind)
{
    std::map<std::string, Cells> described;
    for (const Cells& cells : TableOfPage(kPage, "Kind"))
    {
        ASSERT_EQ(3u, cells.size());
        described[cells[0]] = {cells[1], cells[2]};
    }
    EXPECT_EQ(std::size(kCategories), described.size());
    const Cells fromOutlookFirst = {"Outlook to Quenlar", "Quenlar to Outlook"};
    const Cells toOutlookFirst = {"Quenlar to Outlook", "Outlook to Quenlar"};
    for (const exchange::Kind* const category : kCategories)
    {
        EXPECT_EQ(category->AppliesFromOutlookFirst ? fromOutlookFirst : toOutlookFirst,
                  described[automation::ToUtf8(category->Name.TransObject)]);
    }
}

} // namespace
