#include "tests/run/FakeFolder.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <algorithm>
#include <vector>

#include <oleauto.h>

namespace test_support
{

namespace
{

using automation::Object;
using sandbox::Call;
using sandbox::DispatchObject;
using sandbox::MakeObject;
using sandbox::MemberTable;
using sandbox::Reads;

constexpr size_t kTextLength = 255;

Value ErrorCell()
{
    VARIANT error{};
    error.vt = VT_ERROR;
    error.scode = E_FAIL;
    return Value(error);
}

Value AsInTable(const Value& value)
{
    return value.Type() == VT_BSTR
               ? Value(automation::Replaced(automation::TextOf(value), L"; ", L", ").substr(0, kTextLength))
               : value;
}

struct TableData
{
    std::shared_ptr<const Records> records;
    std::wstring messageClass;
    std::vector<std::wstring> columns{};
    size_t next = 0;

    Value Cell(size_t row, const std::wstring& column) const
    {
        if (column == L"EntryID")
        {
            return EntryIdAt(static_cast<long>(row) + 1);
        }
        if (column == L"MessageClass")
        {
            return messageClass;
        }
        const auto value = (*records)[row].find(column);
        return value == (*records)[row].end() ? ErrorCell() : AsInTable(value->second);
    }
};

class FakeColumns : public DispatchObject
{
  public:
    explicit FakeColumns(std::shared_ptr<TableData> data) : mData(std::move(data)) {}

  private:
    Value RemoveAll(const Call&)
    {
        mData->columns.clear();
        return {};
    }
    Value Add(const Call& call)
    {
        mData->columns.push_back(automation::TextOf(call.At(0)));
        return {};
    }

    const wchar_t* ClassName() const override { return L"Columns"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"RemoveAll", Reads(&FakeColumns::RemoveAll), nullptr},
            {L"Add", Reads(&FakeColumns::Add), nullptr},
        };
        return table;
    }

    std::shared_ptr<TableData> mData;
};

class FakeTable : public DispatchObject
{
  public:
    explicit FakeTable(TableData data) : mData(std::make_shared<TableData>(std::move(data))) {}

  private:
    Value Columns(const Call&) { return MakeObject<FakeColumns>(mData); }
    Value GetRowCount(const Call&) { return static_cast<long>(mData->records->size()); }
    Value GetArray(const Call& call)
    {
        const size_t rows = std::min(static_cast<size_t>(automation::LongOf(call.At(0))),
                                     mData->records->size() - mData->next);
        SAFEARRAYBOUND bounds[] = {{static_cast<ULONG>(mData->columns.size()), 0},
                                   {static_cast<ULONG>(rows), 0}};
        Value result;
        VARIANT* const array = result.Receive();
        array->parray = SafeArrayCreate(VT_VARIANT, 2, bounds);
        array->vt = VT_ARRAY | VT_VARIANT;
        for (size_t row = 0; row < rows; ++row)
        {
            for (size_t column = 0; column < mData->columns.size(); ++column)
            {
                const Value cell = mData->Cell(mData->next + row, mData->columns[column]);
                LONG at[] = {static_cast<LONG>(column), static_cast<LONG>(row)};
                automation::Check(SafeArrayPutElement(array->parray, at, const_cast<VARIANT*>(&cell.Raw())),
                                  L"array");
            }
        }
        mData->next += rows;
        return result;
    }

    const wchar_t* ClassName() const override { return L"Table"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"Columns", Reads(&FakeTable::Columns), nullptr},
            {L"GetRowCount", Reads(&FakeTable::GetRowCount), nullptr},
            {L"GetArray", Reads(&FakeTable::GetArray), nullptr},
        };
        return table;
    }

    std::shared_ptr<TableData> mData;
};

class FakeFolder : public DispatchObject
{
  public:
    FakeFolder(std::shared_ptr<const Records> records, std::wstring messageClass)
        : mRecords(std::move(records)), mMessageClass(std::move(messageClass))
    {
    }

  private:
    Value GetTable(const Call&) { return MakeObject<FakeTable>(TableData{mRecords, mMessageClass}); }
    Value Id(const Call&) { return L"Folder"; }

    const wchar_t* ClassName() const override { return L"Folder"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"GetTable", Reads(&FakeFolder::GetTable), nullptr},
            {L"EntryID", Reads(&FakeFolder::Id), nullptr},
            {L"StoreID", Reads(&FakeFolder::Id), nullptr},
        };
        return table;
    }

    std::shared_ptr<const Records> mRecords;
    std::wstring mMessageClass;
};

class FakeNamespace : public DispatchObject
{
  public:
    explicit FakeNamespace(std::shared_ptr<const Records> records) : mRecords(std::move(records)) {}

  private:
    Value GetItemFromId(const Call& call)
    {
        for (long position = 1; position <= static_cast<long>(mRecords->size()); ++position)
        {
            if (EntryIdAt(position) == automation::TextOf(call.At(0)))
            {
                return MakeItems(mRecords).GetObject(L"Item", position);
            }
        }
        throw automation::Error(automation::kItemNotFound, L"GetItemFromID");
    }

    const wchar_t* ClassName() const override { return L"NameSpace"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{{L"GetItemFromID", Reads(&FakeNamespace::GetItemFromId), nullptr}};
        return table;
    }

    std::shared_ptr<const Records> mRecords;
};

} // namespace

Object MakeFolder(std::shared_ptr<const Records> records, std::wstring messageClass)
{
    return MakeObject<FakeFolder>(std::move(records), std::move(messageClass));
}

Object MakeNamespace(std::shared_ptr<const Records> records)
{
    return MakeObject<FakeNamespace>(std::move(records));
}

} // namespace test_support
