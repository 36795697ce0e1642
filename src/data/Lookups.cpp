#include "data/Lookups.h"

#include "automation/Error.h"
#include "data/Host.h"
#include "state/Failures.h"

namespace data
{

using automation::Value;

namespace
{

// The condition follows "WHERE " as it is.
long LookupByCondition(const std::wstring& table, const std::wstring& condition,
                       const std::wstring& resultColumn, Value& result)
{
    return state::Trapped(-1L, [&] {
        result = ValueInFirstRow(L"SELECT " + resultColumn + L"\r\nFROM " + table + L"\r\nWHERE " + condition,
                                 resultColumn);
        return 0L;
    });
}

} // namespace

long LookupValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                 const std::wstring& resultColumn, Value& result)
{
    return LookupByCondition(table, keyColumn + L"= '" + key + L"'", resultColumn, result);
}

long LookupTypedValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                      const std::wstring& keyType, const std::wstring& resultColumn, Value& result)
{
    const bool quoted = keyType == kTextKey || keyType == kDateKey;
    return LookupByCondition(table, keyColumn + L"=" + (quoted ? L"'" + key + L"'" : key), resultColumn,
                             result);
}

Value ValueInFirstRow(const std::wstring& statement, const std::wstring& column)
{
    automation::Recordset rows;
    const automation::ClosesRecordset closes(rows);
    Demand(Host().OpenRecordsetByString(rows, statement) >= 0, L"OpenRecordsetByString");
    return rows.AtEnd() ? Value(L"") : rows.ValueOf(column);
}

} // namespace data
