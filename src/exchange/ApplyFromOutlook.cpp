#include "exchange/ApplyFromOutlook.h"

#include "data/Host.h"
#include "exchange/Identity.h"
#include "resources/Strings.h"
#include "state/Remarks.h"

#include <algorithm>

namespace exchange
{

using automation::Object;

namespace
{

void Insert(Run& run, const PassFromOutlook& pass, long position)
{
    const data::ClsOlRecord& record = run.Pending.NewOutlookItems.Item(position);
    if (record.ItemIndex.empty())
    {
        return;
    }
    Object item;
    run.Report.Record(
        Change::AddToHost, [&] { return NameOf(run, item); },
        [&] {
            UnlessGone(run, nullptr, &record, [&] {
                item = ProposedItem(run, record);
                if (item)
                {
                    ItemProperties properties(item);
                    pass.Write(run, data::kNewRecord, properties);
                }
                else
                {
                    Skip();
                }
            });
        });
}

// An item that this run has written may have other keys by Outlook's own rules.
bool IsPairOf(const Run& run, const data::ClsOlRecord& record, const automation::ItemView& item)
{
    return run.OverwrittenItems.contains(record.ItemIndex) || AreStillAPair(run, item);
}

void Update(Run& run, const PassFromOutlook& pass, long position)
{
    const data::ClsOlRecord& record = run.Pending.ChangedOutlookItems.Item(position);
    if (record.RecordState != data::kWritesHost || record.ItemIndex.empty())
    {
        return;
    }
    const data::ClsSalesRecord& row = run.Pending.ChangedHostRecords.Item(position);
    Object item;
    run.Report.Record(
        Change::ChangeInHost, [&] { return NameOf(run, item); },
        [&] {
            UnlessGone(run, &row, &record, [&] {
                item = ProposedItem(run, record);
                // The writer gets the match keys as they have been read for the comparison.
                ItemProperties properties(item);
                if (!item || !MoveToProposedRow(run, row) || !IsPairOf(run, record, properties))
                {
                    Skip();
                }
                else if (pass.Write(run, data::kExistingRecord, properties) == 0)
                {
                    run.OverwrittenRows.insert(row.RecordBookmark);
                }
            });
        });
}

} // namespace

void PassFromOutlook::Announce(Run& run)
{
    const auto hasItem = [](const data::ClsOlRecord& record) { return !record.ItemIndex.empty(); };
    const auto isMarked = [&](const data::ClsOlRecord& record) {
        return record.RecordState == data::kWritesHost && hasItem(record);
    };
    run.Report.Accept(Change::AddToHost, std::ranges::count_if(run.Pending.NewOutlookItems, hasItem));
    run.Report.Accept(Change::ChangeInHost, std::ranges::count_if(run.Pending.ChangedOutlookItems, isMarked));
}

bool PassFromOutlook::operator()(Run& run) const
{
    return state::Failed([&] {
        const state::CollectsRemarks collects(run.Report);
        run.Display.SetStatus(resources::String(IDS_RUN_APPLYING));
        const ProgressScope progress(run.Display);
        run.Relations.Use(RelationStatement, RelationOptions);
        run.Catalogue.Forget();
        WalkWithProgress(run.Display, run.Pending.NewOutlookItems.Count(),
                         [&](long position) { Insert(run, *this, position); });
        WalkWithProgress(run.Display, run.Pending.ChangedOutlookItems.Count(),
                         [&](long position) { Update(run, *this, position); });
    });
}

long WriteRecord(const RecordWriter& writer, Run& run, data::RecordMode mode,
                 const automation::ItemView& item)
{
    const bool failed = state::FailedAndTold([&] {
        switch (mode)
        {
        case data::kNewRecord: writer.Insert(run, item); break;
        case data::kExistingRecord: writer.Update(run, item); break;
        default: {
            const data::Host host;
            data::Transaction transaction(host);
            writer.ShowInvalidMode();
            transaction.Commit();
        }
        }
    });
    return failed ? -1 : 0;
}

} // namespace exchange
