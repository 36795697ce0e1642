#include "exchange/ApplyToOutlook.h"

#include "exchange/Identity.h"
#include "resources/Strings.h"
#include "state/Remarks.h"

#include <algorithm>

namespace exchange
{

using automation::Object;

namespace
{

// A row that cannot become an item is skipped before anything of it is written.
void Write(Run& run, const PassToOutlook& pass, data::RecordMode mode, const Object& item)
{
    const Obstacle obstacle = pass.ObstacleTo == nullptr ? std::nullopt : pass.ObstacleTo(run);
    if (obstacle)
    {
        state::Tell({.Why = *obstacle});
    }
    else
    {
        pass.Write(run, mode, item);
    }
}

void WriteNewRecord(Run& run, const PassToOutlook& pass, const data::ClsSalesRecord& row)
{
    const bool isThere = pass.AddsItemFirst || MoveToProposedRow(run, row);
    const Object item = isThere ? ForPass(run, run.Items.GetObject(L"Add", pass.ItemType)) : Object();
    // An item that is not saved leaves nothing behind.
    if (isThere && (!pass.AddsItemFirst || MoveToProposedRow(run, row)))
    {
        Write(run, pass, data::kNewRecord, item);
    }
    else
    {
        Skip();
    }
}

void AddRecord(Run& run, const PassToOutlook& pass, long i)
{
    const data::ClsSalesRecord& row = run.Pending.NewHostRecords.Item(i);
    run.Report.Record(
        Change::AddToOutlook, [&] { return NameOf(run, row); },
        [&] { UnlessGone(run, &row, nullptr, [&] { WriteNewRecord(run, pass, row); }); });
}

void WriteChangedRecord(Run& run, const PassToOutlook& pass, const data::ClsSalesRecord& record,
                        const data::ClsOlRecord& partner)
{
    const Object item = MoveToProposedRow(run, record) ? ProposedItem(run, partner) : Object();
    if (item && AreStillAPair(run, item))
    {
        Write(run, pass, data::kExistingRecord, item);
        run.OverwrittenItems.insert(partner.ItemIndex);
    }
    else
    {
        Skip();
    }
}

void ChangeRecord(Run& run, const PassToOutlook& pass, long i)
{
    const data::ClsSalesRecord& record = run.Pending.ChangedHostRecords.Item(i);
    // A row that the pass from Outlook has just overwritten is known only as it was before.
    if (record.RecordState != data::kWritesOutlook)
    {
        return;
    }
    if (run.OverwrittenRows.contains(record.RecordBookmark))
    {
        run.Report.LeaveAlone(Change::ChangeInOutlook);
        return;
    }
    const data::ClsOlRecord& partner = run.Pending.ChangedOutlookItems.Item(i);
    run.Report.Record(
        Change::ChangeInOutlook, [&] { return NameOf(run, record); },
        [&] { UnlessGone(run, &record, &partner, [&] { WriteChangedRecord(run, pass, record, partner); }); });
}

} // namespace

void PassToOutlook::Announce(Run& run)
{
    const auto isMarked = [](const data::ClsSalesRecord& record) {
        return record.RecordState == data::kWritesOutlook;
    };
    run.Report.Accept(Change::AddToOutlook, run.Pending.NewHostRecords.Count());
    run.Report.Accept(Change::ChangeInOutlook,
                      std::ranges::count_if(run.Pending.ChangedHostRecords, isMarked));
}

bool PassToOutlook::operator()(Run& run) const
{
    return state::Failed([&] {
        const state::CollectsRemarks collects(run.Report);
        run.Display.SetStatus(resources::String(IDS_RUN_APPLYING));
        const ProgressScope progress(run.Display);
        run.Relations.Use(RelationStatement, RelationOptions);
        WalkWithProgress(run.Display, run.Pending.NewHostRecords.Count(),
                         [&](long i) { AddRecord(run, *this, i); });
        WalkWithProgress(run.Display, run.Pending.ChangedHostRecords.Count(),
                         [&](long i) { ChangeRecord(run, *this, i); });
    });
}

} // namespace exchange
