#include "exchange/ApplyToOutlook.h"

#include "automation/Text.h"
#include "resources/Strings.h"
#include "state/Failures.h"

namespace exchange
{

namespace
{

// A changed host record is written to Outlook when it carries this mark.
constexpr long kMarkToOutlook = 1;

void WriteNewRecord(Run& run, const PassToOutlook& pass, long i)
{
    const long row = run.Pending.NewHostRecords.Item(i).RecordBookmark;
    if (!pass.AddsItemFirst)
    {
        run.HostRows.MoveTo(row);
    }
    const automation::Object item = ForPass(run, run.Items.GetObject(L"Add", pass.ItemType));
    if (pass.AddsItemFirst)
    {
        run.HostRows.MoveTo(row);
    }
    pass.Write(run, data::kNewRecord, item);
}

void WriteChangedRecord(Run& run, const PassToOutlook& pass, long i)
{
    const data::ClsSalesRecord& record = run.Pending.ChangedHostRecords.Item(i);
    // A row that the pass from Outlook has just overwritten is known only as it was before.
    if (record.RecordState != kMarkToOutlook || run.OverwrittenRows.contains(record.RecordBookmark))
    {
        return;
    }
    run.HostRows.MoveTo(record.RecordBookmark);
    const double index = automation::LeadingNumber(run.Pending.ChangedOutlookItems.Item(i).ItemIndex);
    pass.Write(run, data::kExistingRecord,
               ForPass(run, run.Items.GetObject(L"Item", static_cast<long>(index))));
}

} // namespace

bool PassToOutlook::operator()(Run& run) const
{
    return state::Trapped(true, [&] {
        run.Display.SetStatus(resources::String(IDS_RUN_APPLYING));
        const ShowsProgress showsProgress(run.Display);
        run.Relations.Use(RelationStatement, RelationOptions);
        WalkWithProgress(run.Display, run.Pending.NewHostRecords.Count(),
                         [&](long i) { WriteNewRecord(run, *this, i); });
        WalkWithProgress(run.Display, run.Pending.ChangedHostRecords.Count(),
                         [&](long i) { WriteChangedRecord(run, *this, i); });
        return false;
    });
}

} // namespace exchange
