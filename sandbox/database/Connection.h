// A database over ODBC, as the fakes use it: statements with parameters, rows fetched whole, values typed
// by the declared types of their columns. Errors are automation::Error with the driver's own words.
#pragma once

#include "automation/Value.h"

#include <memory>
#include <string>
#include <vector>

namespace sandbox
{

using automation::Value;

// The declared type of a result column, as far as values differ by it.
enum class ColumnType
{
    Text,
    Integer,
    Double,
    Truth,
    Date, // date, time or both, as an automation date
};

struct Column
{
    std::wstring name;
    ColumnType type = ColumnType::Text;
};

using Row = std::vector<Value>;

struct ResultSet
{
    std::vector<Column> columns;
    std::vector<Row> rows;

    // The index of a column by its name in any letter case, or npos.
    size_t IndexOf(const std::wstring& name) const;
    static constexpr size_t npos = static_cast<size_t>(-1);
};

class Connection
{
  public:
    // An ordinary ODBC connection string, for example "Driver=SQLite3;Database=Z:\data\host.db". Throws
    // automation::Error when the database cannot be opened.
    explicit Connection(const std::wstring& connectionString);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    // Runs a statement with the values of its "?" marks; the number of rows it changed.
    long Execute(const std::wstring& sql, const Row& parameters = {});
    // Runs a query and fetches all of its rows.
    ResultSet Query(const std::wstring& sql, const Row& parameters = {});
    // The first value of the first row; Null where there is none.
    Value QueryValue(const std::wstring& sql, const Row& parameters = {});

    // A commit that fails leaves the transaction pending, for another try or a rollback.
    void Begin();
    void Commit();
    void Rollback();
    bool InTransaction() const noexcept { return mInTransaction; }

    const std::wstring& ConnectionString() const noexcept { return mConnectionString; }

  private:
    struct Handles;

    void Open();
    void SetAutocommit(bool isOn);

    std::unique_ptr<Handles> mHandles;
    std::wstring mConnectionString;
    bool mInTransaction = false;
};

// The connection string of a database file, given by its Windows path.
std::wstring ConnectionStringOf(const std::wstring& path);

} // namespace sandbox
