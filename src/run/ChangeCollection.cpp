#include "run/ChangeCollection.h"

#include "automation/Text.h"
#include "data/Permissions.h"
#include "resources/Strings.h"
#include "state/Remarks.h"
#include "state/SharedState.h"

namespace run
{

namespace
{

enum class Proposal
{
    Nothing,
    New,
    Changed,
};

// How a record with a partner is proposed, by direction and conflict rule.
Proposal ToOutlookByRule(long conflictOption)
{
    switch (conflictOption)
    {
    case state::kAddAllConflicting: return Proposal::New;
    case state::kNotifyMe:
    case state::kHostWins: return Proposal::Changed;
    default: return Proposal::Nothing;
    }
}

Proposal FromOutlookByRule(long conflictOption)
{
    switch (conflictOption)
    {
    case state::kAddAllConflicting: return Proposal::New;
    case state::kNotifyMe:
    case state::kOutlookWins: return Proposal::Changed;
    default: return Proposal::Nothing;
    }
}

double Fraction(long done, long all)
{
    return all > 0 ? static_cast<double>(done) / static_cast<double>(all) : 1;
}

} // namespace

ChangeCollection::Reading::Reading(const exchange::Kind& kind, const exchange::Filters& filters,
                                   exchange::Run& run, bool usesTable)
    : Items(kind.Match, filters, run, state::WritesToHost(state::Shared().gSynParameter.TransType),
            usesTable),
      Rows(kind.Match, run, kind.KeyColumn),
      ItemIndex(Items),
      RowIndex(Rows)
{
    // Items come from another process; rows do not.
    ItemIndex.LookAheadIn(RowIndex);
}

ChangeCollection::ChangeCollection(const exchange::Kind& kind, exchange::Run& run)
    : mKind(kind),
      mRun(run),
      mFilters(kind.FiltersOf(state::Shared().gSynParameter, data::Host())),
      mReading(std::make_unique<Reading>(kind, mFilters, run, true))
{
    const exchange::MatchRule& rule = kind.Match;
    run.Identity = {
        .KeyColumn = kind.KeyColumn,
        .FirstKeyOf = rule.FirstKeyOfItem,
        .Matches = [&rule](const auto& item, const auto& rows) { return rule.Matches(item, rows); },
        .NameOfItem = kind.NameOfItem,
        .NameOfRow = kind.NameOfRow,
    };
}

bool ChangeCollection::CollectToOutlook()
{
    return state::FailedAndTold([&] {
        mRun.Display.SetStatus(resources::String(mKind.CollectToOutlookTextId));
        const exchange::ProgressScope progress(mRun.Display);
        Walk([&] { WalkRows(); });
        mRun.Report.CountOtherItems(mReading->Items.OtherKinds());
    });
}

// Where items or rows have come, gone or changed places during the walk, it has passed some by or met them
// twice: it starts again. A side that never rests is taken as it is then; the apply passes write to no record
// that they have not found again.
void ChangeCollection::Walk(const std::function<void()>& walk)
{
    constexpr int kMostWalks = 3;
    const data::Changes before = mRun.Pending;
    for (int walks = 1;; ++walks)
    {
        const long known = mReading->Items.Count();
        if (mReading->Items.CountItems() != known && known != 0)
        {
            ReadAgain();
            mReading->Items.CountItems();
        }
        walk();
        if (walks == kMostWalks || !(mReading->Items.HasMoved() || mReading->Rows.HasMoved()))
        {
            return;
        }
        ReadAgain();
        mRun.Pending = before;
    }
}

// A table that was not to be trusted is not tried again.
void ChangeCollection::ReadAgain()
{
    mReading = std::make_unique<Reading>(mKind, mFilters, mRun, mReading->Items.UsesTable());
}

void ChangeCollection::WalkRows()
{
    RowKeys& rows = mReading->Rows;
    const long all = rows.Count();
    for (long row = 1; rows.Exists(row); ++row)
    {
        if (KeepsRow(row))
        {
            ProposeRow(row, mReading->ItemIndex.Find(rows, row));
        }
        mRun.Display.SetProgress(Fraction(row, all));
    }
}

bool ChangeCollection::KeepsRow(long row)
{
    RowKeys& rows = mReading->Rows;
    return !mFilters.KeepsRow || rows.ReadRecord(row, false, [&] {
        rows.Reach(row);
        return mFilters.KeepsRow(mRun.HostRows);
    });
}

// A row's AbsolutePosition is its place in the walk, which counts from 1 like the recordset.
void ChangeCollection::ProposeRow(long row, long partner)
{
    const Proposal proposal =
        partner == 0 ? Proposal::New : ToOutlookByRule(state::Shared().gSynParameter.TransConflictOption);
    if (proposal == Proposal::Nothing || !mReading->Rows.IsRecord(row))
    {
        return;
    }
    if (proposal == Proposal::New)
    {
        mRun.Pending.NewHostRecords.Add(row, data::kNewRecordMark).Key = mReading->Rows.Key(row);
    }
    else
    {
        AddPair(partner, row, data::kWritesOutlook);
    }
}

void ChangeCollection::AddPair(long item, long row, long mark)
{
    if (const auto entryId = EntryIdOf(item))
    {
        mRun.Pending.ChangedHostRecords.Add(row, mark).Key = mReading->Rows.Key(row);
        mRun.Pending.ChangedOutlookItems.Add(automation::DecimalText(item), mark).EntryId = *entryId;
    }
}

std::optional<data::StoredText> ChangeCollection::EntryIdOf(long item)
{
    ItemKeys& items = mReading->Items;
    return items.ReadRecord(item, std::optional<data::StoredText>(),
                            [&] { return std::optional(items.EntryId(item)); });
}

bool ChangeCollection::CollectFromOutlook()
{
    return state::FailedAndTold([&] {
        mRun.Display.SetStatus(resources::String(IDS_RUN_COLLECTING));
        const exchange::ProgressScope progress(mRun.Display);
        const bool mayAdd =
            data::CheckPermission(mKind.PermissionKind, data::kUsualScope, data::kAddOperation);
        const bool mayModify =
            data::CheckPermission(mKind.PermissionKind, data::kUsualScope, data::kModifyOperation);
        Walk([&] { WalkItems(mayAdd, mayModify); });
        mRun.Report.CountOtherItems(mReading->Items.OtherKinds());
    });
}

void ChangeCollection::WalkItems(bool mayAdd, bool mayModify)
{
    ItemKeys& items = mReading->Items;
    const long all = items.Count();
    for (long item = 1; item <= all; ++item)
    {
        if (items.Keeps(item))
        {
            ProposeItem(item, mReading->RowIndex.Find(items, item), mayAdd, mayModify);
        }
        mRun.Display.SetProgress(Fraction(item, all));
    }
}

void ChangeCollection::ProposeItem(long item, long partner, bool mayAdd, bool mayModify)
{
    const Proposal proposal =
        partner == 0 ? Proposal::New : FromOutlookByRule(state::Shared().gSynParameter.TransConflictOption);
    if (!mReading->Items.IsRecord(item))
    {
        return;
    }
    if (proposal == Proposal::New && mayAdd)
    {
        AddItem(item);
    }
    else if (proposal == Proposal::Changed && mayModify)
    {
        AddPair(item, partner, data::kWritesHost);
    }
}

void ChangeCollection::AddItem(long item)
{
    if (const auto entryId = EntryIdOf(item))
    {
        data::ClsOlRecord& record =
            mRun.Pending.NewOutlookItems.Add(automation::DecimalText(item), data::kNewRecordMark);
        record.EntryId = *entryId;
        if (entryId->IsEmpty())
        {
            // A key that cannot be read tells nothing.
            record.FirstKey = state::Trapped(data::StoredText(), [&] { return mReading->Items.First(item); });
        }
    }
}

} // namespace run
