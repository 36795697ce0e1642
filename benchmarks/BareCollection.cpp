#include "benchmarks/BareCollection.h"

#include "benchmarks/RawObject.h"

namespace benchmarks
{

namespace
{

// The DISPIDs of the members that are read of each of many objects.
class KeyIds
{
  public:
    KeyIds(Ids policy, size_t count) : mPolicy(policy), mIds(count, DISPID_UNKNOWN) {}

    DISPID Of(const RawObject& object, size_t index, const wchar_t* member)
    {
        if (mPolicy == Ids::PerObject || mIds[index] == DISPID_UNKNOWN)
        {
            mIds[index] = object.IdOf(member);
        }
        return mIds[index];
    }

  private:
    Ids mPolicy;
    std::vector<DISPID> mIds;
};

void ReadItems(const Kind& kind, const exchange::Run& run, Ids policy)
{
    const RawObject items(run.Items);
    const long count = automation::LongOf(items.Get(items.IdOf(L"Count")));
    const DISPID itemId = items.IdOf(L"Item");
    KeyIds ids(policy, kind.ItemKeys.size() + 1);
    for (long position = 1; position <= count; ++position)
    {
        const RawObject item(items.Get(itemId, position));
        for (size_t key = 0; key < kind.ItemKeys.size(); ++key)
        {
            item.Get(ids.Of(item, key, kind.ItemKeys[key]));
        }
        if (kind.SecondItemKey != nullptr && position <= PartnersAmongItems(count))
        {
            item.Get(ids.Of(item, kind.ItemKeys.size(), kind.SecondItemKey));
        }
    }
}

struct RawField
{
    RawField(const RawObject& rows, const wchar_t* column)
        : Object(rows.Get(rows.IdOf(L"Fields"), column)), ValueId(Object.IdOf(L"Value"))
    {
    }

    void Read() const { Object.Get(ValueId); }

    RawObject Object;
    DISPID ValueId;
};

} // namespace

long PartnersAmongItems(long count)
{
    return count - count / 2;
}

void ReadBareRows(const Kind& kind, const exchange::Run& run)
{
    const RawObject rows(run.HostRows.AsObject());
    std::vector<RawField> keys;
    for (const wchar_t* column : kind.RowKeys)
    {
        keys.emplace_back(rows, column);
    }
    const bool hasSecond = kind.SecondRowKey != nullptr;
    const RawField second(rows, hasSecond ? kind.SecondRowKey : kind.RowKeys[0]);
    const long count = automation::LongOf(rows.Get(rows.IdOf(L"RecordCount")));
    const DISPID endId = rows.IdOf(L"EOF");
    const DISPID nextId = rows.IdOf(L"MoveNext");
    rows.Get(rows.IdOf(L"MoveFirst"));
    for (long position = 1; !automation::TruthOf(rows.Get(endId)); ++position)
    {
        for (const RawField& key : keys)
        {
            key.Read();
        }
        if (hasSecond && position > count / 2)
        {
            second.Read();
        }
        rows.Get(nextId);
    }
}

void ReadBare(const Kind& kind, const exchange::Run& run, Ids ids)
{
    ReadItems(kind, run, ids);
    ReadBareRows(kind, run);
}

} // namespace benchmarks
