// The proposed changes of a run as one list: a record that is proposed in both directions is one entry. Made
// from the collections that the apply passes walk; a selection of its entries goes back into such
// collections.
#pragma once

#include "data/ChangeRecords.h"
#include "exchange/Change.h"

#include <vector>

namespace exchange
{

struct Proposal
{
    Change What;
    // The place in the collection of the direction, from 1.
    long Place;
    // Of a pair that is to be changed in Outlook and in the host as well: its place there.
    long PlaceToHost = 0;

    bool IsInBoth() const noexcept { return PlaceToHost != 0; }
};

// The proposals of the directions of a transfer type (state::kBothWays, ...), those towards Outlook first.
std::vector<Proposal> ProposalsOf(const data::Changes& changes, long transType);

// The changes without the proposals that are not kept; everything else in its order. kept: one entry for each
// proposal.
data::Changes KeptChanges(const data::Changes& changes, const std::vector<Proposal>& proposals,
                          const std::vector<bool>& kept);

} // namespace exchange
