// Calendars that are exchanged for real: the fake host over its database, the fake Outlook, and the
// component's own collection and workers between them; only the dialogs are left out.
#pragma once

#include "tests/calendar/Appointments.h"
#include "tests/support/Days.h"
#include "tests/support/OfficeFixture.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace test_support
{

class CalendarExchange : public OfficeFixture
{
  protected:
    using Names = std::multiset<std::wstring>;

    // What a run would do to each side: the names of the records that it proposes.
    struct Proposals
    {
        Names NewInOutlook;
        Names ChangedInOutlook;
        Names NewInHost;
        Names ChangedInHost;
    };

    // The host's clock shows noon of Tuesday 2003-05-06; all entries are exchanged.
    CalendarExchange();

    // Adds a host entry of the signed-in user on 2003-05-06, 09:30 to 11:00; the pairs overwrite or add.
    void AddEntry(const std::wstring& name, const Pairs& columns = {});
    void AddRepeatingEntry(const std::wstring& name, long rule, const std::wstring& firstDay,
                           const std::wstring& lastDay);

    // What a run in these directions would propose.
    Proposals Propose(long transType, long conflictOption);
    // Collects and writes, without asking.
    void Exchange(long transType, long conflictOption);
    // Fails the test unless a run in both directions has nothing new and no pair is missed.
    void ExpectAllMatched();

    std::wstring Stored(const std::wstring& column);
    long CountEntries();
    long CountAppointments() const { return Mailbox->ItemCount(kCalendarKind.folder); }

  private:
    void Collect(exchange::Run& run, long transType, long conflictOption);
};

} // namespace test_support
