#include "run/Runs.h"

#include "calendar/Calendar.h"
#include "config/outlook/OutlookFolders.h"
#include "contacts/Contacts.h"
#include "run/ChangeCollection.h"
#include "state/Remarks.h"
#include "state/SharedState.h"
#include "tasks/Tasks.h"

namespace run
{

namespace
{

using state::Shared;

// Collects in the directions that the parameters name; true when a procedure failed.
bool Collect(const exchange::Kind& kind, exchange::Run& run, long transType)
{
    ChangeCollection collection(kind, run);
    const bool failed = state::WritesToOutlook(transType) && collection.CollectToOutlook();
    return failed || (state::WritesToHost(transType) && collection.CollectFromOutlook());
}

// The changes of the directions that the parameters name. A run in one direction may have filled the other
// half of a changed pair as well; it is not counted.
long CountChanges(const data::Changes& changes, long transType)
{
    long count = 0;
    if (state::WritesToOutlook(transType))
    {
        count += changes.NewHostRecords.Count() + changes.ChangedHostRecords.Count();
    }
    if (state::WritesToHost(transType))
    {
        count += changes.NewOutlookItems.Count() + changes.ChangedOutlookItems.Count();
    }
    return count;
}

bool UserAccepts(const exchange::Kind& kind, exchange::Run& run)
{
    // A dialog that is closed by neither button leaves the flag alone; an answer to an earlier run is no
    // consent to this one.
    Shared().gChangesAccepted = false;
    // Whatever the user looks at meanwhile is not written by this run.
    exchange::Report dropped;
    const state::CollectsRemarks drops(dropped);
    run.Display.Confirm(kind, run);
    return Shared().gChangesAccepted;
}

// Writes the accepted changes; true when a worker failed, which keeps the other one from starting.
bool Apply(const exchange::Kind& kind, exchange::Run& run, long transType)
{
    const bool toOutlook = state::WritesToOutlook(transType);
    const bool fromOutlook = state::WritesToHost(transType);
    if (toOutlook)
    {
        kind.ToOutlook.Announce(run);
    }
    if (fromOutlook)
    {
        kind.FromOutlook.Announce(run);
    }
    if (kind.AppliesFromOutlookFirst)
    {
        return (fromOutlook && kind.FromOutlook(run)) || (toOutlook && kind.ToOutlook(run));
    }
    return (toOutlook && kind.ToOutlook(run)) || (fromOutlook && kind.FromOutlook(run));
}

bool Exchange(const exchange::Kind& kind, exchange::Run& run)
{
    const long transType = Shared().gSynParameter.TransType;
    if (transType < state::kOutlookToQuenlar || transType > state::kBothWays)
    {
        return false;
    }
    run.Items = run.Folder.GetObject(L"Items");
    if (Collect(kind, run, transType))
    {
        return true;
    }
    if (!UserAccepts(kind, run) || CountChanges(run.Pending, transType) == 0)
    {
        return false;
    }
    return Apply(kind, run, transType);
}

bool HasFolder(exchange::Run& run)
{
    const bool failed = config::ResolveOutlookFolder(Shared().gSynParameter.CurrentFolder, run.Folder);
    if (failed)
    {
        state::Tell({.Why = state::Cause::NoFolder});
    }
    return !failed;
}

// True when the run failed.
bool OpenAndExchange(const exchange::Kind& kind, exchange::Run& run)
{
    const automation::RecordsetCloser closer(run.HostRows);
    const data::Host host;
    const std::wstring filter = kind.SourceFilter == nullptr ? std::wstring() : kind.SourceFilter(host);
    if (host.OpenRecordset(run.HostRows, kind.RecordSource, filter) < 0)
    {
        state::LogError();
        state::Tell({.Why = state::Cause::NoHostRows, .Field = kind.RecordSource});
        return !kind.SucceedsWithoutHostRows;
    }
    const bool failed = !HasFolder(run) || Exchange(kind, run);
    if (failed)
    {
        state::LogError();
    }
    return failed;
}

// The same, with an error as a reason in the run's report.
bool Execute(const exchange::Kind& kind, exchange::Run& run)
{
    const state::CollectsRemarks collects(run.Report);
    bool failed = false;
    return state::FailedAndTold([&] { failed = OpenAndExchange(kind, run); }) || failed;
}

bool RunKind(const exchange::Kind& kind, exchange::RunDisplay& display)
{
    return state::Trapped(true, [&] {
        exchange::Run run{.Display = display};
        const bool failed = Execute(kind, run);
        if (failed)
        {
            run.Report.Fail();
        }
        display.TakeReport(std::move(run.Report));
        return failed;
    });
}

} // namespace

bool RunTaskSync(exchange::RunDisplay& display)
{
    return RunKind(tasks::kTasks, display);
}

bool RunCalendarSync(exchange::RunDisplay& display)
{
    return RunKind(calendar::kCalendar, display);
}

bool RunContactSync(exchange::RunDisplay& display)
{
    return RunKind(contacts::kContacts, display);
}

} // namespace run
