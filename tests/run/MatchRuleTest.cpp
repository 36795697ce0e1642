// When a task or an appointment and a host row are the same record.
#include "automation/Dates.h"
#include "automation/Text.h"
#include "calendar/Calendar.h"
#include "state/SharedState.h"
#include "tasks/Tasks.h"
#include "tests/run/MatchByRule.h"
#include "tests/support/Days.h"

#include <gtest/gtest.h>

namespace
{

using namespace test_support;
using automation::Date;
using automation::DateOf;
using automation::Moment;
using automation::Value;

const Date kDay = Day(2003, 5, 6);
const Date kNoDate = Day(4501, 1, 1);

// The same record on both sides, with one value on either side replaced.
bool TasksMatchWith(const wchar_t* property, const Value& inItem, const wchar_t* column, const Value& inRow)
{
    Record item{{L"Subject", L"Call"}, {L"Categories", L"Phone"}, {L"StartDate", kDay}, {L"Companies", L"X"}};
    Record row{
        {L"F_ACTNAME", L"Call"}, {L"F_ACTTYPE", L"Phone"}, {L"F_ACTPSTIME", kDay}, {L"ACC_SNAME", L"X"}};
    item[property] = inItem;
    row[column] = inRow;
    return Match(tasks::kTasks.Match, item, row);
}

struct Key
{
    const wchar_t* property;
    const wchar_t* column;
};

constexpr Key kTextsOfTask[] = {
    {L"Subject", L"F_ACTNAME"}, {L"Categories", L"F_ACTTYPE"}, {L"Companies", L"ACC_SNAME"}};
constexpr Key kStartOfTask{L"StartDate", L"F_ACTPSTIME"};

bool StartsMatch(const Value& inItem, const Value& inRow)
{
    return TasksMatchWith(kStartOfTask.property, inItem, kStartOfTask.column, inRow);
}

bool CategoriesMatch(const Value& inItem, const Value& inRow)
{
    return TasksMatchWith(L"Categories", inItem, L"F_ACTTYPE", inRow);
}

TEST(MatchTask, TextsAreComparedTrimmedAndWithoutRegardToLetterCase)
{
    for (const Key& key : kTextsOfTask)
    {
        SCOPED_TRACE(automation::ToUtf8(key.property));
        EXPECT_TRUE(
            TasksMatchWith(key.property, L"  \u00dcbung f\u00fcr a  ", key.column, L"\u00fcbung F\u00dcR A"));
        EXPECT_TRUE(TasksMatchWith(key.property, L"任务", key.column, L" 任务 "));
        EXPECT_FALSE(TasksMatchWith(key.property, L"a b", key.column, L"ab"));
        EXPECT_FALSE(TasksMatchWith(key.property, L"a", key.column, L"b"));
    }
}

TEST(MatchTask, NullAndEmptyAreTheEmptyText)
{
    for (const Key& key : kTextsOfTask)
    {
        for (const Value& inItem : {Value(), Value::Null(), Value(L""), Value(L"  ")})
        {
            for (const Value& inRow : {Value(), Value::Null(), Value(L""), Value(L" ")})
            {
                EXPECT_TRUE(TasksMatchWith(key.property, inItem, key.column, inRow));
            }
            EXPECT_FALSE(TasksMatchWith(key.property, inItem, key.column, L"x"));
        }
    }
}

TEST(MatchTask, EachKeyIsComparedByItselfUnlikeTheNamesOfContacts)
{
    const Record item{{L"Subject", L"ab"}, {L"Categories", L"c"}, {L"StartDate", kDay}, {L"Companies", L""}};
    const Record row{
        {L"F_ACTNAME", L"a"}, {L"F_ACTTYPE", L"bc"}, {L"F_ACTPSTIME", kDay}, {L"ACC_SNAME", L""}};
    EXPECT_FALSE(Match(tasks::kTasks.Match, item, row));
}

TEST(MatchTask, NoTextCanPassForTwo)
{
    for (const wchar_t separator : {L'\x1F', L'\x1E', L'\n', L'\t', L'\xFFFF'})
    {
        const std::wstring between(1, separator);
        const Record item{{L"Subject", L"a" + between + L"b"},
                          {L"Categories", L"c"},
                          {L"StartDate", kDay},
                          {L"Companies", L""}};
        const Record row{{L"F_ACTNAME", L"a"},
                         {L"F_ACTTYPE", L"b" + between + L"c"},
                         {L"F_ACTPSTIME", kDay},
                         {L"ACC_SNAME", L""}};
        EXPECT_FALSE(Match(tasks::kTasks.Match, item, row));
    }
}

TEST(MatchTask, OnlyTheDayOfTheStartCounts)
{
    EXPECT_TRUE(StartsMatch(kDay, Day(2003, 5, 6, 23, 59, 59)));
    EXPECT_FALSE(StartsMatch(kDay, Day(2003, 5, 7)));
    EXPECT_FALSE(StartsMatch(kDay, Day(2004, 5, 6)));
}

TEST(MatchTask, AStartThatTheHostKeepsAsTextIsComparedAsADate)
{
    EXPECT_TRUE(StartsMatch(kDay, L"2003-05-06"));
    EXPECT_FALSE(StartsMatch(kDay, L"2003-06-05"));
}

TEST(MatchTask, Outlooks4501TheZeroDateNullAndEmptyAreAllNoDate)
{
    for (const Value& inItem : {Value(kNoDate), Value(Date{}), Value(), Value::Null()})
    {
        for (const Value& inRow : {Value(kNoDate), Value(Date{}), Value(), Value::Null()})
        {
            EXPECT_TRUE(StartsMatch(inItem, inRow));
        }
        EXPECT_FALSE(StartsMatch(inItem, kDay));
        EXPECT_FALSE(StartsMatch(kDay, inItem));
    }
}

TEST(MatchTask, TheHostsUnspecifiedTypeMatchesNoCategory)
{
    for (const wchar_t* unspecified : {L"(Unspecified)", L"(UNSPECIFIED)", L" (未指定) "})
    {
        EXPECT_TRUE(CategoriesMatch(L"", unspecified));
        EXPECT_TRUE(CategoriesMatch(unspecified, Value::Null()));
        EXPECT_TRUE(CategoriesMatch(L"(未指定)", unspecified));
        EXPECT_FALSE(CategoriesMatch(L"Phone", unspecified));
    }
    EXPECT_FALSE(CategoriesMatch(L"", L"Unspecified"));
    EXPECT_FALSE(TasksMatchWith(L"Subject", L"", L"F_ACTNAME", L"(Unspecified)"));
}

class MatchAppointment : public testing::Test
{
  protected:
    MatchAppointment() { state::Shared().gCalendarStartTime = DateOf(Moment{.hour = 6}); }
    ~MatchAppointment() override { state::Shared().gCalendarStartTime = {}; }

