#include "sandbox/ado/Fields.h"

#include "automation/Error.h"
#include "sandbox/ado/FieldValues.h"

namespace sandbox
{

namespace
{

class Field : public DispatchObject
{
  public:
    Field(std::shared_ptr<Cursor> cursor, size_t column) : mCursor(std::move(cursor)), mColumn(column) {}

  private:
    Value Name(const Call&) { return mCursor->Columns()[mColumn].name; }
    Value Type(const Call&) { return AdoTypeOf(mCursor->Columns()[mColumn], mCursor->Behaviour()); }
    Value Get(const Call&) { return FieldValue(mCursor->Current(mColumn), mCursor->Behaviour()); }

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
