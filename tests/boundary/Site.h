// A workplace: the host's database and a mailbox with a few records each, half of them the same on both, in
// files of its own; a window of the host; and the registered component, which a user drives. What a test
// disturbs is compared with the undisturbed course of the same run.
#pragma once

#include "automation/Object.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/host/Host.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/boundary/State.h"
#include "tests/boundary/User.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Kinds.h"
#include "tests/support/RunCodes.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace boundary_tests
{

inline constexpr std::array<const wchar_t*, 3> kKinds = {test_support::kContactRecords.option,
                                                         test_support::kTaskRecords.option,
                                                         test_support::kCalendarRecords.option};

using test_support::kBoth;
using test_support::kDirections;
using test_support::kExport;
using test_support::kImport;

// The side that a run writes to takes changes as well; a run in both directions adds what is missing.
long RuleOf(long direction);

// The kind and direction of one run.
struct Task
{
    std::wstring kind;
    long direction;
};

class Site
{
  public:
    Site();
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;
    ~Site();

    sandbox::Host& Host() noexcept { return *mHost; }
    const std::wstring& HostFile() const noexcept { return mHostFile; }
    const std::wstring& MailboxFile() const noexcept { return mMailboxFile; }
    // Gives the host's database up, and opens it again.
    void CloseHost() { mHost.reset(); }
    void OpenHost() { mHost = std::make_unique<sandbox::Host>(mHostFile); }

    State Look() { return LookAt(mHost->Database(), *mMailbox); }
    // Stores direction and rule for the user.
    void Prepare(long direction);

    // SynLoad of a new object of the component, with the site's host or another one; returns its result.
    bool SynLoad(Robot::Script user) { return SynLoad(std::move(user), mHost->Dtc()); }
    bool SynLoad(Robot::Script user, const automation::Object& dtc);
    bool SynLoad(Robot::Script user, const automation::Object& dtc, const std::wstring& connection);
    // One run in a SynLoad of its own.
    Seen Run(const Task& task);

    // The host's window takes input, no dialog is left, no transaction is open.
    void ExpectNothingLeft();

  private:
    std::wstring mHostFile;
    std::wstring mMailboxFile;
    test_support::HostWindow mWindow{L"Host", 200, 100};
    std::unique_ptr<sandbox::Host> mHost;
    std::unique_ptr<sandbox::Connection> mMailbox;
};

// Outlook and ADO served in this process, as long as it lives; one at a time.
class InProcess
{
  public:
    explicit InProcess(const Site& site);
    InProcess(const InProcess&) = delete;
    InProcess& operator=(const InProcess&) = delete;
    ~InProcess() { gIsThere = false; }

  private:
    static inline bool gIsThere = false;

    sandbox::AdoInProcess mAdo;
    sandbox::OutlookInProcess mOutlook;
};

// How a run goes that nothing disturbs.
struct Course
{
    State before;
    State after;
    long callsUntilConfirmation = 0; // of Outlook's objects, from SynLoad on
    long callsInAll = 0;
};

// Followed when it is first asked for, which must not be while an Outlook is served in this process.
const Course& UndisturbedCourse(const Task& task);

// A task item is saved after each property that is written, as the host contract asks, so that a run which
// breaks off may leave one that has only some of them. The next run does not know it again: it writes the
// task once more, and brings the unfinished one to the host where it goes both ways.
Excused UnfinishedRecords(const Task& task);

} // namespace boundary_tests
