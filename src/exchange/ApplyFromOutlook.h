// The apply pass from Outlook to the host, once for all categories: it walks the accepted additions and
// modifications and hands each item to the category's record writer, which has its own transaction. The run
// driver starts it through the category's worker.
#pragma once

#include "data/RecordMode.h"
#include "exchange/Run.h"

namespace exchange
{

// What a category brings to the pass.
struct PassFromOutlook
{
    const wchar_t* RelationStatement; // the SELECT of its relation rows
    automation::OpenOptions RelationOptions;
    // Writes one item into the host: kNewRecord, or kExistingRecord with run.HostRows on the row to update.
    // Returns -1 for failure, 0 otherwise; the pass goes on with the next record in either case.
    long (*Write)(Run& run, long mode, const automation::Object& item);

    // Writes the run's pending changes. True when an error ended the pass, False when both collections were
    // walked to their end.
    bool operator()(Run& run) const;
};

} // namespace exchange
