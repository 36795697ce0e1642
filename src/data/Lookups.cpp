#include "data/Lookups.h"

#include "automation/Error.h"
#include "data/Host.h"
#include "data/Literals.h"

namespace data
{

using automation::Value;

Value FindByCondition(const std::wstring& table, const std::wstring& condition,
                      const std::wstring& resultColumn)
{
    return ValueInFirstRow(L"SELECT " + resultColumn + L"\r\nFROM " + table + L"\r\nWHERE " + condition,
                           resultColumn);
}

Value FindValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                const std::wstring& resultColumn)
{
    return FindByCondition(table, keyColumn + L"= " + QuotedText(key), resultColumn);
}

Value ValueInFirstRow(const std::wstring& statement, const std::wstring& column)
{
    automation::Recordset rows;
    const automation::RecordsetCloser closer(rows);
    const long status = Host().OpenRecordsetByString(rows, statement);
    ThrowUnless(status >= 0, L"OpenRecordsetByString", status);
    return rows.AtEnd() ? Value(L"") : rows.ValueOf(column);
}

} // namespace data
