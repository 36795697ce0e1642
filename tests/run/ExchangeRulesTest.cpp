// The page about the exchange rules says what the collection does.
#include "automation/Text.h"
#include "run/ChangeCollection.h"
#include "state/SharedState.h"
#include "tests/run/Sides.h"
#include "tests/run/TestHost.h"
#include "tests/support/RecordingDisplay.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

namespace
{

using namespace test_support;
using automation::Value;
using state::Shared;

using Cells = std::vector<std::string>;

// The cells of a table's row, without the blanks around them.
Cells CellsOf(const std::string& line)
{
    Cells cells;
    std::istringstream rest(line.substr(1));
    for (std::string cell; std::getline(rest, cell, '|');)
    {
        cells.push_back(automation::ToUtf8(automation::Trimmed(automation::FromUtf8(cell))));
    }
    return cells;
}

// The rows of the table whose first column has this heading.
std::vector<Cells> TableOfPage(const std::string& heading)
{
    std::ifstream page(TELVIX_DOCS "/exchange-rules.md");
    EXPECT_TRUE(page) << TELVIX_DOCS;
    std::vector<Cells> rows;
    bool isInside = false;
    for (std::string line; std::getline(page, line);)
    {
        if (!line.starts_with("|"))
        {
            isInside = false;
        }
        else if (isInside && !line.starts_with("|---"))
        {
            rows.push_back(CellsOf(line));
        }
        isInside = isInside || line.starts_with("| " + heading + " |");
    }
    return rows;
}

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

// What is proposed for a row and the item at a position; 0 for none.
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
    ExchangeRules() { Shared().gDTC = mHost.Object(); }
    ~ExchangeRules() override
    {
        Shared().gDTC = {};
        Shared().gSynParameter = {};
    }

    // The cells of a row of the page as the collection would have them: a matching pair, a row alone and an
    // item alone.
    Cells Proposed(const run::Category& category, long direction, long rule)
    {
        Shared().gSynParameter = {};
        Shared().gSynParameter.TransConflictOption = rule;
        RecordingDisplay display;
        data::Run run{.Display = display};
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
    TestHost mHost;
};

const run::Category* const kCategories[] = {&run::kContactCategory, &run::kTaskCategory,
                                            &run::kCalendarCategory};

TEST_F(ExchangeRules, ThePageTellsWhatIsProposedForEveryDirectionAndConflictRule)
{
    std::set<std::pair<long, long>> described;
    for (const Cells& cells : TableOfPage("Direction"))
    {
        ASSERT_EQ(5u, cells.size());
        const long direction = DirectionNamed(cells[0]);
        const long rule = std::stol(cells[1]);
        SCOPED_TRACE(cells[0] + ", " + cells[1]);
        for (const run::Category* const category : kCategories)
        {
            EXPECT_EQ(Proposed(*category, direction, rule), Cells(cells.begin() + 2, cells.end()))
                << automation::ToUtf8(category->Key);
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
    for (const Cells& cells : TableOfPage("Kind"))
    {
        ASSERT_EQ(3u, cells.size());
        described[cells[0]] = {cells[1], cells[2]};
    }
    EXPECT_EQ(std::size(kCategories), described.size());
    const Cells fromOutlookFirst = {"Outlook to Quenlar", "Quenlar to Outlook"};
    const Cells toOutlookFirst = {"Quenlar to Outlook", "Outlook to Quenlar"};
    for (const run::Category* const category : kCategories)
    {
        EXPECT_EQ(category->AppliesFromOutlookFirst ? fromOutlookFirst : toOutlookFirst,
                  described[automation::ToUtf8(category->Key)]);
    }
}

} // namespace
