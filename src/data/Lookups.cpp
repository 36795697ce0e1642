#include "data/Lookups.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "data/Host.h"
#include "data/Literals.h"
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

bool IsTruth(const std::wstring& key)
{
    const std::wstring word = automation::UpperCased(key);
    return word == L"TRUE" || word == L"FALSE";
}

std::wstring TypedLiteral(const std::wstring& key, const std::wstring& keyType)
{
    const bool isQuoted = keyType == kTextKey || keyType == kDateKey;
    const bool isWord = keyType == kFlagKey && IsTruth(key);
    return isQuoted ? QuotedText(key) : isWord ? key : NumberOrQuotedText(key);
}

} // namespace

Value FindValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                const std::wstring& resultColumn)
{
    return FindByCondition(table, keyColumn + L"= " + QuotedText(key), resultColumn);
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
    return state::Trapped(-1L, [&] {
        result = FindByCondition(table, keyColumn + L"=" + TypedLiteral(key, keyType), resultColumn);
        return 0L;
    });
}

Value ValueInFirstRow(const std::wstring& statement, const std::wstring& column)
{
    automation::Recordset rows;
    const automation::ClosesRecordset closes(rows);
    const long status = Host().OpenRecordsetByString(rows, statement);
    Demand(status >= 0, L"OpenRecordsetByString", status);
    return rows.AtEnd() ? Value(L"") : rows.ValueOf(column);
}

} // namespace data
