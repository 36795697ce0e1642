#include "exchange/Preview.h"

#include "automation/Error.h"
#include "exchange/Identity.h"
#include "exchange/MappingToOutlook.h"
#include "exchange/RecordedItem.h"
#include "state/Remarks.h"

#include <algorithm>

namespace exchange
{

using automation::Object;
using automation::Recordset;
using automation::Value;

namespace
{

// A column that the record source does not show is empty.
Value ValueNow(const Recordset& rows, const std::wstring& column)
{
    return state::Trapped(Value(), [&] { return rows.ValueOf(column); });
}

std::wstring PropertyOf(RelationTable& relations, const std::wstring& column)
{
    const auto& rows = relations.Rows();
    const auto found = std::ranges::find(rows, column, &RelationRow::EnglishName);
    return found == rows.end() ? std::wstring() : found->OutlookName;
}

std::wstring ColumnOf(RelationTable& relations, const std::wstring& property)
{
    const auto& rows = relations.Rows();
    const auto found = std::ranges::find(rows, property, &RelationRow::OutlookName);
    return found == rows.end() ? std::wstring() : found->EnglishName;
}

// An error keeps the record from being written.
template<typename Write>
void TellingErrors(Write&& write)
{
    try
    {
        write();
    }
    catch (const automation::Error& error)
    {
        state::TellFailure(error);
    }
}

// Keeps the preview's remarks out of the run's report.
class Collector : public state::RemarkSink
{
  public:
    explicit Collector(std::vector<state::Remark>& remarks) : mRemarks(remarks), mCollects(*this) {}

    void Take(state::Remark remark) override { mRemarks.push_back(std::move(remark)); }

