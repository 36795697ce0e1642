#include "data/ApplyToOutlook.h"

#include "automation/Text.h"
#include "resources/Strings.h"
#include "state/Failures.h"

namespace data
{

namespace
{

// A changed host record is written to Outlook when it carries this mark.
constexpr long kMarkToOutlook = 1;

void WriteNewRecord(Run& run, const PassToOutlook& pass, long i)
{
    run.HostRows.MoveTo(run.Pending.NewHostRecords.Item(i).RecordBookmark);
    pass.Write(run, kNewRecord, ForPass(run, run.Items.GetObject(L"Add", pass.ItemType)));
}

void WriteChangedRecord(Run& run, const PassToOutlook& pass, long i)
{
    if (run.Pending.ChangedHostRecords.Item(i).RecordState != kMarkToOutlook)
    {
        return;
    }
    run.HostRows.MoveTo(run.Pending.ChangedHostRecords.Item(i).RecordBookmark);
    const double index = automation::LeadingNumber(run.Pending.ChangedOutlookItems.Item(i).ItemIndex);
    pass.Write(run, kExistingRecord, ForPass(run, run.Items.GetObject(L"Item", static_cast<long>(index))));
}

} // namespace

bool ApplyToOutlook(Run& run, const PassToOutlook& pass)
{
    return state::Trapped(true, [&] {
        run.Display.SetStatus(resources::String(IDS_RUN_APPLYING));
        const ShowsProgress showsProgress(run.Display);
        run.Relations.Use(pass.RelationStatement, pass.RelationOptions);
        WalkWithProgress(run.Display, run.Pending.NewHostRecords.Count(),
                         [&](long i) { WriteNewRecord(run, pass, i); });
        WalkWithProgress(run.Display, run.Pending.ChangedHostRecords.Count(),
                         [&](long i) { WriteChangedRecord(run, pass, i); });
        return false;
    });
}

} // namespace data
