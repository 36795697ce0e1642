// Change collection of the calendar: the range codes against the host's clock, and the whole against the
// plain nested walk.
#include "calendar/Calendar.h"
#include "tests/run/CollectionFixture.h"

#include "automation/Dates.h"
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

constexpr Date kToday{37747}; // 2003-05-06

constexpr Date InDays(double days)
{
    return {kToday.days + days};
}

// An hour's appointment that starts at a moment.
Record Appointment(Value subject, Date start)
{
    return {{L"Subject", std::move(subject)},      {L"Categories", L""},    {L"Start", start},
            {L"End", Date{start.days + 1.0 / 24}}, {L"AllDayEvent", false}, {L"IsRecurring", false}};
}

// An hour's entry that starts at a moment, in the columns of the host.
Record Entry(Value name, Date start)
{
    const Date day = automation::DayOf(start);
    const double time = start.days - day.days;
    return {{L"F_ACTNAME", std::move(name)},
            {L"F_ACTTYPE", Value::Null()},
            {L"F_ACTESDATE", day},
            {L"F_ACTESTIME", Date{time}},
            {L"F_ACTEETIME", Date{time + 1.0 / 24}},
            {L"FR_NAME", Value::Null()},
            {L"F_ACTREPTEDATE", Value::Null()}};
}

class CalendarCollection : public CollectionFixture
{
  protected:
    CalendarCollection() : CollectionFixture(calendar::kCalendar) { Host->Now = InDays(0.5); }
    ~CalendarCollection() override { Shared().gCalendarStartTime = {}; }

    void TakeFutureEntriesOnly() { Shared().gSynParameter.CalendarTransItem = state::kFutureEntries; }
    void TakeEntriesWithin(short prior, short after)
    {
        Shared().gSynParameter.CalendarTransItem = state::kEntriesWithinDays;
        Shared().gSynParameter.CalendarPrior = prior;
        Shared().gSynParameter.CalendarAfter = after;
    }
};

TEST_F(CalendarCollection, FutureOnlyKeepsEntriesThatEndAfterTheHostsNowInBothDirections)
{
    TakeFutureEntriesOnly();
    *Rows = {Entry(L"over", InDays(0.25)), Entry(L"going on", InDays(0.48)), Entry(L"later", InDays(3))};
    *Items = {Appointment(L"is over", InDays(-1)), Appointment(L"goes on", InDays(0.48)),
              Appointment(L"comes", InDays(1))};
    EXPECT_EQ("newRow2/0 newRow3/0 newItem2/0 newItem3/0 ", Collect(3, 3));
}

TEST_F(CalendarCollection, ARangeKeepsTheDaysAroundTodayBothEndsIncluded)
{
    TakeEntriesWithin(1, 2);
    *Rows = {Entry(L"a", InDays(-1.5)), Entry(L"b", InDays(-0.5)), Entry(L"c", InDays(2.9)),
             Entry(L"d", InDays(3))};
    EXPECT_EQ("newRow2/0 newRow3/0 ", Collect(3, 2));
    *Items = {Appointment(L"a", InDays(-2)), Appointment(L"b", InDays(-1)), Appointment(L"c", InDays(2.5)),
              Appointment(L"d", InDays(3.1))};
    Rows->clear();
    EXPECT_EQ("newItem2/0 newItem3/0 ", Collect(3, 1));
}

TEST_F(CalendarCollection, ARepeatingEntryCountsUntilItsLastDayAndAnEndlessOneAlways)
{
    TakeFutureEntriesOnly();
    Record ending = Entry(L"until yesterday", InDays(-30));
    ending[L"FR_NAME"] = L"Every day";
    ending[L"F_ACTREPTEDATE"] = InDays(-1);
    Record today = ending;
    today[L"F_ACTREPTEDATE"] = kToday;
    Record endless = ending;
    endless[L"F_ACTREPTEDATE"] = Value::Null();
    *Rows = {ending, today, endless};
    EXPECT_EQ("newRow2/0 newRow3/0 ", Collect(3, 2));

    Record weekly = Appointment(L"until yesterday", InDays(-30));
    weekly[L"IsRecurring"] = true;
    weekly[L"NoEndDate"] = false;
    weekly[L"PatternEndDate"] = InDays(-1);
    Record forever = weekly;
    forever[L"NoEndDate"] = true;
    *Items = {weekly, forever};
    Rows->clear();
    EXPECT_EQ("newItem2/0 ", Collect(3, 1));
}

TEST_F(CalendarCollection, APartnerOutsideTheRangeStillMatchesSoThatNoDuplicateIsProposed)
{
    TakeFutureEntriesOnly();
    Record row = Entry(L"board", InDays(0.25));
    row[L"F_ACTEETIME"] = Date{0.75}; // the host's entry lasts until the afternoon
    *Rows = {row};
    *Items = {Appointment(L"board", InDays(0.25))};
    EXPECT_EQ("changedRow1/1 changedItem1/1 ", Collect(3, 2));
    EXPECT_EQ("", Collect(3, 1));
}

