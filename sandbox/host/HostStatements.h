// The statements that callers of the host write, carried out on its database: the host's dialect is put into
// the database's, names and literals are checked first, and what the database itself refuses becomes the
// matching Rejection. All throw Rejection.
#pragma once

#include "sandbox/host/StoredValue.h"

#include <string>
#include <vector>

namespace sandbox
{

// In the host's dialect "+" joins texts ("F_SURNAME+F_GIVENNAME"); the database writes "||". A "+" beside a
// number stays what it is.
std::wstring InDatabaseDialect(const std::wstring& sql);

class HostStatements
{
  public:
    explicit HostStatements(Connection& database) : mDatabase(database) {}

    // The rows of a SELECT statement.
    ResultSet Select(const std::wstring& sql);
    // One row; 1.
    long Insert(const std::wstring& table, const std::wstring& fields, const std::wstring& values);
    // 0, or 1 where no row satisfies the condition.
    long Update(const std::wstring& table, const std::wstring& setList, const std::wstring& condition);
    // The number of rows that are gone.
    long Delete(const std::wstring& table, const std::wstring& condition);

    // The columns of a table that can be written, as declared.
    std::vector<HostColumn> ColumnsOf(const std::wstring& table);

  private:
    Connection& mDatabase;
};

} // namespace sandbox
