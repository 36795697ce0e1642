// Fixture of the tests of the calendar's passes.
#pragma once

#include "tests/calendar/Appointments.h"
#include "tests/support/Days.h"
#include "tests/support/PassFixture.h"

#include <map>
#include <string>
#include <vector>

namespace test_support
{

// The time of day of a member as "hh:mm", and its day as "yyyy-mm-dd".
std::wstring TimeOf(const Object& object, const wchar_t* member);
std::wstring DayOf(const Object& object, const wchar_t* member);

class CalendarFixture : public PassFixture
{
  protected:
    // What a column was written with, as its SQL literal.
    using Columns = std::map<std::wstring, std::wstring>;

    // With the relation rows of the sandbox's host. But whether an appointment recurs has a column of the
    // host's own (F_ACTCOMPLETED), so that it is written.
    CalendarFixture();

    // Adds a row "Meeting" on Tuesday 2003-05-06, 09:30 to 11:00; the pairs overwrite or add.
    void AddEntry(const Pairs& columns = {});

    // Writes the folder's appointment 1 into a new row, or over row 1; what is written, empty when nothing
    // is.
    Columns InsertFirstAppointment();
    Columns UpdateFirstAppointment();

    // The calls that the host has had of a member.
    std::vector<std::wstring> CallsOf(const std::wstring& member) const { return Host->CallsOf(member); }

  private:
    // The columns of the last insert or update.
    Columns Written() const;
};

} // namespace test_support
