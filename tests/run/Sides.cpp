#include "tests/run/Sides.h"

#include "automation/Error.h"

#include <gtest/gtest.h>

namespace test_support
{

namespace
{

using automation::Error;
using sandbox::Call;
using sandbox::DispatchObject;
using sandbox::MakeObject;
using sandbox::MemberTable;
using sandbox::Reads;

const Value& Read(const Record& record, const std::wstring& name)
{
    const auto found = record.find(name);
    if (found == record.end())
    {
        throw Error(E_FAIL, name, L"This value cannot be read");
    }
    return found->second;
}

class FakeItem : public DispatchObject
{
  public:
    FakeItem(std::shared_ptr<const Record> record, long position)
        : mRecord(std::move(record)), mPosition(position)
    {
    }

  private:
    template<size_t Index>
    Value Property(const Call&)
    {
        return Read(*mRecord, Members()[Index].name);
    }

    Value EntryId(const Call&) { return EntryIdAt(mPosition); }

    // The pattern's properties stand in the record of the item.
    Value Pattern(const Call&) { return MakeObject<FakeItem>(mRecord, mPosition); }

    const wchar_t* ClassName() const override { return L"Item"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"LastName", Reads(&FakeItem::Property<0>), nullptr},
            {L"FirstName", Reads(&FakeItem::Property<1>), nullptr},
            {L"CompanyName", Reads(&FakeItem::Property<2>), nullptr},
            {L"Subject", Reads(&FakeItem::Property<3>), nullptr},
            {L"Categories", Reads(&FakeItem::Property<4>), nullptr},
            {L"StartDate", Reads(&FakeItem::Property<5>), nullptr},
            {L"Companies", Reads(&FakeItem::Property<6>), nullptr},
            {L"Start", Reads(&FakeItem::Property<7>), nullptr},
            {L"Complete", Reads(&FakeItem::Property<8>), nullptr},
            {L"AllDayEvent", Reads(&FakeItem::Property<9>), nullptr},
            {L"End", Reads(&FakeItem::Property<10>), nullptr},
            {L"IsRecurring", Reads(&FakeItem::Property<11>), nullptr},
            {L"NoEndDate", Reads(&FakeItem::Property<12>), nullptr},
            {L"PatternEndDate", Reads(&FakeItem::Property<13>), nullptr},
            {L"EntryID", Reads(&FakeItem::EntryId), nullptr},
            {L"GetRecurrencePattern", Reads(&FakeItem::Pattern), nullptr},
        };
        return table;
    }

    std::shared_ptr<const Record> mRecord;
    long mPosition;
};

class FakeItems : public DispatchObject
{
  public:
    explicit FakeItems(std::shared_ptr<const Records> records) : mRecords(std::move(records)) {}

  private:
    Value Count(const Call&) { return static_cast<long>(mRecords->size()); }
    Value Item(const Call& call)
    {
        const long position = automation::LongOf(call.At(0));
        const Record& record = mRecords->at(static_cast<size_t>(position) - 1);
        if (record.empty())
        {
            throw Error(E_FAIL, L"Item", L"The item cannot be opened");
        }
        // Not a copy: the records stay as they are while a test holds an item.
        return MakeObject<FakeItem>(std::shared_ptr<const Record>(mRecords, &record), position);
    }

    const wchar_t* ClassName() const override { return L"Items"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"Count", Reads(&FakeItems::Count), nullptr},
            {L"Item", Reads(&FakeItems::Item), nullptr},
        };
        return table;
    }

    std::shared_ptr<const Records> mRecords;
};

struct Cursor
{
    std::shared_ptr<const Records> records;
    size_t at = 0;

    const Record& Current() const
    {
        if (at >= records->size())
        {
            throw Error(E_FAIL, L"Value", L"Either BOF or EOF is True");
        }
        return (*records)[at];
    }
};

class FakeField : public DispatchObject
{
  public:
    FakeField(std::shared_ptr<Cursor> cursor, std::wstring name)
        : mCursor(std::move(cursor)), mName(std::move(name))
    {
    }

  private:
    Value Get(const Call&)
    {
        // A record without a key of its own has its place as key.
        const Record& record = mCursor->Current();
        const bool isKey = mName == L"F_CNTCTID" || mName == L"F_ACTID";
        return isKey && !record.contains(mName) ? Value(std::to_wstring(mCursor->at)) : Read(record, mName);
    }

    const wchar_t* ClassName() const override { return L"Field"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{{L"Value", Reads(&FakeField::Get), nullptr}};
        return table;
    }

    std::shared_ptr<Cursor> mCursor;
    std::wstring mName;
};

class FakeRecordset : public DispatchObject
{
  public:
    explicit FakeRecordset(std::shared_ptr<const Records> records)
        : mCursor(std::make_shared<Cursor>(Cursor{std::move(records)}))
    {
    }

  private:
    size_t Size() const { return mCursor->records->size(); }

    Value AtEnd(const Call&) { return mCursor->at >= Size(); }
    Value AtStart(const Call&) { return Size() == 0; }
    Value MoveFirst(const Call&)
    {
        mCursor->at = 0;
        mCursor->Current(); // refused where there is no row
        return {};
    }
    Value MoveNext(const Call&)
    {
        mCursor->Current();
        ++mCursor->at;
        return {};
    }
    Value Move(const Call& call)
    {
        EXPECT_EQ(VT_R8, call.Raw(1).vt) << "bookmarks travel as doubles";
        mCursor->at = static_cast<size_t>(automation::LongOf(call.At(1))) - 1;
        return {};
    }
    Value AbsolutePosition(const Call&) { return static_cast<long>(mCursor->at) + 1; }
    Value RecordCount(const Call&) { return static_cast<long>(Size()); }
    Value Fields(const Call& call) { return MakeObject<FakeField>(mCursor, automation::TextOf(call.At(0))); }

    const wchar_t* ClassName() const override { return L"Recordset"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"EOF", Reads(&FakeRecordset::AtEnd), nullptr},
            {L"BOF", Reads(&FakeRecordset::AtStart), nullptr},
            {L"MoveFirst", Reads(&FakeRecordset::MoveFirst), nullptr},
            {L"MoveNext", Reads(&FakeRecordset::MoveNext), nullptr},
            {L"Move", Reads(&FakeRecordset::Move), nullptr},
            {L"AbsolutePosition", Reads(&FakeRecordset::AbsolutePosition), nullptr},
            {L"RecordCount", Reads(&FakeRecordset::RecordCount), nullptr},
            {L"Fields", Reads(&FakeRecordset::Fields), nullptr},
        };
        return table;
    }

    std::shared_ptr<Cursor> mCursor;
};

} // namespace

automation::Object MakeItems(std::shared_ptr<const Records> records)
{
    return MakeObject<FakeItems>(std::move(records));
}

std::wstring EntryIdAt(long position)
{
    return L"00E1" + std::to_wstring(position);
}

automation::Recordset MakeRows(std::shared_ptr<const Records> records)
{
    return automation::Recordset(MakeObject<FakeRecordset>(std::move(records)));
}

} // namespace test_support