// A day in another time zone.
TEST_F(CalendarCollection, AnAllDayAppointmentThatDoesNotBeginAtMidnightMatchesByItsOwnStart)
{
    state::Shared().gCalendarStartTime = {6.0 / 24};
    const Date halfPastMidnight{kToday.days + 0.5 / 24};
    Record item = Appointment(L"board", halfPastMidnight);
    item[L"AllDayEvent"] = true;
    *Items = {item};
    *Rows = {Entry(L"board", halfPastMidnight)};
    EXPECT_EQ("changedRow1/1 changedItem1/1 ", Collect(3, 2));
    *Rows = {Entry(L"board", {kToday.days + 6.5 / 24})};
    EXPECT_EQ("newRow1/0 ", Collect(3, 2));
    state::Shared().gCalendarStartTime = {};
}

TEST_F(CalendarCollection, TheHostsClockIsAskedOncePerRunAndOnlyForARange)
{
    const auto timesAsked = [&] {
        const CallWatch calls;
        Collect(3, 3);
        return calls.Of(L"DTC.SysDateTime");
    };
    *Rows = {Entry(L"a", kToday), Entry(L"b", kToday)};
    *Items = {Appointment(L"c", kToday), Appointment(L"d", kToday)};
    EXPECT_EQ(0, timesAsked());
    TakeFutureEntriesOnly();
    EXPECT_EQ(1, timesAsked());
    TakeEntriesWithin(0, 0);
    EXPECT_EQ(1, timesAsked());
}

TEST_F(CalendarCollection, AnItemIsFetchedOnceThoughItsPartnerComesLater)
{
    *Items = {Appointment(L"a", kToday), Appointment(L"b", kToday), Appointment(L"c", kToday)};
    *Rows = {Entry(L"c", kToday), Entry(L"b", kToday), Entry(L"a", kToday)};
    const CallWatch calls;
    EXPECT_EQ("changedRow1/1 changedRow2/1 changedRow3/1 changedItem3/1 changedItem2/1 changedItem1/1 ",
              Collect(4, 2));
    EXPECT_EQ(3, calls.Of(L"Items.Item"));
    EXPECT_EQ(3, calls.Of(L"Item.Start"));
}

TEST_F(CalendarCollection, AsksForTheRightsOfCalendars)
{
    Host->DeniedCodes.insert(2); // add
    const std::vector<ShownMessage> expected = {
        {L"You are not permit to add account calendar record(s)!", L"Telvix", IDI_EXCLAMATION}};
    *Items = {Appointment(L"a", kToday)};
    EXPECT_EQ(expected, MessagesDuring([&] { EXPECT_EQ("", Collect(3, 1)); }));
}

TEST_F(CalendarCollection, TheStatusLineSpeaksOfSynchronizingTowardsOutlookAndOfCollectingFromIt)
{
    Collect(3, 2);
    EXPECT_EQ(L"Begin Synchronize...", Display.Status);
    Collect(3, 1);
    EXPECT_EQ(L"Collecting information...", Display.Status);
}

Record RandomAppointment(RandomData& random)
{
    Record record = Appointment(random.Pick({L"Board", L" board", L"", Value::Null()}),
                                InDays(static_cast<double>(random.Number(16)) / 4 - 2));
    record[L"Categories"] = random.Pick({L"Meeting", L"MEETING", L"", L"Meeting; Board", Value()});
    record[L"AllDayEvent"] = random.OneIn(3);
    record[L"IsRecurring"] = random.OneIn(4);
    record[L"NoEndDate"] = random.OneIn(2);
    record[L"PatternEndDate"] = InDays(static_cast<double>(random.Number(5)) - 2);
    if (random.OneIn(60))
    {
        record.erase(
            automation::TextOf(random.Pick({L"Subject", L"Start", L"End", L"AllDayEvent", L"NoEndDate"})));
    }
    return random.OneIn(80) ? Record{} : record;
}

Record RandomEntry(RandomData& random)
{
    Record record = Entry(random.Pick({L"Board", L"BOARD ", L"", Value::Null()}),
                          InDays(static_cast<double>(random.Number(16)) / 4 - 2));
    record[L"F_ACTTYPE"] = random.Pick({L"Meeting", L"(Unspecified)", L"meeting; board", L"", Value::Null()});
    record[L"FR_NAME"] = random.Pick({L"Every day", L"", Value::Null(), Value::Null()});
    record[L"F_ACTREPTEDATE"] = random.Pick({InDays(-1), InDays(1), Value::Null()});
    const std::vector<Value> optional = {L"F_ACTESDATE", L"F_ACTESTIME", L"F_ACTEETIME"};
    if (random.OneIn(6))
    {
        record[automation::TextOf(random.Pick(optional))] = Value::Null();
    }
    if (random.OneIn(80))
    {
        record.erase(automation::TextOf(random.Pick({L"F_ACTNAME", L"F_ACTESTIME", L"FR_NAME"})));
    }
    return record;
}

TEST_F(CalendarCollection, EqualsThePlainNestedWalkOverRandomDataAndRanges)
{
    Shared().gCalendarStartTime = {0.25};
    const auto choose = [](RandomData& random) {
        state::SynParameter& parameter = Shared().gSynParameter;
        parameter.CalendarTransItem = static_cast<long>(random.Number(4));
        parameter.CalendarPrior = static_cast<short>(random.Number(3));
        parameter.CalendarAfter = static_cast<short>(random.Number(3));
    };
    EXPECT_GT(CompareWithTheNestedWalk({.rounds = test_support::Times(300),
                                        .item = RandomAppointment,
                                        .row = RandomEntry,
                                        .parameters = choose}),
              test_support::Times(3000));
}

} // namespace
