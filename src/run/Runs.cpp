#include "run/Runs.h"

#include "config/ParameterStore.h"
#include "data/FrmMessage.h"
#include "run/ChangeCollection.h"
#include "state/Failures.h"
#include "state/SharedState.h"

namespace run
{

namespace
{

using state::Shared;

// Collects in the directions that the parameters name; true when a procedure failed.
bool Collect(const Category& category, data::Run& run, long transType)
{
    ChangeCollection collection(category, run);
    const bool failed = transType != state::kOutlookToQuenlar && collection.CollectToOutlook();
    return failed || (transType != state::kQuenlarToOutlook && collection.CollectFromOutlook());
}

// The changes of the directions that the parameters name. A run in one direction may have filled the other
// half of a changed pair as well; it is not counted.
long CountChanges(const data::Changes& changes, long transType)
{
    long count = 0;
    if (transType != state::kOutlookToQuenlar)
    {
        count += changes.NewHostRecords.Count() + changes.ChangedHostRecords.Count();
    }
    if (transType != state::kQuenlarToOutlook)
    {
        count += changes.NewOutlookItems.Count() + changes.ChangedOutlookItems.Count();
    }
    return count;
}

bool UserAccepts(const data::Run& run)
{
    // A dialog that is closed by neither button leaves the flag alone; an answer to an earlier run is no
    // consent to this one.
    Shared().gChangesAccepted = false;
    data::ShowConfirmation(run.Display.CategoryText(), run.Pending);
    return Shared().gChangesAccepted;
}

// Writes the accepted changes; true when a worker failed, which keeps the other one from starting.
bool Apply(const Category& category, data::Run& run, long transType)
{
    const bool toOutlook = transType != state::kOutlookToQuenlar;
    const bool fromOutlook = transType != state::kQuenlarToOutlook;
    if (category.AppliesFromOutlookFirst)
    {
        return (fromOutlook && category.ApplyFromOutlook(run)) || (toOutlook && category.ApplyToOutlook(run));
    }
    return (toOutlook && category.ApplyToOutlook(run)) || (fromOutlook && category.ApplyFromOutlook(run));
}

bool Exchange(const Category& category, data::Run& run)
{
    const long transType = Shared().gSynParameter.TransType;
    if (transType < state::kOutlookToQuenlar || transType > state::kBothWays)
    {
        return false;
    }
    run.Items = run.Folder.GetObject(L"Items");
    if (Collect(category, run, transType))
    {
        return true;
    }
    if (!UserAccepts(run) || CountChanges(run.Pending, transType) == 0)
    {
        return false;
    }
    return Apply(category, run, transType);
}

bool RunCategory(const Category& category, data::RunDisplay& display)
{
    return state::Trapped(true, [&] {
        data::Run run{.Display = display};
        const automation::ClosesRecordset closes(run.HostRows);
        const data::Host host;
        const std::wstring filter =
            category.SourceFilter == nullptr ? std::wstring() : category.SourceFilter(host);
        if (host.OpenRecordset(run.HostRows, category.RecordSource, filter) < 0)
        {
            state::LogError();
            return !category.SucceedsWithoutHostRows;
        }
        const bool failed = config::ResolveOutlookFolder(Shared().gSynParameter.CurrentFolder, run.Folder) ||
                            Exchange(category, run);
        if (failed)
        {
            state::LogError();
        }
        return failed;
    });
}

} // namespace

bool RunTaskSync(data::RunDisplay& display)
{
    return RunCategory(kTaskCategory, display);
}

bool RunCalendarSync(data::RunDisplay& display)
{
    return RunCategory(kCalendarCategory, display);
}

bool RunContactSync(data::RunDisplay& display)
{
    return RunCategory(kContactCategory, display);
}

} // namespace run
