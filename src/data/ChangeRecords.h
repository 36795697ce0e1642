// The pending changes of a run, between collecting the differences and applying them. A record copies no
// data: it points back at the Outlook item (by its position in the folder's items) or at the host row (by its
// position in the host recordset), and says which record that was, since positions change. The apply routines
// walk the collections by index, and pair a modification in one collection with the record of the same index
// in the other.
#pragma once

#include <string>

#include "data/RecordCollection.h"
#include "data/TextStore.h"

namespace data
{

// RecordState of a changed record: the side that is written. New records carry kNewRecordMark.
enum RecordMark : long
{
    kNewRecordMark = 0,
    kWritesHost = 0,
    kWritesOutlook = 1,
};

struct ClsOlRecord
{
    std::wstring ItemIndex; // position of the item in the folder's Items as decimal text; empty means no item
    long RecordState = 0;   // a RecordMark; a changed item is written to the host when kWritesHost
    StoredText EntryId{};   // tells the item from all others; empty where its store gives none
    StoredText FirstKey{};  // its first match key, where there is no EntryId

    ClsOlRecord(std::wstring itemIndex, long recordState)
        : ItemIndex(std::move(itemIndex)), RecordState(recordState)
    {
    }
};

struct ClsSalesRecord
{
    long RecordBookmark = 0; // position of the row, used with ADO's Move
    long RecordState = 0;    // a RecordMark; a changed row is written to Outlook when kWritesOutlook
    StoredText Key{};        // the row's key column; empty where it is not known

    ClsSalesRecord(long recordBookmark, long recordState)
        : RecordBookmark(recordBookmark), RecordState(recordState)
    {
    }
};

using ClsOlRecords = RecordCollection<ClsOlRecord>;
using ClsSalesRecords = RecordCollection<ClsSalesRecord>;

// The four collections of a run, by role.
struct Changes
{
    ClsSalesRecords NewHostRecords;     // host rows to be created in Outlook
    ClsSalesRecords ChangedHostRecords; // host rows with a partner
    ClsOlRecords ChangedOutlookItems;   // the partners, in the same order
    ClsOlRecords NewOutlookItems;       // items to be created in the host
};

} // namespace data
