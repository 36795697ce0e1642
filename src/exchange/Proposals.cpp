#include "exchange/Proposals.h"

#include "state/SynParameter.h"

#include <map>
#include <string>
#include <utility>

namespace exchange
{

namespace
{

using data::Changes;

void AddAll(std::vector<Proposal>& proposals, Change change, long count)
{
    for (long place = 1; place <= count; ++place)
    {
        proposals.push_back({change, place});
    }
}

void AddPairsToOutlook(std::vector<Proposal>& proposals, const Changes& changes)
{
    for (long place = 1; place <= changes.ChangedHostRecords.Count(); ++place)
    {
        if (changes.ChangedHostRecords.Item(place).RecordState == data::kWritesOutlook)
        {
            proposals.push_back({Change::ChangeInOutlook, place});
        }
    }
}

using Pair = std::pair<long, std::wstring>; // position of the row, of the item

Pair PairAt(const Changes& changes, long place)
{
    return {changes.ChangedHostRecords.Item(place).RecordBookmark,
            changes.ChangedOutlookItems.Item(place).ItemIndex};
}

std::map<Pair, size_t> ProposedPairs(const std::vector<Proposal>& proposals, const Changes& changes)
{
    std::map<Pair, size_t> pairs;
    for (size_t i = 0; i < proposals.size(); ++i)
    {
        if (proposals[i].What == Change::ChangeInOutlook)
        {
            pairs.emplace(PairAt(changes, proposals[i].Place), i);
        }
    }
    return pairs;
}

void AddPairsToHost(std::vector<Proposal>& proposals, const Changes& changes)
{
    const auto known = ProposedPairs(proposals, changes);
    for (long place = 1; place <= changes.ChangedOutlookItems.Count(); ++place)
    {
        if (changes.ChangedOutlookItems.Item(place).RecordState != data::kWritesHost)
        {
            continue;
        }
        const auto same = known.find(PairAt(changes, place));
        if (same == known.end())
        {
            proposals.push_back({Change::ChangeInHost, place});
        }
        else
        {
            proposals[same->second].PlaceToHost = place;
        }
    }
}

// The places of each collection that are left out.
struct LeftOut
{
    std::vector<bool> NewRows;
    std::vector<bool> NewItems;
    std::vector<bool> Pairs;

    explicit LeftOut(const Changes& changes)
        : NewRows(static_cast<size_t>(changes.NewHostRecords.Count()) + 1),
          NewItems(static_cast<size_t>(changes.NewOutlookItems.Count()) + 1),
          Pairs(static_cast<size_t>(changes.ChangedHostRecords.Count()) + 1)
    {
    }

    void Add(const Proposal& proposal)
    {
        const auto place = static_cast<size_t>(proposal.Place);
        switch (proposal.What)
        {
        case Change::AddToOutlook: NewRows[place] = true; break;
        case Change::AddToHost: NewItems[place] = true; break;
        default: Pairs[place] = true; break;
        }
        if (proposal.IsInBoth())
        {
            Pairs[static_cast<size_t>(proposal.PlaceToHost)] = true;
        }
    }
};

template<typename Records>
Records Without(const Records& records, const std::vector<bool>& leftOut)
{
    Records kept;
    size_t place = 0;
    for (const auto& record : records)
    {
        if (!leftOut[++place])
        {
            kept.Append(record);
        }
    }
    return kept;
}

} // namespace

std::vector<Proposal> ProposalsOf(const Changes& changes, long transType)
{
    std::vector<Proposal> proposals;
    if (transType != state::kOutlookToQuenlar)
    {
        AddAll(proposals, Change::AddToOutlook, changes.NewHostRecords.Count());
        AddPairsToOutlook(proposals, changes);
    }
    if (transType != state::kQuenlarToOutlook)
    {
        AddAll(proposals, Change::AddToHost, changes.NewOutlookItems.Count());
        AddPairsToHost(proposals, changes);
    }
    return proposals;
}

Changes KeptChanges(const Changes& changes, const std::vector<Proposal>& proposals,
                    const std::vector<bool>& kept)
{
    LeftOut leftOut(changes);
    for (size_t i = 0; i < proposals.size(); ++i)
    {
        if (!kept[i])
        {
            leftOut.Add(proposals[i]);
        }
    }
    return {Without(changes.NewHostRecords, leftOut.NewRows),
            Without(changes.ChangedHostRecords, leftOut.Pairs),
            Without(changes.ChangedOutlookItems, leftOut.Pairs),
            Without(changes.NewOutlookItems, leftOut.NewItems)};
}

} // namespace exchange
