#include "contacts/Contacts.h"
#include "tests/run/CollectionFixture.h"

#include "tests/support/CallWatch.h"
#include "tests/support/Thoroughness.h"
#include "tools/robot/Robot.h"

using namespace test_support;
using automation::Value;

namespace
{

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

// A table cuts what follows.
const std::wstring kLong(255, L'x');

class ContactCollection : public CollectionFixture
{
  protected:
    ContactCollection() : CollectionFixture(contacts::kContacts) {}
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
    Host->DeniedCodes.insert(2); // adding
    *Items = {Contact(L"Li", L"Ming", L"Harbour"), Contact(L"Ode", L"Ann", L"")};
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour")};
    const auto collectAndReadTheRefusal = [&](long rule, const std::string& expected) {
        std::wstring refusal;
        tools::Robot robot([&](tools::Robot& user) {
            const tools::ShownDialog box = user.WaitForDialog();
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
    EXPECT_EQ(1, Display.Progress.back());
    EXPECT_FALSE(Display.IsShown);
}

TEST_F(ContactCollection, TheProgressIsShownFromZeroAndMovesWithEachRecordInBothDirections)
{
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour"), ContactRow(L"Ode", L"Ann", L"")};
    *Items = {Contact(L"Li", L"Ming", L"Harbour"), Contact(L"A", L"B", L""), Contact(L"C", L"D", L""),
              Contact(L"E", L"F", L"")};
    Collect(3, 2);
    EXPECT_EQ((std::vector<std::wstring>{L"Collecting information...", L"0%", L"(shown)", L"50%", L"100%",
                                         L"(hidden)"}),
              Display.Events);
    Display.Events.clear();
    Collect(3, 1);
    EXPECT_EQ((std::vector<std::wstring>{L"Collecting information...", L"0%", L"(shown)", L"25%", L"50%",
                                         L"75%", L"100%", L"(hidden)"}),
              Display.Events);
}

TEST_F(ContactCollection, ATwoWayRunReadsEachMatchKeyOnce)
{
    for (int i = 0; i < 40; ++i)
    {
        const std::wstring name = L"Name" + std::to_wstring(i);
        Items->push_back(Contact(name.c_str(), L"A", L"Harbour"));
        Rows->push_back(ContactRow(i % 2 == 0 ? name : name + L"x", L"A", L"Harbour"));
    }
    const CallWatch calls;
    Collect(3, 3);
    EXPECT_EQ(40, calls.Of(L"Item.LastName"));
    EXPECT_EQ(40, calls.Of(L"Item.FirstName"));
    EXPECT_EQ(20, calls.Of(L"Item.CompanyName"));
    EXPECT_EQ(40, calls.Of(L"Items.Item"));
    // With the key of each row, which is read again where the recordset returns to it.
    EXPECT_EQ(40 * 3 + 20 + 19, calls.Of(L"Field.Value"));
}

TEST_F(ContactCollection, TheCompanyOfAnItemWhosePartnerComesLaterIsReadWhileTheItemIsAtHand)
{
    *Items = {Contact(L"Ode", L"Ann", L"Harbour"), Contact(L"Li", L"Ming", L"Harbour"),
              Contact(L"Zoe", L"Ann", L"Harbour")};
    *Rows = {ContactRow(L"New", L"Ann", L"Harbour"), ContactRow(L"Li", L"Ming", L"Harbour"),
             ContactRow(L"Ode", L"Ann", L"Harbour")};
    const CallWatch calls;
    EXPECT_EQ("newRow1/0 changedRow2/1 changedRow3/1 changedItem2/1 changedItem1/1 ", Collect(4, 2));
    EXPECT_EQ(2, calls.Of(L"Item.CompanyName"));
    EXPECT_EQ(3, calls.Of(L"Items.Item"));
    EXPECT_EQ(3 * 3 + 2 + 2, calls.Of(L"Field.Value"));
}

TEST_F(ContactCollection, ARowThatCannotBeReadFailsOnlyWhereTheWalkReachesIt)
{
    *Items = {Contact(L"Ode", L"Ann", L"Harbour"), Contact(L"Li", L"Ming", L"Harbour")};
    Record broken = ContactRow(L"Lim", L"Ing", L"Harbour");
    broken.erase(L"F_GIVENNAME");
    *Rows = {ContactRow(L"New", L"Ann", L"Harbour"), broken, ContactRow(L"Li", L"Ming", L"Harbour")};
    exchange::Run run = NewRun();
    EXPECT_TRUE(run::ChangeCollection(contacts::kContacts, run).CollectToOutlook());
    ASSERT_EQ(1, run.Pending.NewHostRecords.Count());
    EXPECT_EQ(0, run.Pending.ChangedHostRecords.Count());
}

TEST_F(ContactCollection, ACompanyThatCannotBeReadFailsOnlyWhereItIsCompared)
{
    Record broken = Contact(L"Ode", L"Ann", L"");
    broken.erase(L"CompanyName");
    *Items = {Contact(L"Lim", L"Ing", L""), broken, Contact(L"Li", L"Ming", L"Harbour")};
    *Rows = {ContactRow(L"Li", L"Ming", L"Harbour")};
    EXPECT_EQ("changedRow1/1 changedItem3/1 ", Collect(4, 2));
    Rows->push_back(ContactRow(L"Ode", L"Ann", L"Harbour"));
    EXPECT_EQ("failed", Collect(4, 2));
}

TEST_F(ContactCollection, EqualsThePlainNestedWalkOverRandomData)
{
    const auto item = [](RandomData& random) {
        Record record{{L"LastName", random.Pick({L"Li", L"li ", L"Lim", L"", Value(), Value::Null(),
                                                 kLong + L"a", kLong + L"b"})},
                      {L"FirstName", random.Pick({L"Ming", L"ing", L"", Value::Null()})},
                      {L"CompanyName", random.Pick({L"Harbour", L"HARBOUR", L"", Value()})}};
        if (random.OneIn(60))
        {
            record.erase(random.OneIn(2) ? L"CompanyName" : L"FirstName");
        }
        return random.OneIn(80) ? Record{} : record;
    };
    const auto row = [](RandomData& random) {
        Record record = ContactRow(random.Pick({L"Li", L" LI", L"Lim", L"", Value::Null(), kLong + L"A"}),
                                   random.Pick({L"Ming", L"ing", L"", Value::Null(), Value()}),
                                   random.Pick({L"Harbour", L"", Value::Null()}));
        if (random.OneIn(80))
        {
            record.erase(random.OneIn(2) ? L"ACC_SNAME" : L"F_GIVENNAME");
        }
        return record;
    };
    EXPECT_GT(CompareWithTheNestedWalk({.rounds = test_support::Times(400), .item = item, .row = row}),
              test_support::Times(4000));
}
