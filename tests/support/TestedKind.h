// The component's three kinds, each with its records and its run; and a run over them. Header only; for test
// programs that link telvix_run and sandbox_outlook. Where a test has more to say of a kind, it derives.
#pragma once

#include "calendar/Calendar.h"
#include "contacts/Contacts.h"
#include "exchange/Run.h"
#include "run/Runs.h"
#include "state/SharedState.h"
#include "tasks/Tasks.h"
#include "tests/support/Kinds.h"

namespace test_support
{

struct TestedKind : RecordKind
{
    const exchange::Kind& tested;
    bool (*run)(exchange::RunDisplay& display); // a whole run
};

inline constexpr TestedKind kContactKind{kContactRecords, contacts::kContacts, run::RunContactSync};
inline constexpr TestedKind kTaskKind{kTaskRecords, tasks::kTasks, run::RunTaskSync};
inline constexpr TestedKind kCalendarKind{kCalendarRecords, calendar::kCalendar, run::RunCalendarSync};

// The rows of the thread's host. Throws automation::Error.
inline automation::Recordset OpenRows(const exchange::Kind& kind)
{
    automation::Recordset rows;
    const data::Host host;
    const std::wstring filter = kind.SourceFilter == nullptr ? std::wstring() : kind.SourceFilter(host);
    data::ThrowUnless(host.OpenRecordset(rows, kind.RecordSource, filter) >= 0, L"OpenRecordset");
    return rows;
}

// The default folder of the thread's Outlook.
inline automation::Object DefaultFolder(const RecordKind& kind)
{
    return state::Shared().gOlNamespace.GetObject(L"GetDefaultFolder", kind.folderNumber);
}

// A run over the default folder, without rows.
inline exchange::Run RunOverFolder(const RecordKind& kind, exchange::RunDisplay& display)
{
    exchange::Run run{.Display = display, .Folder = DefaultFolder(kind)};
    run.Items = run.Folder.GetObject(L"Items");
    return run;
}

// A run over the host's rows and the default folder, as they are now.
inline exchange::Run OpenRun(const TestedKind& kind, exchange::RunDisplay& display)
{
    exchange::Run run = RunOverFolder(kind, display);
    run.HostRows = OpenRows(kind.tested);
    return run;
}

} // namespace test_support
