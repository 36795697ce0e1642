// Hostile keys on both sides of the change collection: what it proposes is what the plain nested walk
// proposes.
#include "calendar/Calendar.h"
#include "contacts/Contacts.h"
#include "exchange/Kind.h"
#include "tasks/Tasks.h"
#include "tests/hostile/HostileValues.h"
#include "tests/run/CollectionFixture.h"
#include "tests/support/Thoroughness.h"

#include <algorithm>
#include <iterator>

namespace
{

using namespace test_support;

// A few values come again and again, so that records have partners.
using Pool = std::vector<Value>;

class HostileMatching : public CollectionFixture
{
  protected:
    explicit HostileMatching(const exchange::Kind& category, const char* name)
        : CollectionFixture(category), mValues(name)
    {
    }

    Value AnyText() { return Pick(mTexts); }
    Value AnyDate() { return mIsWild && mValues.OneIn(30) ? mValues.Any() : Pick(mDates); }

    // Rounds of few records with values from small pools, the pools made anew for each group of rounds.
    void Compare(const std::function<Record()>& item, const std::function<Record()>& row)
    {
        constexpr int kRounds = 5;
        long proposed = 0;
        for (long i = 0; i < Times(40); ++i)
        {
            SCOPED_TRACE("group " + std::to_string(i) + ", seed " + std::to_string(mValues.Seed()));
            // An unreadable value fails the whole collection: that is tried too, but not in most groups.
            mIsWild = mValues.OneIn(4);
            mTexts = Filled(4, [&] { return mIsWild ? mValues.Any() : Value(mValues.Text()); });
            mDates = Filled(3, [&] { return mIsWild ? mValues.Date() : DateOfOutlook(); });
            proposed += CompareWithTheNestedWalk({.rounds = kRounds,
                                                  .item = [&](RandomData&) { return item(); },
                                                  .row = [&](RandomData&) { return row(); }});
        }
        EXPECT_GT(proposed, 100);
        mValues.Report(std::to_string(proposed) +
                       " collections that proposed or failed, all as the nested walk");
    }

    HostileValues mValues;

  private:
    template<typename Make>
    static Pool Filled(size_t size, Make&& make)
    {
        Pool pool(size);
        std::ranges::generate(pool, make);
        return pool;
    }

    // To the second, at and about the ends of what Outlook can hold.
    Value DateOfOutlook()
    {
        constexpr double kDays[] = {-109205, -53688, 0, 0.5, 37747.25, 949998, 949997.99999, -1.75};
        return automation::Date{kDays[mValues.Below(std::size(kDays))]};
    }

    Value Pick(const Pool& pool)
    {
        return mValues.OneIn(12) ? Value::Null() : pool[mValues.Below(pool.size())];
    }

    bool mIsWild = false;
    Pool mTexts;
    Pool mDates;
};

class HostileContacts : public HostileMatching
{
  protected:
    HostileContacts() : HostileMatching(contacts::kContacts, "matching contacts") {}
};

class HostileTasks : public HostileMatching
{
  protected:
    HostileTasks() : HostileMatching(tasks::kTasks, "matching tasks") {}
};

class HostileAppointments : public HostileMatching
{
  protected:
    HostileAppointments() : HostileMatching(calendar::kCalendar, "matching appointments") {}
};

TEST_F(HostileContacts, AreMatchedAsByTheNestedWalk)
{
    Compare(
        [&] {
            return Record{{L"LastName", AnyText()}, {L"FirstName", AnyText()}, {L"CompanyName", AnyText()}};
        },
        [&] {
            return Record{{L"F_SURNAME", AnyText()}, {L"F_GIVENNAME", AnyText()}, {L"ACC_SNAME", AnyText()}};
        });
}

TEST_F(HostileTasks, AreMatchedAsByTheNestedWalk)
{
    Compare(
        [&] {
            return Record{{L"Subject", AnyText()},
                          {L"Categories", AnyText()},
                          {L"StartDate", AnyDate()},
                          {L"Companies", AnyText()},
                          {L"Complete", false}};
        },
        [&] {
            return Record{{L"F_ACTNAME", AnyText()},
                          {L"F_ACTTYPE", AnyText()},
                          {L"F_ACTPSTIME", AnyDate()},
                          {L"ACC_SNAME", AnyText()},
                          {L"F_ACTCOMPLETED", false}};
        });
}

TEST_F(HostileAppointments, AreMatchedAsByTheNestedWalk)
{
    Compare(
        [&] {
            return Record{{L"Subject", AnyText()},
                          {L"Categories", AnyText()},
                          {L"Start", AnyDate()},
                          {L"AllDayEvent", mValues.OneIn(4)}};
        },
        [&] {
            return Record{{L"F_ACTNAME", AnyText()},
                          {L"F_ACTTYPE", AnyText()},
                          {L"F_ACTESDATE", AnyDate()},
                          {L"F_ACTESTIME", AnyDate()}};
        });
}

} // namespace
