#include "benchmarks/Walk.h"

#include "run/ChangeCollection.h"
#include "state/SharedState.h"
#include "tests/nested_walk/NestedWalk.h"

#include <algorithm>
#include <stdexcept>

namespace benchmarks
{

namespace
{

template<typename Records, typename Place>
bool AreEqual(const Records& one, const Records& other, Place place)
{
    auto theirs = other.begin();
    for (const auto& record : one)
    {
        if (theirs == other.end() || record.*place != (*theirs).*place ||
            record.RecordState != (*theirs).RecordState)
        {
            return false;
        }
        ++theirs;
    }
    return theirs == other.end();
}

void Demand(bool failed, const char* what)
{
    if (failed)
    {
        throw std::runtime_error(std::string(what) + " failed");
    }
}

} // namespace

void Collect(const Kind& kind, Direction direction, exchange::Run& run)
{
    run::ChangeCollection collection(kind.Category, run);
    Demand(direction == Direction::ToOutlook ? collection.CollectToOutlook()
                                             : collection.CollectFromOutlook(),
           "the collection");
}

void Walk(const Kind& kind, Direction direction, exchange::Run& run)
{
    const long rule = state::Shared().gSynParameter.TransConflictOption;
    Demand(direction == Direction::ToOutlook
               ? test_support::WalkToOutlook(kind.Category, run, rule)
               : test_support::WalkFromOutlook(kind.Category, run, rule, true, true),
           "the nested walk");
}

void FillPending(Direction direction, size_t count, data::Changes& pending)
{
    const long all = static_cast<long>(count);
    const long alone = all / 2;
    const bool toOutlook = direction == Direction::ToOutlook;
    const long mark = toOutlook ? 1 : 0;
    for (long i = 1; i <= alone; ++i)
    {
        toOutlook ? (void)pending.NewHostRecords.Add(i, 0)
                  : (void)pending.NewOutlookItems.Add(std::to_wstring(all - alone + i), 0);
    }
    for (long i = 1; i <= all - alone; ++i)
    {
        pending.ChangedHostRecords.Add(alone + i, mark);
        pending.ChangedOutlookItems.Add(std::to_wstring(i), mark);
    }
}

bool AreEqual(const data::Changes& one, const data::Changes& other)
{
    const auto row = &data::ClsSalesRecord::RecordBookmark;
    const auto item = &data::ClsOlRecord::ItemIndex;
    return AreEqual(one.NewHostRecords, other.NewHostRecords, row) &&
           AreEqual(one.ChangedHostRecords, other.ChangedHostRecords, row) &&
           AreEqual(one.ChangedOutlookItems, other.ChangedOutlookItems, item) &&
           AreEqual(one.NewOutlookItems, other.NewOutlookItems, item);
}

const char* NameOf(Direction direction)
{
    return direction == Direction::ToOutlook ? "to Outlook" : "from Outlook";
}

} // namespace benchmarks
