// Fixture of the tests of the writer of calendar entries.
#pragma once

#include "data/RecordMode.h"
#include "tests/calendar/CalendarFixture.h"
#include "tests/support/MessageBoxes.h"

#include <string>
#include <vector>

namespace test_support
{

class CalendarWriting : public CalendarFixture
{
  protected:
    Object AddMeeting() const { return AddAppointment(Day(2003, 5, 6, 9, 30), Day(2003, 5, 6, 11, 0)); }

    void AddMeetingOf(const wchar_t* company) const
    {
        const Object appointment = AddMeeting();
        appointment.Put(L"Companies", company);
        appointment.Call(L"Save");
    }

    // Calls the writer for appointment 1 over host entry 1.
    long Write(long mode)
    {
        exchange::Run run = NewRun();
        run.Relations.Use(calendar::SynCalendarFromOutlook.RelationStatement,
                          calendar::SynCalendarFromOutlook.RelationOptions);
        return calendar::SynOlCalendarToSynCalendar(run, data::RecordMode{mode}, AppointmentAt(1));
    }

    // The messages during the writing of appointment 1, whose result must be this.
    std::vector<ShownMessage> MessagesOf(long mode, long expectedResult)
    {
        long result = 1;
        auto messages = MessagesDuring([&] { result = Write(mode); });
        EXPECT_EQ(expectedResult, result);
        return messages;
    }
};

} // namespace test_support
