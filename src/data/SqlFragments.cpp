#include "data/SqlFragments.h"

#include "data/FieldFormat.h"
#include "data/Literals.h"
#include "state/Failures.h"

namespace data
{

using automation::Value;

namespace
{

// A name that holds anything but a name would change the statement: it is no column of the host's either.
bool IsWritable(const std::wstring& column)
{
    return column.starts_with(L"F_") && IsColumnName(column);
}

} // namespace

void AppendEntry(std::wstring& list, std::wstring_view entry)
{
    if (!list.empty())
    {
        list += L',';
    }
    list += entry;
}

long AddInsertField(FieldCatalogue& catalogue, std::wstring& fields, const std::wstring& column,
                    std::wstring& values, const Value& value)
{
    return state::Trapped(-1L, [&] {
        InsertField(catalogue, fields, column, values, value);
        return 0L;
    });
}

long AddUpdateField(FieldCatalogue& catalogue, std::wstring& setList, const std::wstring& column,
                    const Value& value)
{
    return state::Trapped(-1L, [&] {
        UpdateField(catalogue, setList, column, value);
        return 0L;
    });
}

void InsertField(FieldCatalogue& catalogue, std::wstring& fields, const std::wstring& column,
                 std::wstring& values, const Value& value)
{
    if (IsWritable(column))
    {
        const std::wstring literal = LiteralOf(catalogue, column, value);
        AppendEntry(fields, column);
        AppendEntry(values, literal);
    }
}

void UpdateField(FieldCatalogue& catalogue, std::wstring& setList, const std::wstring& column,
                 const Value& value)
{
    if (IsWritable(column))
    {
        AppendEntry(setList, column + L"=" + LiteralOf(catalogue, column, value));
    }
}

} // namespace data
