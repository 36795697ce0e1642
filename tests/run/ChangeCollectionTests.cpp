#include "run/ChangeCollection.h"

#include "sandbox/robot/Robot.h"
#include "state/SharedState.h"
#include "tests/run/NestedWalk.h"
#include "tests/run/Sides.h"
#include "tests/run/TestHost.h"
#include "tests/support/StandIns.h"

#include <gtest/gtest.h>

#include <random>

using namespace test_support;
using automation::Value;
using run::ChangeCollection;
using state::Shared;

namespace
{

class SilentDisplay : public data::RunDisplay
{
  public:
    void SetStatus(const std::wstring& text) override { Status = text; }
    void ShowProgress(bool visible) override { IsProgressShown = visible; }
    void SetProgress(double fraction) override { Progress = fraction; }
    std::wstring CategoryText() const override { return L"Contact"; }

    std::wstring Status;
    bool IsProgressShown = false;
    double Progress = -1;
};

std::string Described(const data::Changes& changes)
{
    std::string text;
    const auto addRow = [&](const char* name, long position, long mark) {
        text += std::string(name) + std::to_string(position) + "/" + std::to_string(mark) + " ";
    };
    for (const auto& record : changes.NewHostRecords)
    {
        addRow("newRow", record.RecordBookmark, record.RecordState);
    }
    for (const auto& record : changes.ChangedHostRecords)
    {
        addRow("changedRow", record.RecordBookmark, record.RecordState);
    }
    for (const auto& record : changes.ChangedOutlookItems)
    {
        addRow("changedItem", std::stol(record.ItemIndex), record.RecordState);
    }
    for (const auto& record : changes.NewOutlookItems)
    {
        addRow("newItem", std::stol(record.ItemIndex), record.RecordState);
    }
    return text;
}

Record Contact(const wchar_t* last, const wchar_t* first, const wchar_t* company)
{
    return {{L"LastName", last}, {L"FirstName", first}, {L"CompanyName", company}};
}

Record ContactRow(Value surname, Value givenName, Value account)
{
    return {{L"F_SURNAME", std::move(surname)},
            {L"F_GIVENNAME", std::move(givenName)},
            {L"ACC_SNAME", std::move(account)}};
}

class ContactCollection : public testing::Test
{
  protected:
    ContactCollection() { Shared().gDTC = Host.Object(); }
    ~ContactCollection() override { Shared().gDTC = {}; }

    // Collects by a conflict rule and direction (1 from Outlook, 2 to Outlook, 3 both); empty when it failed.
    std::string Collect(long rule, long direction)
    {
        Shared().gSynParameter.TransConflictOption = rule;
        data::Run run{.Display = Display};
        run.Items = MakeItems(Items);
        run.HostRows = MakeRows(Rows);
        ChangeCollection collection(run::kContactCategory, run);
        const bool failed = (direction != 1 && collection.CollectToOutlook()) ||
                            (direction != 2 && collection.CollectFromOutlook());
        return failed ? "failed" : Described(run.Pending);
    }

    std::string Walk(long rule, long direction)
    {
        data::Run run{.Display = Display};
        run.Items = MakeItems(Items);
        run.HostRows = MakeRows(Rows);
        const bool failed = (direction != 1 && WalkToOutlook(run::kContactCategory, run, rule)) ||
                            (direction != 2 && WalkFromOutlook(run::kContactCategory, run, rule, true, true));
        return failed ? "failed" : Described(run.Pending);
    }

    TestHost Host;
    SilentDisplay Display;
    std::shared_ptr<Records> Items = std::make_shared<Records>();
    std::shared_ptr<Records> Rows = std::make_shared<Records>();
};

} // namespace

TEST_F(ContactCollection, AnEmptyHostProposesNothingToOutlookAndEveryItemAsNewToTheHost)
{
    *Items = {Contact(L"Li", L"Ming", L"Harbour"), Contact(L"Ode", L"Ann", L"")};
    EXPECT_EQ("", Collect(3, 2));
    EXPECT_EQ("newItem1/0 newItem2/0 ", Collect(3, 1));
}

TEST_F(ContactCollection, Rule2WithEveryRecordMatchedProposesNothing)
{
    *Items = {Contact(L"Li", L"Ming", L"Harbour")};
    *Rows = {ContactRow(L"LI ", L"ming", L"harbour")};
    EXPECT_EQ("", Collect(2, 3));
}

TEST_F(ContactCollection, Rule1ProposesAMatchedContactAsNewOnTheOtherSide)
{
    *Items = {Contact(L"Li", L"Ming", L"Harbour")};
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour")};
    EXPECT_EQ("newRow1/0 newItem1/0 ", Collect(1, 3));
}

TEST_F(ContactCollection, Rule3ProposesAMatchedPairInBothDirections)
{
    *Items = {Contact(L"Ode", L"Ann", L""), Contact(L"Li", L"Ming", L"Harbour")};
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour"), ContactRow(L"New", L"One", Value::Null())};
    EXPECT_EQ("newRow2/0 changedRow1/1 changedRow1/0 changedItem2/1 changedItem2/0 newItem1/0 ",
              Collect(3, 3));
}

TEST_F(ContactCollection, Rules4And5ProposeAMatchedPairOnlyTowardsTheSideThatLoses)
{
    *Items = {Contact(L"Li", L"Ming", L"Harbour")};
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour")};
    EXPECT_EQ("changedRow1/1 changedItem1/1 ", Collect(4, 3));
    EXPECT_EQ("changedRow1/0 changedItem1/0 ", Collect(5, 3));
}

