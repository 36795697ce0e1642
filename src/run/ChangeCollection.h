// Change collection: works out what a run has to change before anything is written. The result is that of a
// plain walk of the one side for each record of the other, record for record and in the same order.
#pragma once

#include "exchange/Kind.h"
#include "run/LazyIndex.h"

#include <functional>
#include <memory>
#include <optional>

namespace run
{

// The collection procedures of one category and one run. The two directions of a two-way run share what they
// have read.
class ChangeCollection
{
  public:
    // category and run outlive the collection; the run's host rows and items are open.
    ChangeCollection(const exchange::Kind& kind, exchange::Run& run);

    // Collect...ChangesToOutlook and Collect...ChangesFromOutlook of the category: true when an error ended
    // the procedure.
    bool CollectToOutlook();
    bool CollectFromOutlook();

  private:
    // The keys read so far, of both sides.
    struct Reading
    {
        Reading(const exchange::Kind& kind, const exchange::Filters& filters, exchange::Run& run,
                bool usesTable);

        ItemKeys Items;
        RowKeys Rows;
        LazyIndex ItemIndex;
        LazyIndex RowIndex;
    };

    void Walk(const std::function<void()>& walk);
    void ReadAgain();
    void WalkRows();
    void WalkItems(bool mayAdd, bool mayModify);
    bool KeepsRow(long row);
    void ProposeRow(long row, long partner);
    void ProposeItem(long item, long partner, bool mayAdd, bool mayModify);
    void AddPair(long item, long row, long mark);
    void AddItem(long item);
    // Nothing for an item that is gone.
    std::optional<data::StoredText> EntryIdOf(long item);

    const exchange::Kind& mKind;
    exchange::Run& mRun;
    exchange::Filters mFilters;
    std::unique_ptr<Reading> mReading;
};

} // namespace run
