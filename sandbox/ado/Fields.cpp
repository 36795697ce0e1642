#include "sandbox/ado/Fields.h"

#include "automation/Error.h"
#include "sandbox/ado/Recordset.h"

namespace sandbox
{

namespace
{

// ADO's DataTypeEnum, as far as used.
long AdoTypeOf(ColumnType type)
{
    switch (type)
    {
    case ColumnType::Integer: return 3;
    case ColumnType::Double: return 5;
    case ColumnType::Truth: return 11;
    case ColumnType::Date: return 135;
    default: return 202;
    }
}

class Field : public DispatchObject
{
  public:
    Field(std::shared_ptr<Cursor> cursor, size_t column) : mCursor(std::move(cursor)), mColumn(column) {}

  private:
    Value Name(const Call&) { return mCursor->Columns()[mColumn].name; }
    Value Type(const Call&) { return AdoTypeOf(mCursor->Columns()[mColumn].type); }
    Value Get(const Call&) { return mCursor->Current(mColumn); }

    const wchar_t* ClassName() const override { return L"Field"; }
    int DefaultMember() const override { return 0; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"Value", Reads(&Field::Get), nullptr},
            {L"Name", Reads(&Field::Name), nullptr},
            {L"Type", Reads(&Field::Type), nullptr},
        };
        return table;
    }

    std::shared_ptr<Cursor> mCursor;
    size_t mColumn;
};

class Fields : public DispatchObject
{
  public:
    explicit Fields(std::shared_ptr<Cursor> cursor) : mCursor(std::move(cursor)) {}

  private:
    Value Item(const Call& call) { return MakeField(mCursor, call.At(0)); }
    Value Count(const Call&) { return static_cast<long>(mCursor->Columns().size()); }

    const wchar_t* ClassName() const override { return L"Fields"; }
    int DefaultMember() const override { return 0; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"Item", Reads(&Fields::Item), nullptr},
            {L"Count", Reads(&Fields::Count), nullptr},
        };
        return table;
    }

    std::shared_ptr<Cursor> mCursor;
};

} // namespace

automation::Object MakeFields(std::shared_ptr<Cursor> cursor)
{
    return MakeObject<Fields>(std::move(cursor));
}

automation::Object MakeField(std::shared_ptr<Cursor> cursor, const Value& nameOrNumber)
{
    const size_t column = cursor->ColumnIndex(nameOrNumber);
    return MakeObject<Field>(std::move(cursor), column);
}

} // namespace sandbox
