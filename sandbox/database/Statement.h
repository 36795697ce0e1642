// One ODBC statement: executed with bound parameters, its rows fetched whole. Used by Connection only.
#pragma once

#include "sandbox/database/Connection.h"

#include <windows.h>

#include <sql.h>
#include <sqlext.h>

namespace sandbox
{

// Throws automation::Error with the driver's words unless the call succeeded.
void CheckSql(SQLRETURN result, SQLSMALLINT handleType, SQLHANDLE handle);

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
