#include "sandbox/database/Statement.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Text.h"

#include <cwchar>
#include <deque>
#include <limits>

namespace sandbox
{

namespace
{

using automation::Error;

// A parameter as the driver takes it: everything travels as text, which SQLite converts by the type of the
// column; dates in the one form that the databases use.
std::wstring TextOfParameter(const Value& value)
{
    if (value.Type() == VT_DATE)
    {
        return automation::Formatted(automation::DateOf(value), L"yyyy-mm-dd hh:mm:ss");
    }
    if (value.Type() == VT_BOOL)
    {
        return automation::TruthOf(value) ? L"1" : L"0";
    }
    return automation::TextOf(value);
}

ColumnType TypeOf(SQLSMALLINT sqlType)
{
    switch (sqlType)
    {
    case SQL_BIT: return ColumnType::Truth;
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT: return ColumnType::Integer;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_NUMERIC:
    case SQL_DECIMAL: return ColumnType::Double;
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIME:
    case SQL_TYPE_TIMESTAMP: return ColumnType::Date;
    default: return ColumnType::Text;
    }
}

// "yyyy-mm-dd[ hh:mm[:ss]]" or "hh:mm[:ss]"; Null for a text that is neither.
Value DateOfText(const std::wstring& text)
{
    automation::Moment moment;
    int read = std::swscanf(text.c_str(), L"%d-%d-%d %d:%d:%d", &moment.year, &moment.month, &moment.day,
                            &moment.hour, &moment.minute, &moment.second);
    if (read < 3)
    {
        moment = {};
        read = std::swscanf(text.c_str(), L"%d:%d:%d", &moment.hour, &moment.minute, &moment.second);
        if (read < 2)
        {
            return Value::Null();
        }
    }
    return automation::DateOf(moment);
}

std::wstring TextOfDriver(const SQLCHAR* text)
{
    return automation::FromUtf8(reinterpret_cast<const char*>(text));
}

bool IsLong(double number)
{
    return number >= std::numeric_limits<long>::min() && number <= std::numeric_limits<long>::max();
}

Value Typed(const Value& text, ColumnType type)
{
    if (type == ColumnType::Date)
    {
        return DateOfText(automation::TextOf(text));
    }
    const std::wstring digits = automation::TextOf(text);
    wchar_t* end = nullptr;
    const double number = std::wcstod(digits.c_str(), &end);
    if (end == digits.c_str() || *end != L'\0')
    {
        return text; // SQLite keeps what does not fit the declared type as it is
    }
    switch (type)
    {
    case ColumnType::Truth: return number != 0;
    case ColumnType::Integer: return IsLong(number) ? Value(static_cast<long>(number)) : Value(number);
    default: return number;
    }
}

} // namespace

void CheckSql(SQLRETURN result, SQLSMALLINT handleType, SQLHANDLE handle)
{
    if (SQL_SUCCEEDED(result) || result == SQL_NO_DATA)
    {
        return;
    }
    SQLCHAR state[6] = {};
    SQLCHAR text[1024] = {};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const bool hasText =
        handle != nullptr &&
        SQL_SUCCEEDED(SQLGetDiagRec(handleType, handle, 1, state, &native, text, ARRAYSIZE(text), &length));
    throw Error(E_FAIL, L"database",
                hasText ? TextOfDriver(text) : std::wstring(L"The database cannot be reached"));
}

Statement::Statement(SQLHDBC connection)
{
    CheckSql(SQLAllocHandle(SQL_HANDLE_STMT, connection, &mStatement), SQL_HANDLE_DBC, connection);
}

Statement::~Statement()
{
    SQLFreeHandle(SQL_HANDLE_STMT, mStatement);
}

void Statement::Execute(const std::wstring& sql, const Row& parameters)
{
    std::deque<std::wstring> texts;
    std::deque<SQLLEN> lengths;
    for (size_t i = 0; i < parameters.size(); ++i)
    {
        const bool isNull = automation::IsEmptyOrNull(parameters[i]);
        std::wstring& text = texts.emplace_back(isNull ? std::wstring() : TextOfParameter(parameters[i]));
        SQLLEN& length =
            lengths.emplace_back(isNull ? SQL_NULL_DATA : static_cast<SQLLEN>(text.size() * sizeof(wchar_t)));
        Check(SQLBindParameter(mStatement, static_cast<SQLUSMALLINT>(i + 1), SQL_PARAM_INPUT, SQL_C_WCHAR,
                               SQL_WVARCHAR, text.empty() ? 1 : text.size(), 0, text.data(), 0, &length));
    }
    TextForDriver text(sql);
    Check(SQLExecDirect(mStatement, text.Data(), SQL_NTS));
}

long Statement::ChangedRows()
{
    SQLLEN count = 0;
    Check(SQLRowCount(mStatement, &count));
    return static_cast<long>(count);
}

std::vector<Column> Statement::DescribeColumns()
{
    SQLSMALLINT count = 0;
    Check(SQLNumResultCols(mStatement, &count));
    std::vector<Column> columns;
    for (SQLSMALLINT i = 1; i <= count; ++i)
    {
        SQLCHAR name[256] = {};
        SQLSMALLINT length = 0;
        SQLSMALLINT type = 0;
        SQLULEN size = 0;
        SQLSMALLINT digits = 0;
        SQLSMALLINT nullable = 0;
        Check(SQLDescribeCol(mStatement, static_cast<SQLUSMALLINT>(i), name, ARRAYSIZE(name), &length, &type,
                             &size, &digits, &nullable));
        columns.push_back({TextOfDriver(name), TypeOf(type)});
    }
    return columns;
}

ResultSet Statement::FetchAll()
{
    ResultSet result{DescribeColumns(), {}};
    while (!result.columns.empty())
    {
        const SQLRETURN fetched = SQLFetch(mStatement);
        if (fetched == SQL_NO_DATA)
        {
            break;
        }
        Check(fetched);
        Row row;
        for (size_t i = 0; i < result.columns.size(); ++i)
        {
            row.push_back(Fetch(static_cast<SQLUSMALLINT>(i + 1), result.columns[i].type));
        }
        result.rows.push_back(std::move(row));
    }
    return result;
}

Value Statement::Fetch(SQLUSMALLINT column, ColumnType type)
{
    Value text = FetchText(column);
    return type == ColumnType::Text || automation::IsEmptyOrNull(text) ? text : Typed(text, type);
}

Value Statement::FetchText(SQLUSMALLINT column)
{
    std::wstring text;
    wchar_t part[1024];
    for (;;)
    {
        SQLLEN length = 0;
        const SQLRETURN result = SQLGetData(mStatement, column, SQL_C_WCHAR, part, sizeof part, &length);
        if (result == SQL_NO_DATA)
        {
            return text;
        }
        Check(result);
        if (length == SQL_NULL_DATA)
        {
            return Value::Null();
        }
        text += part;
        if (result == SQL_SUCCESS)
        {
            return text;
        }
    }
}

} // namespace sandbox
