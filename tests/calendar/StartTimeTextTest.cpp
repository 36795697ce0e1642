// What a recurrence pattern is given for its start time, as it is given. Outlook makes a time of it, so that
// only a pattern that keeps what it is assigned tells.
#include "calendar/Calendar.h"
#include "tests/calendar/CalendarFixture.h"

namespace test_support
{

namespace
{

// An appointment and its pattern in one; keeps what is assigned to any member.
class KeepsAssignments : public sandbox::DispatchObject
{
  public:
    explicit KeepsAssignments(std::map<std::wstring, Value>& assigned) : mAssigned(assigned) {}

  private:
    static sandbox::MemberTable MadeMembers()
    {
        sandbox::MemberTable table{
            {L"GetRecurrencePattern",
             [](DispatchObject& self, const sandbox::Call&) -> Value {
                 return sandbox::MakeObject<KeepsAssignments>(static_cast<KeepsAssignments&>(self).mAssigned);
             },
             nullptr},
            {L"IsRecurring", [](DispatchObject&, const sandbox::Call&) -> Value { return true; }, nullptr},
            {L"Save", [](DispatchObject&, const sandbox::Call&) { return Value(); }, nullptr}};
        for (const wchar_t* name : {L"Subject", L"Categories", L"ReminderSet", L"StartTime", L"EndTime",
                                    L"PatternStartDate", L"RecurrenceType", L"Interval", L"NoEndDate"})
        {
            // True is no value that is about to be assigned.
            table.push_back({name, [](DispatchObject&, const sandbox::Call&) -> Value { return true; },
                             [name](DispatchObject& self, const sandbox::Call& call) {
                                 static_cast<KeepsAssignments&>(self).mAssigned[name] = call.Assigned();
                             }});
        }
        return table;
    }

    const wchar_t* ClassName() const override { return L"KeepsAssignments"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable table = MadeMembers();
        return table;
    }

    std::map<std::wstring, Value>& mAssigned;
};

} // namespace

class StartTimeText : public CalendarFixture
{
};

TEST_F(StartTimeText, IsATextThatBeginsWithABlankAndEndsInNoSeconds)
{
    AddEntry(
        {{L"F_ACTCOMPLETED", L"1"}, {L"FR_NAME", L"'每天'"}, {L"F_ACTESTIME", L"'1899-12-30 09:05:59'"}});
    std::map<std::wstring, Value> assigned;
    exchange::Run run = NewRun();
    run.Relations.Use(calendar::SynCalendarFromOutlook.RelationStatement,
                      calendar::SynCalendarFromOutlook.RelationOptions);
    run.HostRows.MoveFirst();
    EXPECT_FALSE(calendar::SynSynCalendarToOlCalendar(run, data::kExistingRecord,
                                                      sandbox::MakeObject<KeepsAssignments>(assigned)));
    EXPECT_EQ(VT_BSTR, assigned[L"StartTime"].Type());
    EXPECT_EQ(L" 09:05:00", automation::TextOf(assigned[L"StartTime"]));
    EXPECT_EQ(VT_DATE, assigned[L"EndTime"].Type());
    EXPECT_EQ(VT_BOOL, assigned[L"NoEndDate"].Type());
}

} // namespace test_support
