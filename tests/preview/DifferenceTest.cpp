// Which values of a list of changes read alike, and what keeps a change from being made.
#include "exchange/Difference.h"

#include "automation/Dates.h"
#include "exchange/Preview.h"
#include "state/SharedState.h"
#include "tests/preview/RandomSides.h"

#include <algorithm>

namespace
{

using automation::Date;
using automation::Value;

const Value kNothing[] = {Value(), Value::Null(), Value(L""), Value(automation::kOutlookNoDate)};

TEST(Differences, NothingIsNothingInEveryForm)
{
    for (const Value& one : kNothing)
    {
        for (const Value& other : kNothing)
        {
            EXPECT_TRUE(exchange::AreSame(one, other));
        }
        for (const Value& value : {Value(L"x"), Value(1L), Value(true), Value(Date{37747})})
        {
            EXPECT_FALSE(exchange::AreSame(one, value));
            EXPECT_FALSE(exchange::AreSame(value, one));
        }
    }
}

TEST(Differences, ValuesOfDifferentTypesAreComparedAsTheyRead)
{
    EXPECT_TRUE(exchange::AreSame(Value(true), Value(1L)));
    EXPECT_TRUE(exchange::AreSame(Value(0L), Value(false)));
    EXPECT_FALSE(exchange::AreSame(Value(true), Value(0L)));
    EXPECT_TRUE(exchange::AreSame(Value(Date{37747.5}), Value(L"2003-05-06 12:00:00")));
    EXPECT_FALSE(exchange::AreSame(Value(Date{37747.5}), Value(L"2003-05-06 12:00:01")));
    EXPECT_FALSE(exchange::AreSame(Value(Date{37747.5}), Value(L"soon")));
    EXPECT_TRUE(exchange::AreSame(Value(L"25"), Value(25L)));
    EXPECT_FALSE(exchange::AreSame(Value(L"a"), Value(L"A")));
    EXPECT_TRUE(exchange::AreSame(Value(2L), Value(2.0)));
    EXPECT_FALSE(exchange::AreSame(Value(2L), Value(2.5)));
}

TEST(Preview, TellsTheRightThatANewContactsAccountLacks)
{
    test_support::RandomSides sides(test_support::kRandomContacts, 1);
    sides.Add(0, 6, 0);
    exchange::Run& run = sides.Collect(state::kOutlookToQuenlar);
    exchange::Preview preview(sides.Kind.tested, run);
    const auto remarksWith = [&](long answer) {
        sides.TheHost.SetRight(1, 2, 2, answer); // to add accounts
        long remarks = 0;
        for (const exchange::Proposal& proposal :
             exchange::ProposalsOf(run.Pending, state::kOutlookToQuenlar))
        {
            remarks += static_cast<long>(std::ranges::count(preview.Of(proposal).Remarks,
                                                            state::Cause::RightMissing, &state::Remark::Why));
        }
        return remarks;
    };
    EXPECT_EQ(0, remarksWith(0));
    EXPECT_EQ(2, remarksWith(1)) << "two of six contacts have a company";
}

TEST(Preview, TellsThatAnItemHasGone)
{
    test_support::RandomSides sides(test_support::kRandomTasks, 1);
    sides.Add(0, 1, 0);
    exchange::Run& run = sides.Collect(state::kOutlookToQuenlar);
    exchange::Preview preview(sides.Kind.tested, run);
    run.Items.GetObject(L"Item", 1L).Call(L"Delete");
    const auto proposals = exchange::ProposalsOf(run.Pending, state::kOutlookToQuenlar);
    ASSERT_EQ(1u, proposals.size());
    const exchange::RecordPreview gone = preview.Of(proposals.front());
    EXPECT_FALSE(gone.IsWritten());
    ASSERT_EQ(1u, gone.Remarks.size());
    EXPECT_EQ(state::Cause::Vanished, gone.Remarks.front().Why);
}

} // namespace
