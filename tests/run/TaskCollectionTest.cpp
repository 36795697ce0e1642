// Change collection of tasks: the pending-only choice, and the whole against the plain nested walk.
#include "tasks/Tasks.h"
#include "tests/run/CollectionFixture.h"

#include "state/SharedState.h"
#include "tests/support/CallWatch.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/Thoroughness.h"

namespace
{

using namespace test_support;
using automation::Date;
using automation::Value;
using state::Shared;

constexpr Date kTaskDay{37747};     // 2003-05-06
constexpr Date kNextTaskDay{37748}; //
constexpr Date kNoTaskDate{949998}; // 4501-01-01

Record Task(Value subject, Value complete = false)
{
    return {{L"Subject", std::move(subject)},
            {L"Categories", L""},
            {L"StartDate", kTaskDay},
            {L"Companies", L""},
            {L"Complete", std::move(complete)}};
}

Record TaskRow(Value name, Value completed = Value::Null())
{
    return {{L"F_ACTNAME", std::move(name)},
            {L"F_ACTTYPE", Value::Null()},
            {L"F_ACTPSTIME", kTaskDay},
            {L"ACC_SNAME", Value::Null()},
            {L"F_ACTCOMPLETED", std::move(completed)}};
}

class TaskCollection : public CollectionFixture
{
  protected:
    TaskCollection() : CollectionFixture(tasks::kTasks) {}

    void TakePendingTasksOnly() { Shared().gSynParameter.TaskTransItem = state::kPendingTasks; }
};

TEST_F(TaskCollection, PendingOnlyProposesNoCompletedRowTowardsOutlook)
{
    TakePendingTasksOnly();
    *Rows = {TaskRow(L"done", true), TaskRow(L"open", false), TaskRow(L"done too", 1L)};
    EXPECT_EQ("newRow2/0 ", Collect(3, 2));
}

TEST_F(TaskCollection, ARowWhoseCompletionIsNullIsPending)
{
    TakePendingTasksOnly();
    *Rows = {TaskRow(L"unknown", Value::Null()), TaskRow(L"empty", Value())};
    EXPECT_EQ("newRow1/0 newRow2/0 ", Collect(3, 2));
}

TEST_F(TaskCollection, PendingOnlyProposesNoCompletedItemTowardsTheHost)
{
    TakePendingTasksOnly();
    *Items = {Task(L"done", true), Task(L"open", false)};
    EXPECT_EQ("newItem2/0 ", Collect(3, 1));
}

TEST_F(TaskCollection, ACompletedPartnerStillMatchesSoThatNoDuplicateIsProposed)
{
    TakePendingTasksOnly();
    *Items = {Task(L"a", true), Task(L"b", false)};
    *Rows = {TaskRow(L"a", false), TaskRow(L"b", true)};
    EXPECT_EQ("changedRow1/1 changedItem1/1 ", Collect(3, 2));
    EXPECT_EQ("changedRow2/0 changedItem2/0 ", Collect(3, 1));
    EXPECT_EQ("", Collect(2, 3));
}

TEST_F(TaskCollection, IfAllTasksAreTakenTheirCompletionIsNotRead)
{
    *Items = {Task(L"a", true), Task(L"b", false)};
    *Rows = {TaskRow(L"c", true), TaskRow(L"d", false)};
    const CallWatch calls;
    EXPECT_EQ("newRow1/0 newRow2/0 newItem1/0 newItem2/0 ", Collect(3, 3));
    EXPECT_EQ(calls.Of(L"Item.Complete"), 0);
}

TEST_F(TaskCollection, ACompletionThatCannotBeReadFailsOnlyWhereItMatters)
{
    Record item = Task(L"a");
    item.erase(L"Complete");
    *Items = {item};
    EXPECT_EQ("newItem1/0 ", Collect(3, 1));
    TakePendingTasksOnly();
    EXPECT_EQ("failed", Collect(3, 1));
    EXPECT_EQ("", Collect(3, 2));
}

TEST_F(TaskCollection, AsksForTheRightsOfActivities)
{
    Host->DeniedCodes.insert(2); // add
    Host->DeniedCodes.insert(4); // modify
    const std::vector<ShownMessage> expected = {
        {L"You are not permit to add activity record(s)!", L"Telvix", IDI_EXCLAMATION},
        {L"You are not permit to modify activity record(s)!", L"Telvix", IDI_EXCLAMATION}};
    *Items = {Task(L"a"), Task(L"b")};
    *Rows = {TaskRow(L"a")};
    EXPECT_EQ(expected, MessagesDuring([&] { EXPECT_EQ("", Collect(3, 1)); }));
}

TEST_F(TaskCollection, TheStatusLineNamesTheCollectingInBothDirections)
{
    for (const long direction : {1L, 2L})
    {
        Display.Status.clear();
        Collect(3, direction);
        EXPECT_EQ(L"Collecting information...", Display.Status);
    }
}

Record RandomTask(RandomData& random)
{
    Record record{
        {L"Subject", random.Pick({L"Call", L" call ", L"", Value(), Value::Null()})},
        {L"Categories",
         random.Pick({L"Phone", L"PHONE", L"", L"(Unspecified)", L"Phone; Fax", Value::Null()})},
        {L"StartDate",
         random.Pick({kTaskDay, Date{kTaskDay.days + 0.4}, kNextTaskDay, kNoTaskDate, Value()})},
        {L"Companies", random.Pick({L"Harbour", L"harbour ", L"", Value()})},
        {L"Complete", random.Pick({true, false, false, 0L})},
    };
    if (random.OneIn(60))
    {
        record.erase(automation::TextOf(random.Pick({L"Subject", L"StartDate", L"Companies", L"Complete"})));
    }
    return random.OneIn(80) ? Record{} : record;
}

Record RandomTaskRow(RandomData& random)
{
    Record record{
        {L"F_ACTNAME", random.Pick({L"Call", L"CALL", L"", Value::Null()})},
        {L"F_ACTTYPE",
         random.Pick({L"Phone", L"(未指定)", L"(Unspecified)", L"phone; fax", L"", Value::Null()})},
        {L"F_ACTPSTIME",
         random.Pick({kTaskDay, Date{kTaskDay.days + 0.9}, kNextTaskDay, kNoTaskDate, Value::Null()})},
        {L"ACC_SNAME", random.Pick({L"Harbour", L"", Value::Null()})},
        {L"F_ACTCOMPLETED", random.Pick({true, false, 1L, Value::Null()})},
    };
    if (random.OneIn(80))
    {
        record.erase(automation::TextOf(random.Pick({L"F_ACTNAME", L"ACC_SNAME", L"F_ACTCOMPLETED"})));
    }
    return record;
}

TEST_F(TaskCollection, EqualsThePlainNestedWalkOverRandomDataWithAndWithoutTheCompletedOnes)
{
    const auto choose = [](RandomData& random) {
        Shared().gSynParameter.TaskTransItem = static_cast<long>(random.Number(2));
    };
    EXPECT_GT(CompareWithTheNestedWalk({.rounds = test_support::Times(300),
                                        .item = RandomTask,
                                        .row = RandomTaskRow,
                                        .parameters = choose}),
              test_support::Times(3000));
}

} // namespace
