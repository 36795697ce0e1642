#include "exchange/ApplyToOutlook.h"

#include "data/Remark.h"
#include "exchange/Identity.h"
#include "resources/Strings.h"
#include "state/Failures.h"

namespace exchange
{

using automation::Object;

namespace
{

// A row that cannot become an item is skipped before anything of it is written.
void Write(Run& run, const PassToOutlook& pass, data::RecordMode mode, const Object& item)
{
    const wchar_t* const obstacle = pass.Obstacle == nullptr ? nullptr : pass.Obstacle(run);
    if (obstacle != nullptr)
    {
        data::Remark(obstacle);
    }
    else
    {
        pass.Write(run, mode, item);
    }
}

void WriteNewRecord(Run& run, const PassToOutlook& pass, long i)
{
    const data::ClsSalesRecord& row = run.Pending.NewHostRecords.Item(i);
    const bool isThere = pass.AddsItemFirst || MoveToProposedRow(run, row);
    const Object item = isThere ? ForPass(run, run.Items.GetObject(L"Add", pass.ItemType)) : Object();
    // An item that is not saved leaves nothing behind.
    if (isThere && (!pass.AddsItemFirst || MoveToProposedRow(run, row)))
    {
        Write(run, pass, data::kNewRecord, item);
    }
    else
    {
        Skip(run);
    }
}

void WriteChangedRecord(Run& run, const PassToOutlook& pass, long i)
{
    const data::ClsSalesRecord& record = run.Pending.ChangedHostRecords.Item(i);
    // A row that the pass from Outlook has just overwritten is known only as it was before.
    if (record.RecordState != data::kWritesOutlook || run.OverwrittenRows.contains(record.RecordBookmark))
    {
        return;
    }
    const data::ClsOlRecord& partner = run.Pending.ChangedOutlookItems.Item(i);
    const Object item = MoveToProposedRow(run, record) ? ProposedItem(run, partner) : Object();
    if (item && AreStillAPair(run, item))
    {
        Write(run, pass, data::kExistingRecord, item);
        run.OverwrittenItems.insert(partner.ItemIndex);
    }
    else
    {
        Skip(run);
    }
}

} // namespace

bool PassToOutlook::operator()(Run& run) const
{
    return state::Failed([&] {
        run.Display.SetStatus(resources::String(IDS_RUN_APPLYING));
        const ProgressScope progress(run.Display);
        run.Relations.Use(RelationStatement, RelationOptions);
        WalkWithProgress(run.Display, run.Pending.NewHostRecords.Count(),
                         [&](long i) { WriteNewRecord(run, *this, i); });
        WalkWithProgress(run.Display, run.Pending.ChangedHostRecords.Count(),
                         [&](long i) { WriteChangedRecord(run, *this, i); });
    });
}

} // namespace exchange