  private:
    std::vector<state::Remark>& mRemarks;
    state::CollectsRemarks mCollects;
};

} // namespace

Value RelatedValue(const Recordset& rows, RelationTable& relations, const std::wstring& property)
{
    const std::wstring column = ColumnOf(relations, property);
    return column.empty() ? Value() : ValueNow(rows, column);
}

bool RecordPreview::IsWritten() const
{
    return std::ranges::none_of(Remarks,
                                [](const state::Remark& remark) { return state::CostsRecord(remark.Why); });
}

Preview::Preview(const Kind& kind, Run& run) : mKind(kind), mRun(run)
{
    mRun.Relations.Use(kind.ToOutlook.RelationStatement, kind.ToOutlook.RelationOptions);
    mRelationsFromOutlook.Use(kind.FromOutlook.RelationStatement, kind.FromOutlook.RelationOptions);
}

// A proposal's record of Outlook, nothing for a new one.
struct Preview::Records
{
    Object Item;
    bool IsGone;
};

Preview::Records Preview::RecordsOf(const Proposal& proposal)
{
    const data::Changes& changes = mRun.Pending;
    if (proposal.What == Change::AddToHost)
    {
        const Object item = ProposedItem(mRun, changes.NewOutlookItems.Item(proposal.Place));
        return {item, !item};
    }
    const bool isNew = proposal.What == Change::AddToOutlook;
    const data::ClsSalesRecord& row =
        isNew ? changes.NewHostRecords.Item(proposal.Place) : changes.ChangedHostRecords.Item(proposal.Place);
    if (!MoveToProposedRow(mRun, row))
    {
        return {{}, true};
    }
    const Object item =
        isNew ? Object() : ProposedItem(mRun, changes.ChangedOutlookItems.Item(proposal.Place));
    return {item, !isNew && (!item || !AreStillAPair(mRun, item))};
}

// An item that is not saved leaves nothing behind; this one is not even written to. It tells the values that
// a new item has from the start.
Object Preview::BlankItem()
{
    if (!mBlankItem)
    {
        mBlankItem = mRun.Items.GetObject(L"Add", mKind.ToOutlook.ItemType);
    }
    return mBlankItem;
}

RecordPreview Preview::Of(const Proposal& proposal)
{
    RecordPreview preview;
    const Collector collector(preview.Remarks);
    const Records records = RecordsOf(proposal);
    if (records.IsGone)
    {
        state::Tell({.Why = state::Cause::Vanished});
        return preview;
    }
    switch (proposal.What)
    {
    case Change::AddToHost: ToHost(records.Item, data::kNewRecord, preview); break;
    case Change::ChangeInHost: ToHost(records.Item, data::kExistingRecord, preview); break;
    default: ToOutlookOrBoth(proposal, records.Item, preview); break;
    }
    return preview;
}

// The order is that of the passes: the second one reads what the first one has written, and leaves out a pair
// that the first one has written to the host.
void Preview::ToOutlookOrBoth(const Proposal& proposal, const Object& item, RecordPreview& preview)
{
    const bool hostIsFirst = proposal.IsInBoth() && mKind.AppliesFromOutlookFirst;
    if (hostIsFirst && ToHost(item, data::kExistingRecord, preview))
    {
        return;
    }
    auto* const recorded = new RecordedItem(item ? item : BlankItem(), mKind.Preview.Behaviour);
    const Object held = recorded->AsObject();
    ToOutlook(*recorded, item, preview);
    if (proposal.IsInBoth() && !hostIsFirst && preview.IsWritten())
    {
        ToHost(held, data::kExistingRecord, preview);
    }
}

void Preview::ToOutlook(RecordedItem& recorded, const Object& item, RecordPreview& preview)
{
    const auto obstacleTo = mKind.ToOutlook.ObstacleTo;
    if (const Obstacle obstacle = obstacleTo == nullptr ? std::nullopt : obstacleTo(mRun))
    {
        state::Tell({.Why = *obstacle});
        return;
    }
    TellingErrors([&] {
        for (const RelationRow& relation : mRun.Relations.Rows())
        {
            WriteRelatedProperty(relation, mKind.ToOutlook.Mapping, mRun.HostRows, recorded.AsObject());
        }
        recorded.Settle();
    });
    AddItemDifferences(recorded, item, preview.Fields);
}

// False when the item is not to be written.
bool Preview::ToHost(const Object& item, data::RecordMode mode, RecordPreview& preview)
{
    bool isWritten = false;
    TellingErrors([&] {
        data::KeptRow record(mRun.Catalogue);
        ItemProperties properties(item);
        isWritten = AddRelatedColumns(mRelationsFromOutlook, mKind.FromOutlook.Mapping,
                                      mKind.FromOutlook.Others, properties, record);
        if (isWritten)
        {
            AddHostFields(record.Columns(), mode, preview);
            AddLinkedFields({item, mode, mRun.HostRows, mRelationsFromOutlook, mRun.Catalogue}, preview);
        }
    });
    return isWritten;
}

void Preview::AddHostFields(const std::vector<data::HeldColumn>& columns, data::RecordMode mode,
                            RecordPreview& preview)
{
    for (const auto& [column, value] : columns)
    {
        preview.Fields.push_back({Side::Host, column, PropertyOf(mRelationsFromOutlook, column),
                                  mode == data::kNewRecord ? Value() : ValueNow(mRun.HostRows, column),
                                  value});
    }
}

void Preview::AddLinkedFields(const LinkSource& source, RecordPreview& preview)
{
    for (LinkedValue& linked : mKind.Preview.LinksOf(source))
    {
        preview.Fields.push_back({Side::Host, ColumnOf(source.Relations, linked.Property), linked.Property,
                                  std::move(linked.Now), std::move(linked.After), linked.IsNew});
    }
}

// The two records of a pair have the same keys; a row is at hand.
template<typename OfItem, typename OfRow>
Value Preview::ReadFrom(const Proposal& proposal, OfItem&& ofItem, OfRow&& ofRow)
{
    const data::Changes& changes = mRun.Pending;
    if (proposal.What == Change::AddToHost)
    {
        const Object item = ProposedItem(mRun, changes.NewOutlookItems.Item(proposal.Place));
        return item ? Value(ofItem(item)) : Value();
    }
    const bool isNew = proposal.What == Change::AddToOutlook;
    const data::ClsSalesRecord& row =
        isNew ? changes.NewHostRecords.Item(proposal.Place) : changes.ChangedHostRecords.Item(proposal.Place);
    return MoveToProposedRow(mRun, row) ? Value(ofRow(mRun.HostRows)) : Value();
}

Value Preview::NameOf(const Proposal& proposal)
{
    return ReadFrom(proposal, mKind.NameOfItem, mKind.NameOfRow);
}

Value Preview::Summary(const Proposal& proposal, SummaryColumn KindPreview::*column)
{
    const SummaryColumn& summary = mKind.Preview.*column;
    return ReadFrom(proposal, summary.OfItem,
                    [&](const Recordset& rows) { return summary.OfRow(rows, mRelationsFromOutlook); });
}

} // namespace exchange
