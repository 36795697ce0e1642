// Which entries a run proposes by the range code, in both directions alike.
#include "state/SharedState.h"
#include "tests/calendar/CalendarExchange.h"

namespace test_support
{

// The host's clock shows noon of 2003-05-06.
class CalendarRangeExchange : public CalendarExchange
{
  protected:
    static void UseRange(long code, short prior = 0, short after = 0)
    {
        state::Shared().gSynParameter.CalendarTransItem = code;
        state::Shared().gSynParameter.CalendarPrior = prior;
        state::Shared().gSynParameter.CalendarAfter = after;
    }

    void AddHostEntries()
    {
        AddEntry(L"yesterday", {{L"F_ACTESDATE", L"'2003-05-05 00:00:00'"}});
        AddEntry(L"this morning");
        AddEntry(L"going on", {{L"F_ACTEETIME", L"'1899-12-30 12:30:00'"}});
        AddEntry(L"next week", {{L"F_ACTESDATE", L"'2003-05-13 00:00:00'"}});
        AddRepeatingEntry(L"ended series", 1, L"2003-04-01", L"2003-05-05");
        AddRepeatingEntry(L"series to today", 1, L"2003-04-01", L"2003-05-06");
        AddRepeatingEntry(L"endless series", 2, L"2003-04-01", L"");
        AddRepeatingEntry(L"later series", 3, L"2003-06-01", L"2003-07-01");
    }

    void AddAppointments()
    {
        AddAppointment(Day(2003, 5, 5, 9, 30), Day(2003, 5, 5, 11, 0), L"yesterday");
        AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0), L"this morning");
        AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 12, 30), L"going on");
        AddAppointment(Day(2003, 5, 13, 9, 30), Day(2003, 5, 13, 11, 0), L"next week");
        AddAllDay(Day(2003, 5, 5), L"all of yesterday");
        AddAllDay(Day(2003, 5, 6), L"all of today");
        AddSeries(L"ended series", Day(2003, 4, 1, 9, 30), Day(2003, 5, 5));
        AddSeries(L"series to today", Day(2003, 4, 1, 9, 30), Day(2003, 5, 6));
        Repeat(AddAppointment(Day(2003, 4, 1, 9, 30), Day(2003, 4, 1, 11, 0), L"endless series"),
               [](const Object&) {});
        AddSeries(L"later series", Day(2003, 6, 1, 9, 30), Day(2003, 7, 1));
    }

    void AddSeries(const std::wstring& subject, automation::Date start, automation::Date lastDay) const
    {
        Repeat(AddAppointment(start, automation::PlusMinutes(start, 90), subject),
               [&](const Object& pattern) {
                   pattern.Put(L"RecurrenceType", 0L);
                   pattern.Put(L"PatternEndDate", lastDay);
               });
    }

    Names ToOutlook() { return Propose(state::kQuenlarToOutlook, state::kNotifyMe).NewInOutlook; }
    Names FromOutlook() { return Propose(state::kOutlookToQuenlar, state::kNotifyMe).NewInHost; }
};

TEST_F(CalendarRangeExchange, CodeZeroTakesEveryHostEntry)
{
    AddHostEntries();
    UseRange(state::kAllEntries);
    EXPECT_EQ(8u, ToOutlook().size());
}

TEST_F(CalendarRangeExchange, CodeOneTakesTheHostEntriesThatAreNotOver)
{
    AddHostEntries();
    UseRange(state::kFutureEntries);
    EXPECT_EQ((Names{L"going on", L"next week", L"series to today", L"endless series", L"later series"}),
              ToOutlook());
}

TEST_F(CalendarRangeExchange, CodeTwoTakesTheHostEntriesOfItsDays)
{
    AddHostEntries();
    UseRange(state::kEntriesWithinDays, 1, 6);
    EXPECT_EQ((Names{L"yesterday", L"this morning", L"going on", L"ended series", L"series to today",
                     L"endless series"}),
              ToOutlook());
    UseRange(state::kEntriesWithinDays, 0, 7);
    EXPECT_EQ((Names{L"this morning", L"going on", L"next week", L"series to today", L"endless series"}),
              ToOutlook());
}

TEST_F(CalendarRangeExchange, CodeZeroTakesEveryAppointment)
{
    AddAppointments();
    UseRange(state::kAllEntries);
    EXPECT_EQ(10u, FromOutlook().size());
}

TEST_F(CalendarRangeExchange, CodeOneTakesTheAppointmentsThatAreNotOver)
{
    AddAppointments();
    UseRange(state::kFutureEntries);
    EXPECT_EQ((Names{L"going on", L"next week", L"all of today", L"series to today", L"endless series",
                     L"later series"}),
              FromOutlook());
}

TEST_F(CalendarRangeExchange, CodeTwoTakesTheAppointmentsOfItsDays)
{
    AddAppointments();
    UseRange(state::kEntriesWithinDays, 1, 6);
    EXPECT_EQ((Names{L"yesterday", L"this morning", L"going on", L"all of yesterday", L"all of today",
                     L"ended series", L"series to today", L"endless series"}),
              FromOutlook());
    UseRange(state::kEntriesWithinDays, 0, 7);
    EXPECT_EQ((Names{L"this morning", L"going on", L"next week", L"all of today", L"series to today",
                     L"endless series"}),
              FromOutlook());
}

TEST_F(CalendarRangeExchange, AnEntryOutsideTheRangeIsStillAPartner)
{
    AddEntry(L"yesterday", {{L"F_ACTESDATE", L"'2003-05-05 00:00:00'"}});
    AddRepeatingEntry(L"series", 2, L"2003-04-01", L"2003-04-02");
    AddSeries(L"series", Day(2003, 4, 1, 9, 30), Day(2003, 7, 1));
    UseRange(state::kFutureEntries);
    const Proposals proposals = Propose(state::kBothWays, state::kNotifyMe);
    EXPECT_EQ(Names{}, proposals.NewInOutlook);
    EXPECT_EQ(Names{}, proposals.NewInHost);
    EXPECT_EQ(Names{L"series"}, proposals.ChangedInHost);
}

} // namespace test_support
