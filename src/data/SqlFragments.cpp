#include "data/SqlFragments.h"

#include "data/FieldFormat.h"
#include "state/Failures.h"

#include <optional>

namespace data
{

using automation::Value;

namespace
{

bool IsWritable(const std::wstring& column)
{
    return column.starts_with(L"F_");
}

// Nothing when the value cannot be formatted.
std::optional<std::wstring> LiteralOf(FieldCatalogue& catalogue, const std::wstring& column, Value value)
{
    if (IsAbsent(value))
    {
        return L"NULL";
    }
    if (FormatFieldlValue(catalogue, column, value) != 0)
    {
        return std::nullopt;
    }
    return automation::TextOf(value);
}

// Hands the column's literal to append. The routine's own trap stands around everything that it does.
template<typename Append>
long AddField(FieldCatalogue& catalogue, const std::wstring& column, const Value& value, Append append)
{
    if (!IsWritable(column))
    {
        return 0;
    }
    return state::Trapped(-1L, [&] {
        const std::optional<std::wstring> literal = LiteralOf(catalogue, column, value);
        if (!literal)
        {
            state::LogError();
            return -1L;
        }
        append(*literal);
        return 0L;
    });
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
    return AddField(catalogue, column, value, [&](const std::wstring& literal) {
        AppendEntry(fields, column);
        AppendEntry(values, literal);
    });
}

long AddUpdateField(FieldCatalogue& catalogue, std::wstring& setList, const std::wstring& column,
                    const Value& value)
{
    return AddField(catalogue, column, value,
                    [&](const std::wstring& literal) { AppendEntry(setList, column + L"=" + literal); });
}

} // namespace data
