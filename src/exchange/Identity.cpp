#include "exchange/Identity.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "state/Failures.h"
#include "state/Remarks.h"
#include "state/SharedState.h"

namespace exchange
{

using automation::Error;
using automation::Object;
using automation::Recordset;

namespace
{

bool HasKey(const Recordset& rows, const std::wstring& keyColumn, const std::wstring& key)
{
    try
    {
        return KeyOfRow(rows, keyColumn) == key;
    }
    catch (const Error& error)
    {
        if (!automation::IsGone(error))
        {
            throw;
        }
        return false;
    }
}

bool FindRow(const Recordset& rows, const std::wstring& keyColumn, const std::wstring& key)
{
    if (rows.HasNoRows())
    {
        return false;
    }
    for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext())
    {
        if (HasKey(rows, keyColumn, key))
        {
            return true;
        }
    }
    return false;
}

const FolderIds& IdsOfFolder(Run& run)
{
    if (!run.KnownFolderIds)
    {
        run.KnownFolderIds = {automation::TextOrEmpty(run.Folder.Get(L"StoreID")),
                              automation::TextOrEmpty(run.Folder.Get(L"EntryID"))};
    }
    return *run.KnownFolderIds;
}

// An item that was deleted may be found in the folder of deleted items.
bool IsInFolder(Run& run, const Object& item)
{
    return automation::TextOrEmpty(item.GetObject(L"Parent").Get(L"EntryID")) == IdsOfFolder(run).Entry;
}

Object ItemById(Run& run, const std::wstring& entryId)
{
    try
    {
        const Object item = OpenItem(run, entryId);
        return IsInFolder(run, item) ? item : Object();
    }
    catch (const Error& error)
    {
        if (!automation::IsGone(error))
        {
            throw;
        }
        return {};
    }
}

// An item whose store gives no EntryID is recognised by its match key alone.
bool HasFirstKey(const Run& run, const Object& item, data::StoredText key)
{
    return item && (key.IsEmpty() || !run.Identity.FirstKeyOf || run.Identity.FirstKeyOf(item) == key.Text());
}

} // namespace

std::wstring EntryIdOf(const Object& item)
{
    try
    {
        return automation::TextOrEmpty(item.Get(L"EntryID"));
    }
    catch (const Error& error)
    {
        if (!automation::IsMissingMember(error))
        {
            throw;
        }
        return {};
    }
}

std::wstring KeyOfRow(const Recordset& rows, const std::wstring& keyColumn)
{
    return automation::TextOrEmpty(rows.ValueOf(keyColumn));
}

bool GoToRow(const Recordset& rows, const std::wstring& keyColumn, long position, const std::wstring& key)
{
    if (keyColumn.empty() || key.empty())
    {
        rows.MoveTo(position);
        return true;
    }
    // A bookmark that is no position is refused, or leads elsewhere.
    const auto isThere = [&](auto move) {
        return state::Trapped(false, [&] {
            (rows.*move)(position);
            return KeyOfRow(rows, keyColumn) == key;
        });
    };
    return isThere(&Recordset::MoveTo) || isThere(&Recordset::GoTo) || FindRow(rows, keyColumn, key);
}

Object OpenItem(Run& run, const std::wstring& entryId)
{
    return state::Shared().gOlNamespace.GetObject(L"GetItemFromID", entryId, IdsOfFolder(run).Store);
}

Object ItemAt(const Object& items, long position)
{
    try
    {
        return items.GetObject(L"Item", position);
    }
    catch (const Error&)
    {
        if (position <= automation::LongOf(items.Get(L"Count")))
        {
            throw;
        }
        return {};
    }
}

Object ProposedItem(Run& run, const data::ClsOlRecord& record)
{
    const long position = static_cast<long>(automation::LeadingNumber(record.ItemIndex));
    if (record.EntryId.IsEmpty())
    {
        const Object item = ForPass(run, ItemAt(run.Items, position));
        return HasFirstKey(run, item, record.FirstKey) ? item : Object();
    }
    // An item that cannot be opened at the position may be another one by now.
    const Object item = state::Trapped(Object(), [&] { return ForPass(run, ItemAt(run.Items, position)); });
    const std::wstring entryId = record.EntryId.Text();
    return item && EntryIdOf(item) == entryId ? item : ForPass(run, ItemById(run, entryId));
}

bool MoveToProposedRow(Run& run, const data::ClsSalesRecord& record)
{
    return GoToRow(run.HostRows, run.Identity.KeyColumn, record.RecordBookmark, record.Key.Text());
}

bool AreStillAPair(const Run& run, const automation::ItemView& item)
{
    return !run.Identity.Matches || run.Identity.Matches(item, run.HostRows);
}

std::wstring NameOf(const Run& run, const Object& item)
{
    return item && run.Identity.NameOfItem ? run.Identity.NameOfItem(item) : std::wstring();
}

std::wstring NameOf(Run& run, const data::ClsSalesRecord& record)
{
    return run.Identity.NameOfRow && MoveToProposedRow(run, record) ? run.Identity.NameOfRow(run.HostRows)
                                                                    : std::wstring();
}

void Skip()
{
    state::Tell({.Why = state::Cause::Vanished});
}

bool IsGoneMeanwhile(Run& run, const Error& error, const data::ClsSalesRecord* row,
                     const data::ClsOlRecord* item)
{
    const auto areThere = [&] {
        return (row == nullptr || MoveToProposedRow(run, *row)) &&
               (item == nullptr || item->EntryId.IsEmpty() || ItemById(run, item->EntryId.Text()));
    };
    return automation::IsGone(error) || !state::Trapped(true, areThere);
}

} // namespace exchange
