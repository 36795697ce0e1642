#include "benchmarks/BareTable.h"

#include "automation/ValueGrid.h"
#include "benchmarks/BareCollection.h"
#include "benchmarks/RawObject.h"
#include "state/SharedState.h"

#include <algorithm>
#include <set>

namespace benchmarks
{

namespace
{

using automation::Value;

constexpr long kBlock = 500;

RawObject ObjectAt(const RawObject& of, const wchar_t* member)
{
    return RawObject(of.Get(of.IdOf(member)));
}

long NumberAt(const RawObject& of, const wchar_t* member)
{
    return automation::LongOf(of.Get(of.IdOf(member)));
}

RawObject TableWithColumns(const Kind& kind, const exchange::Run& run)
{
    RawObject table = ObjectAt(RawObject(run.Folder), L"GetTable");
    const RawObject columns = ObjectAt(table, L"Columns");
    columns.Get(columns.IdOf(L"RemoveAll"));
    const DISPID addId = columns.IdOf(L"Add");
    for (const wchar_t* column : {L"EntryID", L"MessageClass"})
    {
        columns.Get(addId, column);
    }
    for (const wchar_t* column : kind.TableColumns)
    {
        columns.Get(addId, column);
    }
    return table;
}

// The blocks of rows; their columns are those of TableWithColumns.
std::vector<automation::ValueGrid> ReadBlocks(const RawObject& table, long count)
{
    const DISPID arrayId = table.IdOf(L"GetArray");
    std::vector<automation::ValueGrid> blocks;
    for (long read = 0; read < count; read += blocks.back().Second())
    {
        blocks.emplace_back(table.Get(arrayId, std::min(count - read, kBlock)));
    }
    return blocks;
}

void ReadProperties(const RawObject& item, std::span<const wchar_t* const> properties)
{
    for (const wchar_t* property : properties)
    {
        item.Get(item.IdOf(property));
    }
}

// Two at the start and two others.
void ReadSample(const Kind& kind, const RawObject& items, long count)
{
    const DISPID itemId = items.IdOf(L"Item");
    for (const long position : std::set<long>{1, std::min(count, 2L), (count + 1) / 2, count})
    {
        const RawObject item(items.Get(itemId, position));
        item.Get(item.IdOf(L"EntryID"));
        ReadProperties(item, kind.ItemKeys);
        if (kind.SecondItemKey != nullptr && kind.TableHasSecondKey)
        {
            item.Get(item.IdOf(kind.SecondItemKey));
        }
    }
}

// The second keys of the first items, which have partners, where the table does not give them.
void ReadSecondKeys(const Kind& kind, const exchange::Run& run,
                    const std::vector<automation::ValueGrid>& blocks, long partners)
{
    const RawObject session(state::Shared().gOlNamespace);
    const DISPID openId = session.IdOf(L"GetItemFromID");
    const RawObject folder(run.Folder);
    const Value store = folder.Get(folder.IdOf(L"StoreID"));
    for (long position = 0; position < partners; ++position)
    {
        const Value entryId(blocks[static_cast<size_t>(position / kBlock)].At(0, position % kBlock));
        VARIANT reversed[] = {store.Raw(), entryId.Raw()};
        const RawObject item(session.Invoke(openId, DISPATCH_METHOD | DISPATCH_PROPERTYGET, reversed, 2));
        item.Get(item.IdOf(kind.SecondItemKey));
    }
}

} // namespace

void ReadBareTable(const Kind& kind, const exchange::Run& run)
{
    const RawObject items(run.Items);
    const long count = NumberAt(items, L"Count");
    const RawObject table = TableWithColumns(kind, run);
    const auto blocks = ReadBlocks(table, NumberAt(table, L"GetRowCount"));
    ReadSample(kind, items, count);
    if (kind.SecondItemKey != nullptr && !kind.TableHasSecondKey)
    {
        ReadSecondKeys(kind, run, blocks, PartnersAmongItems(count));
    }
    ReadBareRows(kind, run);
    NumberAt(items, L"Count"); // whether items have come or gone
}

} // namespace benchmarks
