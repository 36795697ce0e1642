#include "sandbox/ado/Recordset.h"

#include "automation/Error.h"
#include "sandbox/ado/Cursor.h"
#include "sandbox/ado/Fields.h"
#include "sandbox/ado/SessionPool.h"

namespace sandbox
{

namespace
{

using automation::Error;
using automation::LongOf;
using automation::TextOf;

constexpr long kStateClosed = 0;
constexpr long kStateOpen = 1;
constexpr long kCommandTable = 2;
constexpr long kServerCursor = 2;
constexpr long kClientCursor = 3;
constexpr long kUnspecified = -1;
constexpr long kForwardOnly = 0;
constexpr long kKeyset = 1;
constexpr long kStatic = 3;
constexpr long kReadOnly = 1;

long LongOr(const Value& value, long otherwise)
{
    return automation::IsMissing(value) ? otherwise : LongOf(value);
}

// The cursor that ADO gives for the one asked for.
long CursorTypeFor(long asked, long location)
{
    return location == kClientCursor ? kStatic : asked == kUnspecified ? kForwardOnly : asked;
}

class Recordset : public DispatchObject
{
  public:
    explicit Recordset(AwkwardAdo awkward) : mCursor(std::make_shared<Cursor>(std::move(awkward))) {}
    Recordset(ResultSet rows, AwkwardAdo awkward, Requery requery) : Recordset(std::move(awkward))
    {
        mCursorLocation = kClientCursor;
        mCursorType = mCursor->Behaviour().rows == RowsAs::Keyset ? kKeyset : kStatic;
        mCursor->Open(std::move(rows), false, std::move(requery));
    }

  private:
    Value Open(const Call& call)
    {
        RefuseWhileOpen();
        if (automation::IsMissing(call.At(1)))
        {
            throw Error(kNoConnection, L"Recordset",
                        L"The connection cannot be used to perform this operation. It is either closed or "
                        L"invalid in this context.");
        }
        const std::wstring source = TextOf(call.At(0));
        mCursorType = CursorTypeFor(LongOr(call.At(2), kUnspecified), mCursorLocation);
        mLockType = LongOr(call.At(3), kReadOnly);
        const bool isTable = LongOr(call.At(4), 1) == kCommandTable;
        const std::wstring sql = isTable ? L"SELECT * FROM " + source : source;
        const Requery query = [sql, connection = TextOf(call.At(1))] {
            return SessionPool::Query(connection, sql);
        };
        mCursor->Open(query(), mCursorType == kForwardOnly, mCursorType == kKeyset ? query : nullptr);
        return {};
    }

    Value Close(const Call&)
    {
        mCursor->Count(); // refuses when it is closed already
        mCursor->Close();
        return {};
    }

    Value State(const Call&) { return mCursor->IsOpen() ? kStateOpen : kStateClosed; }
    Value AtEnd(const Call&) { return mCursor->AtEnd(); }
    Value AtStart(const Call&) { return mCursor->AtStart(); }
    Value RecordCount(const Call&) { return mCursor->Count(); }

    Value MoveFirst(const Call&)
    {
        mCursor->GoToFirst();
        return {};
    }

    Value MoveLast(const Call&)
    {
        mCursor->GoToLast();
        return {};
    }

    Value MoveNext(const Call&)
    {
        mCursor->MoveBy(1);
        return {};
    }

    Value MovePrevious(const Call&)
    {
        mCursor->MoveBy(-1);
        return {};
    }

    Value Move(const Call& call)
    {
        const long rows = LongOf(call.At(0));
        const Value start = call.At(1);
        if (automation::IsMissing(start))
        {
            mCursor->MoveBy(rows);
        }
        else
        {
            mCursor->MoveBy(rows, automation::DoubleOf(start));
        }
        return {};
    }

    Value GetAbsolutePosition(const Call&) { return mCursor->Position(); }
    void PutAbsolutePosition(const Call& call) { mCursor->GoTo(LongOf(call.Assigned())); }

