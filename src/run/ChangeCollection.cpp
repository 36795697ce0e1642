#include "run/ChangeCollection.h"

#include "data/Permissions.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"

namespace run
{

namespace
{

// Marks of the change records; the workers test them.
constexpr long kMarkNew = 0;
constexpr long kMarkToOutlook = 1;   // a changed host record that overwrites its partner
constexpr long kMarkFromOutlook = 0; // a changed Outlook item that overwrites its partner

enum class Proposal
{
    Nothing,
    New,
    Changed,
};

// What becomes of a record that has a partner, by direction and conflict rule.
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

ChangeCollection::ChangeCollection(const exchange::Kind& kind, exchange::Run& run)
    : mKind(kind),
      mRun(run),
      mFilters(kind.FiltersOf(state::Shared().gSynParameter, data::Host())),
      mItems(kind.Match, run.Items),
      mRows(kind.Match, run.HostRows),
      mItemIndex(mItems),
      mRowIndex(mRows)
{
    // An item is fetched from another process; a row is at hand.
    mItemIndex.LookAheadIn(mRowIndex);
}

bool ChangeCollection::CollectToOutlook()
{
    return state::Trapped(true, [&] {
        mRun.Display.SetStatus(resources::String(mKind.CollectToOutlookTextId));
        const exchange::ShowsProgress showsProgress(mRun.Display);
        mItems.CountItems();
        const long all = mRun.HostRows.RecordCount();
        for (long row = 1; mRows.Exists(row); ++row)
        {
            if (KeepsRow(row))
            {
                ProposeRow(row, mItemIndex.Find(mRows, row));
            }
            mRun.Display.SetProgress(Fraction(row, all));
        }
        return false;
    });
}

bool ChangeCollection::KeepsRow(long row)
{
    if (!mFilters.KeepsRow)
    {
        return true;
    }
    mRows.Reach(row);
    return mFilters.KeepsRow(mRun.HostRows);
}

// An item is fetched even where there is no row to compare it with: one that cannot be fetched ends the walk.
bool ChangeCollection::KeepsItem(long item)
{
    if (!mFilters.KeepsItem && mItems.IsRead(item))
    {
        return true;
    }
    mItems.Reach(item);
    return !mFilters.KeepsItem || mFilters.KeepsItem(mItems.Current());
}

// A row's AbsolutePosition is its place in the walk, which counts from 1 like the recordset.
void ChangeCollection::ProposeRow(long row, long partner)
{
    const Proposal proposal =
        partner == 0 ? Proposal::New : ToOutlookByRule(state::Shared().gSynParameter.TransConflictOption);
    if (proposal == Proposal::New)
    {
        mRun.Pending.NewHostRecords.Add(row, kMarkNew);
    }
    else if (proposal == Proposal::Changed)
    {
        mRun.Pending.ChangedHostRecords.Add(row, kMarkToOutlook);
        mRun.Pending.ChangedOutlookItems.Add(std::to_wstring(partner), kMarkToOutlook);
    }
}

bool ChangeCollection::CollectFromOutlook()
{
    return state::Trapped(true, [&] {
        mRun.Display.SetStatus(resources::String(IDS_RUN_COLLECTING));
        const exchange::ShowsProgress showsProgress(mRun.Display);
        const bool mayAdd =
            data::CheckPermission(mKind.PermissionKind, data::kUsualScope, data::kAddOperation);
        const bool mayModify =
            data::CheckPermission(mKind.PermissionKind, data::kUsualScope, data::kModifyOperation);
        const long all = mItems.CountItems();
        for (long item = 1; item <= all; ++item)
        {
            if (KeepsItem(item))
            {
                ProposeItem(item, mRowIndex.Find(mItems, item), mayAdd, mayModify);
            }
            mRun.Display.SetProgress(Fraction(item, all));
        }
        return false;
    });
}

void ChangeCollection::ProposeItem(long item, long partner, bool mayAdd, bool mayModify)
{
    const Proposal proposal =
        partner == 0 ? Proposal::New : FromOutlookByRule(state::Shared().gSynParameter.TransConflictOption);
    if (proposal == Proposal::New && mayAdd)
    {
        mRun.Pending.NewOutlookItems.Add(std::to_wstring(item), kMarkNew);
    }
    else if (proposal == Proposal::Changed && mayModify)
    {
        mRun.Pending.ChangedHostRecords.Add(partner, kMarkFromOutlook);
        mRun.Pending.ChangedOutlookItems.Add(std::to_wstring(item), kMarkFromOutlook);
    }
}

} // namespace run
