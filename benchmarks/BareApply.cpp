#include "benchmarks/BareApply.h"

#include <map>

namespace benchmarks
{

using automation::Value;

namespace
{

// The columns of the host rows, each with its field object.
class Columns
{
  public:
    explicit Columns(const exchange::Run& run)
        : mRows(run.HostRows.AsObject()), mFieldsId(mRows.IdOf(L"Fields"))
    {
    }

    Value Read(const wchar_t* column)
    {
        auto field = mFields.find(column);
        if (field == mFields.end())
        {
            const RawObject object(mRows.Get(mFieldsId, column));
            field = mFields.emplace(column, std::make_pair(object, object.IdOf(L"Value"))).first;
        }
        return field->second.first.Get(field->second.second);
    }

  private:
    RawObject mRows;
    DISPID mFieldsId;
    std::map<const wchar_t*, std::pair<RawObject, DISPID>> mFields; // by the one text of the steps
};

// The DISPIDs of one item, or of one item class.
class MemberIds
{
  public:
    explicit MemberIds(Ids policy) : mPolicy(policy) {}

    void NextObject()
    {
        if (mPolicy == Ids::PerObject)
        {
            mIds.clear();
        }
    }

    DISPID Of(const RawObject& object, const wchar_t* member)
    {
        for (const auto& [known, id] : mIds)
        {
            if (std::wcscmp(known, member) == 0)
            {
                return id;
            }
        }
        return mIds.emplace_back(member, object.IdOf(member)).second;
    }

  private:
    Ids mPolicy;
    std::vector<std::pair<const wchar_t*, DISPID>> mIds;
};

void WriteItem(const Kind& kind, const RawObject& item, Columns& columns, MemberIds& ids)
{
    ids.NextObject();
    std::vector<Value> read;
    for (const Step& step : kind.StepsToOutlook)
    {
        switch (step.Does)
        {
        case Step::Column: {
            Value value = columns.Read(step.Name);
            read.push_back(automation::IsEmptyOrNull(value) ? Value() : std::move(value));
            break;
        }
        case Step::Get: item.Get(ids.Of(item, step.Name)); break;
        case Step::Put:
            item.Put(ids.Of(item, step.Name), step.Value == nullptr ? read.back() : step.Value(read));
            break;
        case Step::Save: item.Get(ids.Of(item, L"Save")); break;
        }
    }
}

// Moves the rows to the place of a record.
class Mover
{
  public:
    explicit Mover(const exchange::Run& run) : mRows(run.HostRows.AsObject()), mId(mRows.IdOf(L"Move")) {}

    void To(long position) const
    {
        const Value bookmark(static_cast<double>(position));
        const Value none(0L);
        VARIANT reversed[] = {bookmark.Raw(), none.Raw()};
        mRows.Invoke(mId, DISPATCH_METHOD | DISPATCH_PROPERTYGET, reversed, 2);
    }

  private:
    RawObject mRows;
    DISPID mId;
};

void ReadItem(const Kind& kind, const RawObject& item)
{
    for (const wchar_t* property : kind.ReadFromOutlook)
    {
        item.Get(item.IdOf(property));
    }
}

} // namespace

void WriteBareToOutlook(const Kind& kind, const exchange::Run& run, Ids policy)
{
    const RawObject items(run.Items);
    const DISPID addId = items.IdOf(L"Add");
    const DISPID itemId = items.IdOf(L"Item");
    const Mover rows(run);
    Columns columns(run);
    MemberIds ids(policy);
    for (const data::ClsSalesRecord& record : run.Pending.NewHostRecords)
    {
        rows.To(record.RecordBookmark);
        WriteItem(kind, RawObject(items.Get(addId, kind.ItemType)), columns, ids);
    }
    long position = 0;
    for (const data::ClsSalesRecord& record : run.Pending.ChangedHostRecords)
    {
        rows.To(record.RecordBookmark);
        const long index = std::stol(run.Pending.ChangedOutlookItems.Item(++position).ItemIndex);
        WriteItem(kind, RawObject(items.Get(itemId, index)), columns, ids);
    }
}

void WriteBareFromOutlook(const Kind& kind, const exchange::Run& run, const HostCalls& hostCalls,
                          const automation::Object& host)
{
    const RawObject items(run.Items);
    const DISPID itemId = items.IdOf(L"Item");
    const Mover rows(run);
    Columns columns(run);
    for (const data::ClsOlRecord& record : run.Pending.NewOutlookItems)
    {
        ReadItem(kind, RawObject(items.Get(itemId, std::stol(record.ItemIndex))));
    }
    long position = 0;
    for (const data::ClsOlRecord& record : run.Pending.ChangedOutlookItems)
    {
        rows.To(run.Pending.ChangedHostRecords.Item(++position).RecordBookmark);
        ReadItem(kind, RawObject(items.Get(itemId, std::stol(record.ItemIndex))));
        columns.Read(kind.RowId);
    }
    Replay(hostCalls, host);
}

} // namespace benchmarks
