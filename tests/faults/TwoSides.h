// A host and a mailbox with a few records of each kind, chosen so that a run touches everything it can:
// records on one side only and pairs, companies known and unknown, linked contacts, reminders, recurrence,
// dates and none. Both can be put back to their start between two trials, and be compared.
#pragma once

#include "tests/support/TestOffice.h"

#include <set>
#include <string>

namespace test_support
{

// The records of both sides as comparable texts, without keys and the mailbox's own bookkeeping.
struct TwoStates
{
    std::multiset<std::wstring> Host;
    std::multiset<std::wstring> Outlook;

    bool operator==(const TwoStates&) const = default;
};

class TwoSides : public TestOffice
{
  public:
    explicit TwoSides(sandbox::Creator makeRecordset);

    // The start again: other rows and items than the first ones are gone.
    void Reset();
    TwoStates Look();
    // Rows of the host that only exist in part: an account without its information, an address or an
    // information row without its account.
    long PartsWithoutAWhole();

  private:
    void AddItems();
};

} // namespace test_support
