// Confirms that a recorded position still leads to the record that was proposed: other programs and the
// server change folders, and hosts their rows, while a run works. Called by the collection and the apply
// passes.
#pragma once

#include "automation/Error.h"
#include "exchange/Run.h"

#include <string>

namespace exchange
{

// The item's EntryID; the empty text where its store gives none. Throws automation::Error.
std::wstring EntryIdOf(const automation::Object& item);

// The row's value in its key column; the empty text for none.
std::wstring KeyOfRow(const automation::Recordset& rows, const std::wstring& keyColumn);

// Moves to the row that was at the position: where another one is there by now, to where it is. False when it
// is gone. Without a key to tell it by, the position is taken as it is.
bool GoToRow(const automation::Recordset& rows, const std::wstring& keyColumn, long position,
             const std::wstring& key);

// The folder's item with this EntryID, wherever it is. Throws automation::Error, one of those of IsGone for
// an item that has been deleted for good.
automation::Object OpenItem(Run& run, const std::wstring& entryId);

// The item at a position of the folder's items; nothing behind the last one.
automation::Object ItemAt(const automation::Object& items, long position);

// The item that was proposed, made ready for a pass; nothing when it is gone.
automation::Object ProposedItem(Run& run, const data::ClsOlRecord& record);
// Moves the host's rows to the row that was proposed; false when it is gone.
bool MoveToProposedRow(Run& run, const data::ClsSalesRecord& record);
// Whether the two are the same record still.
bool AreStillAPair(const Run& run, const automation::ItemView& item);

// The names of an item and of the row that was proposed; empty where there is none any more.
std::wstring NameOf(const Run& run, const automation::Object& item);
std::wstring NameOf(Run& run, const data::ClsSalesRecord& record);

// A record that the user has accepted is gone, or no longer what was proposed: it is not written.
void Skip();

// Whether a record could not be written because the row or the item has gone meanwhile, however the failure
// is named. Null for a side that the record does not have.
bool IsGoneMeanwhile(Run& run, const automation::Error& error, const data::ClsSalesRecord* row,
                     const data::ClsOlRecord* item);

// Writes a record; skips it where the row or the item is gone, and throws any other error on.
template<typename Write>
void UnlessGone(Run& run, const data::ClsSalesRecord* row, const data::ClsOlRecord* item, Write&& write)
{
    try
    {
        write();
    }
    catch (const automation::Error& error)
    {
        if (!IsGoneMeanwhile(run, error, row, item))
        {
            throw;
        }
        Skip();
    }
}

} // namespace exchange
