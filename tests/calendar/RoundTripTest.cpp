// Entries that were exchanged once are the same entries on the next run, and a further run changes nothing.
#include "resources/Strings.h"
#include "state/SharedState.h"
#include "tests/calendar/CalendarExchange.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/WithLanguage.h"

namespace test_support
{

class CalendarRoundTrip : public CalendarExchange
{
  protected:
    void ExportOnce()
    {
        Exchange(state::kQuenlarToOutlook, state::kNotifyMe);
        EXPECT_EQ(CountEntries(), CountAppointments());
        ExpectAllMatched();
    }

    void ImportOnce()
    {
        Exchange(state::kOutlookToQuenlar, state::kNotifyMe);
        EXPECT_EQ(CountAppointments(), CountEntries());
        ExpectAllMatched();
    }
};

TEST_F(CalendarRoundTrip, SingleEntriesAreKnownAgainInOutlook)
{
    AddEntry(L"With all", {{L"F_ACTTYPE", L"'Visit'"}, {L"F_ACTREMIND", L"1"}});
    AddEntry(L"会议 über Ärger");
    AddEntry(L"  blanks around  ");
    AddEntry(L"without times", {{L"F_ACTESTIME", L"NULL"}, {L"F_ACTEETIME", L"NULL"}});
    AddEntry(L"over midnight",
             {{L"F_ACTESTIME", L"'1899-12-30 22:00:00'"}, {L"F_ACTEETIME", L"'1899-12-30 01:00:00'"}});
    AddEntry(L"leap day", {{L"F_ACTESDATE", L"'2004-02-29 00:00:00'"}});
    AddEntry(L"clocks go forward",
             {{L"F_ACTESDATE", L"'2003-03-30 00:00:00'"}, {L"F_ACTESTIME", L"'1899-12-30 02:30:00'"}});
    ExportOnce();
}

TEST_F(CalendarRoundTrip, RepeatingEntriesOfAllRulesAreKnownAgainInOutlook)
{
    for (long rule = 1; rule <= 6; ++rule)
    {
        AddRepeatingEntry(L"weekday " + std::to_wstring(rule), rule, L"2003-05-07", L"2005-05-07");
        AddRepeatingEntry(L"31st " + std::to_wstring(rule), rule, L"2003-01-31", L"2005-05-07");
        AddRepeatingEntry(L"leap day " + std::to_wstring(rule), rule, L"2004-02-29", L"2009-01-01");
        AddRepeatingEntry(L"no last day " + std::to_wstring(rule), rule, L"2003-05-07", L"");
    }
    ExportOnce();
    for (long position = 1; position <= CountAppointments(); ++position)
    {
        EXPECT_TRUE(Truth(AppointmentAt(position), L"IsRecurring"));
    }
}

TEST_F(CalendarRoundTrip, SingleAppointmentsAreKnownAgainInTheHost)
{
    AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0), L"O'Brien, \"Sons\" & 会议");
    AddAppointment(Day(2003, 5, 6, 22, 0), Day(2003, 5, 7, 1, 0), L"over midnight");
    AddAppointment(Day(2003, 5, 6), Day(2003, 5, 6, 1, 0), L"from midnight");
    AddAppointment(Day(2003, 10, 26, 1, 30), Day(2003, 10, 26, 3, 30), L"clocks go back");
    AddAllDay(Day(2004, 2, 29), L"all day");
    ImportOnce();
}

TEST_F(CalendarRoundTrip, RepeatingAppointmentsAreKnownAgainInTheHost)
{
    for (const long type : {0L, 1L, 2L, 3L, 5L, 6L})
    {
        const auto setType = [&](const Object& pattern) { pattern.Put(L"RecurrenceType", type); };
        const auto setEnd = [&](const Object& pattern) {
            pattern.Put(L"RecurrenceType", type);
            pattern.Put(L"PatternEndDate", Day(2005, 5, 31));
        };
        const std::wstring suffix = std::to_wstring(type);
        Repeat(AddAppointment(Day(2003, 5, 31, 9, 0), Day(2003, 5, 31, 10, 0), L"endless " + suffix),
               setType);
        Repeat(AddAppointment(Day(2004, 2, 29, 9, 0), Day(2004, 2, 29, 10, 0), L"ending " + suffix), setEnd);
        Repeat(AddAppointment(Day(2003, 5, 6, 22, 0), Day(2003, 5, 7, 1, 0), L"midnight " + suffix), setEnd);
        Repeat(AddAllDay(Day(2003, 5, 6), L"all day " + suffix), setEnd);
    }
    ImportOnce();
}

TEST_F(CalendarRoundTrip, APatternThatStartsBeforeItsFirstOccurrenceIsKnownAgain)
{
    Repeat(AddAppointment(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0)), [](const Object& pattern) {
        pattern.Put(L"RecurrenceType", 1L);
        pattern.Put(L"DayOfWeekMask", 16L); // Thursday; the pattern starts on a Tuesday
    });
    ImportOnce();
    EXPECT_EQ(L"2003-05-08 00:00:00", Stored(L"F_ACTESDATE"));
}

