// Fixture of the calendar tests: a host database with relation rows, a field catalogue and calendar
// entries, a host that keeps what it is asked to write, a mailbox with Outlook's default folders, and a run
// over all of them.
#pragma once

#include "exchange/Run.h"
#include "sandbox/ado/Ado.h"
#include "state/SharedState.h"
#include "tests/calendar/AppointmentsFixture.h"
#include "tests/support/DatabaseFile.h"
#include "tests/support/FakeHost.h"
#include "tests/support/RecordingDisplay.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace test_support
{

// The time of day of a member as "hh:mm", and its day as "yyyy-mm-dd".
std::wstring TimeOf(const Object& object, const wchar_t* member);
std::wstring DayOf(const Object& object, const wchar_t* member);

class CalendarFixture : public AppointmentsFixture
{
  protected:
    // Column and SQL literal, or host column and Outlook property.
    using Pairs = std::vector<std::pair<std::wstring, std::wstring>>;
    // What a column was written with, as its SQL literal.
    using Columns = std::map<std::wstring, std::wstring>;

    CalendarFixture();
    ~CalendarFixture() override;

    void Execute(const std::wstring& sql) const;
    // Makes these the relation rows of the calendar, in this order.
    void Relate(const Pairs& rows) const;
    // Adds a host entry "Meeting" on Tuesday 2003-05-06, 09:30 to 11:00; the pairs overwrite or add.
    void AddEntry(const Pairs& columns = {}) const;

    // A run over the host entries and the calendar folder as they are now.
    exchange::Run NewRun();
    // Writes host entry 1 as a new appointment, or over the folder's appointment 1, and returns that.
    Object WriteNewAppointment();
    Object WriteExistingAppointment();
    // Runs the pass towards Outlook over all host entries as new ones; true when it failed.
    bool WriteAllEntries();
    // Writes the folder's appointment 1 into the host as a new row, or over host entry 1; what is written,
    // empty when nothing is.
    Columns InsertFirstAppointment();
    Columns UpdateFirstAppointment();

    // The calls that the host has had of a member.
    std::vector<std::wstring> CallsOf(const std::wstring& member) const { return mHost->CallsOf(member); }

    WithFakeHost mHost;
    RecordingDisplay mDisplay;

  private:
    // The columns of the last insert or update.
    Columns Written() const;

    sandbox::AdoInProcess mAdo;
    DatabaseFile mFile{L"calendar"};
};

} // namespace test_support
