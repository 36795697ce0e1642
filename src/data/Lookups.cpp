#include "data/Lookups.h"

#include "automation/Error.h"
#include "data/Host.h"
#include "state/Failures.h"

namespace data
{

using automation::Value;

namespace
{

// The condition follows "WHERE " as it is. Throws where the host refuses.
Value FindByCondition(const std::wstring& table, const std::wstring& condition,
                      const std::wstring& resultColumn)
{
    return ValueInFirstRow(L"SELECT " + resultColumn + L"\r\nFROM " + table + L"\r\nWHERE " + condition,
                           resultColumn);
}

} // namespace

Value FindValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                const std::wstring& resultColumn)
{
    return FindByCondition(table, keyColumn + L"= '" + key + L"'", resultColumn);
}

long LookupValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                 const std::wstring& resultColumn, Value& result)
{
    return state::Trapped(-1L, [&] {
        result = FindValue(table, keyColumn, key, resultColumn);
        return 0L;
    });
}

long LookupTypedValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                      const std::wstring& keyType, const std::wstring& resultColumn, Value& result)
{
    const bool quoted = keyType == kTextKey || keyType == kDateKey;
    return state::Trapped(-1L, [&] {
        result = FindByCondition(table, keyColumn + L"=" + (quoted ? L"'" + key + L"'" : key), resultColumn);
        return 0L;
    });
}

Value ValueInFirstRow(const std::wstring& statement, const std::wstring& column)
{
    automation::Recordset rows;
    const automation::ClosesRecordset closes(rows);
    Demand(Host().OpenRecordsetByString(rows, statement) >= 0, L"OpenRecordsetByString");
    return rows.AtEnd() ? Value(L"") : rows.ValueOf(column);
}

} // namespace data