TEST_F(ContactCollection, WithoutTheRightToAddMatchedPairsAreStillProposed)
{
    Host.DenyRight(2); // adding
    *Items = {Contact(L"Li", L"Ming", L"Harbour"), Contact(L"Ode", L"Ann", L"")};
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour")};
    const auto collectAndReadTheRefusal = [&](long rule, const std::string& expected) {
        std::wstring refusal;
        sandbox::Robot robot([&](sandbox::Robot& user) {
            const sandbox::ShownDialog box = user.WaitForDialog();
            refusal = box.Message();
            box.Click(IDOK);
        });
        EXPECT_EQ(expected, Collect(rule, 1));
        robot.Finish();
        EXPECT_EQ(L"You are not permit to add contact record(s)!", refusal);
    };
    collectAndReadTheRefusal(5, "changedRow1/0 changedItem1/0 ");
    collectAndReadTheRefusal(1, "");
}

TEST_F(ContactCollection, NamesAreJoinedWithoutASeparatorSoThatLiMingMatchesLimIng)
{
    *Items = {Contact(L"Lim", L"ing", L"Harbour")};
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour")};
    EXPECT_EQ("changedRow1/1 changedItem1/1 ", Collect(4, 2));
}

TEST_F(ContactCollection, ANullSurnameMatchesAnItemWithoutNamesWhenTheCompaniesAgree)
{
    *Items = {Contact(L"", L"", L"Harbour")};
    *Rows = {ContactRow(Value::Null(), L"Ming", L"Harbour")};
    EXPECT_EQ("changedRow1/1 changedItem1/1 ", Collect(4, 2));
}

TEST_F(ContactCollection, AnItemThatCannotBeReadEndsTheProcedureAsFailed)
{
    *Items = {Record{}};
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour")};
    EXPECT_EQ("failed", Collect(3, 2));
    EXPECT_EQ("failed", Collect(3, 1));
    Rows->clear();
    EXPECT_EQ("failed", Collect(3, 1));
    EXPECT_EQ("", Collect(3, 2));
}

TEST_F(ContactCollection, TheStatusLineNamesTheWorkAndTheProgressEndsFullAndHidden)
{
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour"), ContactRow(L"Ode", L"Ann", L"")};
    Collect(3, 2);
    EXPECT_EQ(L"Collecting information...", Display.Status);
    EXPECT_EQ(1, Display.Progress);
    EXPECT_FALSE(Display.IsProgressShown);
}

TEST_F(ContactCollection, ATwoWayRunReadsEachMatchKeyOnce)
{
    for (int i = 0; i < 40; ++i)
    {
        const std::wstring name = L"Name" + std::to_wstring(i);
        Items->push_back(Contact(name.c_str(), L"A", L"Harbour"));
        Rows->push_back(ContactRow(i % 2 == 0 ? name : name + L"x", L"A", L"Harbour"));
    }
    const CallCounter counter;
    Collect(3, 3);
    EXPECT_EQ(40, counter.Of(L"Item.LastName"));
    EXPECT_EQ(40, counter.Of(L"Item.FirstName"));
    EXPECT_EQ(20, counter.Of(L"Item.CompanyName"));
    // Once for the names, once more for a company, unless the item is still at hand.
    EXPECT_EQ(40 + 19, counter.Of(L"Items.Item"));
    EXPECT_EQ(40 * 2 + 20, counter.Of(L"Field.Value"));
}

TEST_F(ContactCollection, EqualsThePlainNestedWalkOverRandomData)
{
    std::mt19937 random(20031);
    const auto pick = [&](std::initializer_list<Value> values) {
        return *(values.begin() + std::uniform_int_distribution<size_t>(0, values.size() - 1)(random));
    };
    const auto chance = [&](int oneIn) { return std::uniform_int_distribution<int>(1, oneIn)(random) == 1; };
    long proposed = 0;
    for (int round = 0; round < 400; ++round)
    {
        Items->clear();
        Rows->clear();
        const auto size = [&] { return std::uniform_int_distribution<int>(0, 9)(random); };
        for (int i = size(); i > 0; --i)
        {
            Record item{{L"LastName", pick({L"Li", L"li ", L"Lim", L"", Value(), Value::Null()})},
                        {L"FirstName", pick({L"Ming", L"ing", L"", Value::Null()})},
                        {L"CompanyName", pick({L"Harbour", L"HARBOUR", L"", Value()})}};
            if (chance(60))
            {
                item.erase(chance(2) ? L"CompanyName" : L"FirstName");
            }
            Items->push_back(chance(80) ? Record{} : item);
        }
        for (int i = size(); i > 0; --i)
        {
            Record row = ContactRow(pick({L"Li", L" LI", L"Lim", L"", Value::Null()}),
                                    pick({L"Ming", L"ing", L"", Value::Null(), Value()}),
                                    pick({L"Harbour", L"", Value::Null()}));
            if (chance(80))
            {
                row.erase(chance(2) ? L"ACC_SNAME" : L"F_GIVENNAME");
            }
            Rows->push_back(row);
        }
        for (long rule = 0; rule <= 6; ++rule)
        {
            for (long direction = 1; direction <= 3; ++direction)
            {
                const std::string expected = Walk(rule, direction);
                ASSERT_EQ(expected, Collect(rule, direction))
                    << "round " << round << ", rule " << rule << ", direction " << direction << " items "
                    << Items->size() << " rows " << Rows->size();
                proposed += expected.empty() ? 0 : 1;
            }
        }
    }
    EXPECT_GT(proposed, 4000);
}