    static Record Appointment(const Value& start, bool isAllDay = false)
    {
        return {{L"Subject", L"Board"}, {L"Categories", L""}, {L"Start", start}, {L"AllDayEvent", isAllDay}};
    }

    static Record Entry(const Value& day, const Value& time)
    {
        return {{L"F_ACTNAME", L"Board"}, {L"F_ACTTYPE", L""}, {L"F_ACTESDATE", day}, {L"F_ACTESTIME", time}};
    }

    static bool Match(const Record& item, const Record& row)
    {
        return test_support::Match(calendar::kCalendar.Match, item, row);
    }
};

TEST_F(MatchAppointment, TheDayAndTheTimeOfTheHostStandInColumnsOfTheirOwn)
{
    const Record item = Appointment(Day(2003, 5, 6, 9, 30));
    EXPECT_TRUE(Match(item, Entry(kDay, DateOf(Moment{.hour = 9, .minute = 30}))));
    EXPECT_FALSE(Match(item, Entry(kDay, DateOf(Moment{.hour = 9, .minute = 31}))));
    EXPECT_FALSE(Match(item, Entry(Date{kDay.days + 1}, DateOf(Moment{.hour = 9, .minute = 30}))));
}

TEST_F(MatchAppointment, OnlyTheDayOfTheDayColumnAndTheTimeOfTheTimeColumnCount)
{
    const Record item = Appointment(Day(2003, 5, 6, 9, 30));
    EXPECT_TRUE(Match(item, Entry(Day(2003, 5, 6, 17, 0), Day(2001, 1, 1, 9, 30))));
}

TEST_F(MatchAppointment, SecondsAreIgnoredOnBothSides)
{
    const Record item = Appointment(Day(2003, 5, 6, 9, 30, 59));
    EXPECT_TRUE(Match(item, Entry(kDay, DateOf(Moment{.hour = 9, .minute = 30, .second = 1}))));
    EXPECT_FALSE(Match(item, Entry(kDay, DateOf(Moment{.hour = 9, .minute = 31}))));
}

TEST_F(MatchAppointment, WithoutATimeAnEntryStartsAtMidnight)
{
    EXPECT_TRUE(Match(Appointment(kDay), Entry(kDay, Value::Null())));
    EXPECT_FALSE(Match(Appointment(Day(2003, 5, 6, 9, 30)), Entry(kDay, Value())));
}

TEST_F(MatchAppointment, AnAllDayAppointmentMatchesTheEntryAtTheConfiguredStartOfTheDay)
{
    const Date sixOClock = DateOf(Moment{.hour = 6});
    const Date halfPastEight = DateOf(Moment{.hour = 8, .minute = 30});
    EXPECT_TRUE(Match(Appointment(kDay, true), Entry(kDay, sixOClock)));
    EXPECT_FALSE(Match(Appointment(kDay, true), Entry(kDay, halfPastEight)));
    EXPECT_FALSE(Match(Appointment(kDay, true), Entry(kDay, Value::Null())));
    state::Shared().gCalendarStartTime = halfPastEight;
    EXPECT_TRUE(Match(Appointment(kDay, true), Entry(kDay, halfPastEight)));
    EXPECT_FALSE(Match(Appointment(kDay, true), Entry(kDay, sixOClock)));
}

TEST_F(MatchAppointment, AnAppointmentThatJustStartsAtMidnightMatchesTheEntryAtMidnightOnly)
{
    EXPECT_TRUE(Match(Appointment(kDay, false), Entry(kDay, Date{})));
    EXPECT_FALSE(Match(Appointment(kDay, false), Entry(kDay, DateOf(Moment{.hour = 6}))));
}

TEST_F(MatchAppointment, AnEntryWithoutADayMatchesAnAppointmentWithoutADate)
{
    for (const Value& start : {Value(kNoDate), Value(), Value::Null()})
    {
        EXPECT_TRUE(Match(Appointment(start), Entry(Value::Null(), DateOf(Moment{.hour = 9}))));
        EXPECT_TRUE(Match(Appointment(start), Entry(kNoDate, Value::Null())));
        EXPECT_FALSE(Match(Appointment(start), Entry(kDay, Value::Null())));
    }
}

TEST_F(MatchAppointment, SubjectAndCategoryAreComparedTrimmedAndWithoutRegardToLetterCase)
{
    Record item = Appointment(kDay);
    Record row = Entry(kDay, Value::Null());
    item[L"Subject"] = L" BOARD meeting ";
    row[L"F_ACTNAME"] = L"Board Meeting";
    item[L"Categories"] = L"work";
    row[L"F_ACTTYPE"] = L"Work ";
    EXPECT_TRUE(Match(item, row));
    row[L"F_ACTTYPE"] = L"(未指定)";
    EXPECT_FALSE(Match(item, row));
    item[L"Categories"] = Value::Null();
    EXPECT_TRUE(Match(item, row));
    item[L"Subject"] = L"Board";
    EXPECT_FALSE(Match(item, row));
}

} // namespace
