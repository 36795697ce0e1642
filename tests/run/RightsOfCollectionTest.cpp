// The rights that a collection asks for, and what it proposes without them.
#include "automation/Text.h"
#include "calendar/Calendar.h"
#include "contacts/Contacts.h"
#include "state/SharedState.h"
#include "tasks/Tasks.h"
#include "tests/run/CollectionFixture.h"
#include "tests/support/MessageBoxes.h"

namespace
{

using namespace test_support;

using Questions = std::vector<FakeHost::Right>;

struct RightsOfKind
{
    const exchange::Kind& category;
    Questions expected; // adding, then modifying
};

const RightsOfKind kRightsOfKinds[] = {
    {contacts::kContacts, {{2, 2, 2}, {2, 2, 4}}},
    {tasks::kTasks, {{4, 5, 2}, {4, 5, 4}}},
    {calendar::kCalendar, {{6, 9, 2}, {6, 9, 4}}},
};

class RightsOfCollection : public CollectionFixture
{
  protected:
    RightsOfCollection() : CollectionFixture(contacts::kContacts)
    {
        *Items = {Contact(L"Li"), Contact(L"Ode")};
        *Rows = {{{L"F_SURNAME", L"Li"}, {L"F_GIVENNAME", L""}, {L"ACC_SNAME", L""}},
                 {{L"F_SURNAME", L"New"}, {L"F_GIVENNAME", L""}, {L"ACC_SNAME", L""}}};
    }

    static Record Contact(const wchar_t* name)
    {
        return {{L"LastName", name}, {L"FirstName", L""}, {L"CompanyName", L""}};
    }

    // The proposals of a collection during which so many refusals are shown.
    std::string CollectWithRefusals(long rule, long direction, size_t refusals)
    {
        std::string proposed;
        EXPECT_EQ(refusals, MessagesDuring([&] { proposed = Collect(rule, direction); }).size());
        return proposed;
    }
};

TEST_F(RightsOfCollection, OfEachKindTheRightsToAddAndToModifyAreAskedForOnceInThisOrder)
{
    for (const RightsOfKind& kind : kRightsOfKinds)
    {
        const WithFakeHost host;
        Items->clear();
        Rows->clear();
        exchange::Run run = NewRun();
        run::ChangeCollection collection(kind.category, run);
        EXPECT_FALSE(collection.CollectToOutlook());
        EXPECT_EQ(Questions{}, host->Asked) << "towards Outlook no right is needed";
        EXPECT_FALSE(collection.CollectFromOutlook());
        EXPECT_EQ(kind.expected, host->Asked) << automation::ToUtf8(kind.category.Name.TransObject);
    }
}

TEST_F(RightsOfCollection, Rule3WithoutTheRightToAddStillProposesThePairs)
{
    Host->DeniedCodes.insert(2); // adding
    EXPECT_EQ("changedRow1/0 changedItem1/0 ", CollectWithRefusals(3, 1, 1));
    EXPECT_EQ("newRow2/0 changedRow1/1 changedRow1/0 changedItem1/1 changedItem1/0 ",
              CollectWithRefusals(3, 3, 1));
}

TEST_F(RightsOfCollection, Rule3WithoutTheRightToModifyStillProposesNewRows)
{
    Host->DeniedCodes.insert(4); // modifying
    EXPECT_EQ("newItem2/0 ", CollectWithRefusals(3, 1, 1));
    EXPECT_EQ("newRow2/0 changedRow1/1 changedItem1/1 newItem2/0 ", CollectWithRefusals(3, 3, 1));
}

TEST_F(RightsOfCollection, WithoutEitherRightNoRuleProposesAnythingFromOutlook)
{
    Host->DeniedCodes.insert(2);
    Host->DeniedCodes.insert(4);
    for (const long rule : {1, 2, 3, 4, 5})
    {
        EXPECT_EQ("", CollectWithRefusals(rule, 1, 2)) << rule;
    }
}

TEST_F(RightsOfCollection, RecordsCollectedBeforeAFailingItemStay)
{
    *Items = {Contact(L"Ode"), Contact(L"Li"), Contact(L"Zoe"), Record{}, Contact(L"Ann")};
    state::Shared().gSynParameter.TransConflictOption = state::kOutlookWins;
    exchange::Run run = NewRun();
    EXPECT_TRUE(run::ChangeCollection(contacts::kContacts, run).CollectFromOutlook());
    ASSERT_EQ(2, run.Pending.NewOutlookItems.Count());
    EXPECT_EQ(L"1", run.Pending.NewOutlookItems.Item(1L).ItemIndex);
    EXPECT_EQ(L"3", run.Pending.NewOutlookItems.Item(2L).ItemIndex);
    ASSERT_EQ(1, run.Pending.ChangedOutlookItems.Count());
    EXPECT_EQ(L"2", run.Pending.ChangedOutlookItems.Item(1L).ItemIndex);
    EXPECT_EQ(0, run.Pending.ChangedOutlookItems.Item(1L).RecordState);
    ASSERT_EQ(1, run.Pending.ChangedHostRecords.Count());
    EXPECT_EQ(1, run.Pending.ChangedHostRecords.Item(1L).RecordBookmark);
    EXPECT_FALSE(Display.IsShown);
}

} // namespace
