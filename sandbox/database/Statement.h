// One ODBC statement: executed with bound parameters, its rows fetched whole. Used by Connection only.
#pragma once

#include "automation/Text.h"
#include "sandbox/database/Connection.h"

// Text goes through the narrow entry points, as UTF-8: the driver has no wide ones, and on the way to a wide
// call's fake the driver manager would squeeze everything into Latin-1. Bound values are not affected.
#define SQL_NOUNICODEMAP

#include <windows.h>

#include <sql.h>
#include <sqlext.h>

namespace sandbox
{

// Throws automation::Error with the driver's words unless the call succeeded.
void CheckSql(SQLRETURN result, SQLSMALLINT handleType, SQLHANDLE handle);

// A text as the driver takes it.
class TextForDriver
{
  public:
    explicit TextForDriver(const std::wstring& text) : mText(automation::ToUtf8(text)) {}

    SQLCHAR* Data() noexcept { return reinterpret_cast<SQLCHAR*>(mText.data()); }

  private:
    std::string mText;
};

class Statement
{
  public:
    explicit Statement(SQLHDBC connection);
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement();

    void Execute(const std::wstring& sql, const Row& parameters);
    long ChangedRows();
    ResultSet FetchAll();

  private:
    std::vector<Column> DescribeColumns();
    Value Fetch(SQLUSMALLINT column, ColumnType type);
    Value FetchText(SQLUSMALLINT column);
    void Check(SQLRETURN result) { CheckSql(result, SQL_HANDLE_STMT, mStatement); }

    SQLHSTMT mStatement = SQL_NULL_HSTMT;
};

} // namespace sandbox
