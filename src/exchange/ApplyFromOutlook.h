// The apply pass from Outlook to the host, once for all kinds of data: it walks the accepted additions and
// modifications and hands each item to the kind's record writer, which has its own transaction. The run
// driver starts it through the kind's worker.
#pragma once

#include "data/RecordMode.h"
#include "exchange/MappingFromOutlook.h"

namespace exchange
{

// The data of a kind for the pass.
struct PassFromOutlook
{
    const wchar_t* RelationStatement; // the SELECT of its relation rows
    automation::OpenOptions RelationOptions{};
    std::span<const PropertyFromOutlook> Mapping{};
    Unmapped Others = Unmapped::LeftOut;
    // Writes one item into the host: kNewRecord, or kExistingRecord with run.HostRows on the row to update.
    // Returns -1 for failure, 0 otherwise; the pass goes on with the next record in either case.
    long (*Write)(Run& run, data::RecordMode mode, const automation::ItemView& item);

    // Tells the report how many records this pass is to write.
    static void Announce(Run& run);
    // Writes the run's pending changes. True when an error ended the pass, False when both collections were
    // walked to their end.
    bool operator()(Run& run) const;
};

// The functions of a kind that write an item, each in its own transaction; they throw to report a failure.
struct RecordWriter
{
    void (*Insert)(Run& run, const automation::ItemView& item);
    void (*Update)(Run& run, const automation::ItemView& item);
    // Tells the user of a mode that is neither; called within a transaction, where the host contract reports
    // it.
    void (*ShowInvalidMode)();
};

// Writes one item in its mode, as PassFromOutlook::Write; an error is reported as a remark and as -1.
long WriteRecord(const RecordWriter& writer, Run& run, data::RecordMode mode,
                 const automation::ItemView& item);

} // namespace exchange