TEST_F(CalendarRoundTrip, AnEntryWithoutCategoryIsKnownAgainInEitherLanguage)
{
    AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0), L"imported");
    {
        const WithLanguage chinese(resources::Language::Chinese);
        ImportOnce();
        EXPECT_EQ(L"(未指定)", Stored(L"F_ACTTYPE"));
    }
    const WithLanguage english(resources::Language::English);
    ExpectAllMatched();
}

TEST_F(CalendarRoundTrip, FurtherRunsInBothDirectionsChangeNothing)
{
    AddEntry(L"single");
    AddRepeatingEntry(L"daily", 1, L"2003-05-06", L"2003-06-30");
    AddAllDay(Day(2003, 5, 7), L"all day");
    Repeat(AddAppointment(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0), L"weekly"), [](const Object&) {});
    Exchange(state::kBothWays, state::kNotifyMe);
    ExpectAllMatched();
    const std::wstring columns = L"group_concat(F_ACTNAME || F_ACTESDATE || F_ACTESTIME || F_ACTEETIME || "
                                 L"ifnull(F_ACTREPTIDX,'') || ifnull(F_ACTREPTEDATE,''))";
    Exchange(state::kBothWays, state::kNotifyMe);
    const std::wstring once = Stored(columns);
    Exchange(state::kBothWays, state::kNotifyMe);
    EXPECT_EQ(once, Stored(columns));
    EXPECT_EQ(4, CountEntries());
    EXPECT_EQ(4, CountAppointments());
    ExpectAllMatched();
}

TEST_F(CalendarRoundTrip, ADailyEntryComesBackAsItWent)
{
    AddRepeatingEntry(L"daily", 1, L"2003-05-06", L"2003-06-30");
    const std::wstring columns = L"F_ACTESDATE || time(F_ACTESTIME) || time(F_ACTEETIME) || F_ACTREPTIDX || "
                                 L"F_ACTREPTEDATE";
    const std::wstring before = Stored(columns);
    Exchange(state::kQuenlarToOutlook, state::kHostWins);
    Exchange(state::kOutlookToQuenlar, state::kOutlookWins);
    EXPECT_EQ(before, Stored(columns));
}

TEST_F(CalendarRoundTrip, AnEndlessDailyAppointmentComesBackWithoutShrinking)
{
    Repeat(AddAppointment(Day(2003, 5, 6, 9, 0), Day(2003, 5, 6, 10, 0)),
           [](const Object& pattern) { pattern.Put(L"RecurrenceType", 0L); });
    Exchange(state::kOutlookToQuenlar, state::kOutlookWins);
    Exchange(state::kQuenlarToOutlook, state::kHostWins);
    const Object pattern = AppointmentAt(1).GetObject(L"GetRecurrencePattern");
    EXPECT_EQ(L"4500-08-31 00:00", At(pattern.Get(L"PatternEndDate")));
    ExpectAllMatched();
}

TEST_F(CalendarRoundTrip, AnAllDayAppointmentStaysOneWhenTheHostWins)
{
    AddAllDay(Day(2003, 5, 6), L"all day");
    Exchange(state::kOutlookToQuenlar, state::kOutlookWins);
    Exchange(state::kQuenlarToOutlook, state::kHostWins);
    EXPECT_TRUE(Truth(AppointmentAt(1), L"AllDayEvent"));
    ExpectAllMatched();
}

TEST_F(CalendarRoundTrip, AnotherUsersEntriesStayInTheHost)
{
    AddEntry(L"mine");
    TheHost.SignIn(sandbox::kSecondUser);
    AddEntry(L"theirs");
    TheHost.SignIn(sandbox::kFirstUser);
    EXPECT_EQ(Names{L"mine"}, Propose(state::kQuenlarToOutlook, state::kNotifyMe).NewInOutlook);
}

TEST_F(CalendarRoundTrip, AnImportedEntryIsTheSignedInUsersOwn)
{
    AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0));
    TheHost.SignIn(sandbox::kSecondUser);
    ImportOnce();
    EXPECT_EQ(L"2", Stored(L"F_ACTORID"));
    EXPECT_EQ(L"2", Stored(L"F_CREATORID"));
}

TEST_F(CalendarRoundTrip, TheRightsAskedForAreThoseOfTheAccountCalendar)
{
    AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0), L"new");
    AddAppointment(Day(2003, 5, 7, 9, 30), Day(2003, 5, 7, 11, 0), L"paired");
    AddEntry(L"paired", {{L"F_ACTESDATE", L"'2003-05-07 00:00:00'"}});
    TheHost.SetRight(6, 9, 2, 1);
    const WithLanguage english(resources::Language::English);
    Proposals proposals;
    const auto messages =
        MessagesDuring([&] { proposals = Propose(state::kOutlookToQuenlar, state::kOutlookWins); });
    ASSERT_EQ(1u, messages.size());
    EXPECT_EQ(L"You are not permit to add account calendar record(s)!", messages[0].text);
    EXPECT_EQ(Names{}, proposals.NewInHost);
    EXPECT_EQ(Names{L"paired"}, proposals.ChangedInHost);
}

} // namespace test_support
