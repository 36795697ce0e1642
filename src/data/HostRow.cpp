#include "data/HostRow.h"

#include "data/FieldFormat.h"
#include "data/Host.h"
#include "data/Literals.h"

#include <utility>

namespace data
{

using automation::Value;

namespace
{

void AppendEntry(std::wstring& list, const std::wstring& entry)
{
    list += (list.empty() ? L"" : L",") + entry;
}

} // namespace

bool IsWritableColumn(const std::wstring& column)
{
    return column.starts_with(L"F_") && IsColumnName(column);
}

void HostRow::Add(const std::wstring& column, const Value& value)
{
    if (IsWritableColumn(column))
    {
        AddLiteral(column, LiteralOf(Catalogue(), column, value));
    }
}

InsertRow::InsertRow(FieldCatalogue& catalogue, std::wstring fields, std::wstring values)
    : HostRow(catalogue), mFields(std::move(fields)), mValues(std::move(values))
{
}

void InsertRow::AddLiteral(const std::wstring& column, const std::wstring& literal)
{
    AppendEntry(mFields, column);
    AppendEntry(mValues, literal);
}

void InsertRow::PutFirst(const std::wstring& columns, const std::wstring& literals)
{
    mFields.insert(0, columns + L",");
    mValues.insert(0, literals + L",");
}

void InsertRow::Insert(const Host& host, const std::wstring& table, const std::wstring& text) const
{
    ThrowUnless(host.Insert(table, mFields, mValues, text) >= 0, L"Insert");
}

UpdateRow::UpdateRow(FieldCatalogue& catalogue, std::wstring setList)
    : HostRow(catalogue), mSetList(std::move(setList))
{
}

void UpdateRow::AddLiteral(const std::wstring& column, const std::wstring& literal)
{
    AppendEntry(mSetList, column + L"=" + literal);
}

void UpdateRow::Update(const Host& host, const std::wstring& table, const std::wstring& keyColumn,
                       const std::wstring& key) const
{
    ThrowUnless(host.Update(table, mSetList, keyColumn + L"=" + QuotedText(key)) == 0, L"Update");
}

} // namespace data