    Value GetBookmark(const Call&) { return mCursor->Bookmark(); }
    void PutBookmark(const Call& call) { mCursor->MoveBy(0, automation::DoubleOf(call.Assigned())); }

    // "Sort" and "Filter" are for clients' cursors; adFilterNone takes a filter away.
    Value GetSort(const Call&) { return mCursor->SortedBy(); }
    void PutSort(const Call& call) { mCursor->Sort(TextOf(call.Assigned())); }
    Value GetFilter(const Call&) { return mCursor->FilteredBy(); }
    void PutFilter(const Call& call)
    {
        const Value criteria = call.Assigned();
        mCursor->Filter(criteria.Type() == VT_BSTR ? TextOf(criteria) : std::wstring());
    }

    Value GetFields(const Call& call)
    {
        return call.Count() == 0 ? MakeFields(mCursor) : MakeField(mCursor, call.At(0));
    }

    Value GetCursorLocation(const Call&) { return mCursorLocation; }
    void PutCursorLocation(const Call& call)
    {
        RefuseWhileOpen();
        mCursorLocation = LongOf(call.Assigned());
    }
    Value GetCursorType(const Call&) { return mCursorType; }
    Value GetLockType(const Call&) { return mLockType; }

    void RefuseWhileOpen() const
    {
        if (mCursor->IsOpen())
        {
            throw Error(kObjectOpen, L"Recordset", L"Operation is not allowed when the object is open.");
        }
    }

    const wchar_t* ClassName() const override { return L"Recordset"; }
    int DefaultMember() const override { return 0; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"Fields", Reads(&Recordset::GetFields), nullptr},
            {L"Open", Reads(&Recordset::Open), nullptr},
            {L"Close", Reads(&Recordset::Close), nullptr},
            {L"State", Reads(&Recordset::State), nullptr},
            {L"EOF", Reads(&Recordset::AtEnd), nullptr},
            {L"BOF", Reads(&Recordset::AtStart), nullptr},
            {L"RecordCount", Reads(&Recordset::RecordCount), nullptr},
            {L"MoveFirst", Reads(&Recordset::MoveFirst), nullptr},
            {L"MoveLast", Reads(&Recordset::MoveLast), nullptr},
            {L"MoveNext", Reads(&Recordset::MoveNext), nullptr},
            {L"MovePrevious", Reads(&Recordset::MovePrevious), nullptr},
            {L"Move", Reads(&Recordset::Move), nullptr},
            {L"AbsolutePosition", Reads(&Recordset::GetAbsolutePosition),
             Writes(&Recordset::PutAbsolutePosition)},
            {L"Bookmark", Reads(&Recordset::GetBookmark), Writes(&Recordset::PutBookmark)},
            {L"Sort", Reads(&Recordset::GetSort), Writes(&Recordset::PutSort)},
            {L"Filter", Reads(&Recordset::GetFilter), Writes(&Recordset::PutFilter)},
            {L"CursorLocation", Reads(&Recordset::GetCursorLocation), Writes(&Recordset::PutCursorLocation)},
            {L"CursorType", Reads(&Recordset::GetCursorType), nullptr},
            {L"LockType", Reads(&Recordset::GetLockType), nullptr},
        };
        return table;
    }

    std::shared_ptr<Cursor> mCursor;
    long mCursorLocation = kServerCursor;
    long mCursorType = kForwardOnly;
    long mLockType = kReadOnly;
};

} // namespace

automation::Object MakeRecordset(AwkwardAdo awkward)
{
    return MakeObject<Recordset>(std::move(awkward));
}

automation::Object MakeRecordset(ResultSet rows, AwkwardAdo awkward, Requery requery)
{
    return MakeObject<Recordset>(std::move(rows), std::move(awkward), std::move(requery));
}

} // namespace sandbox
