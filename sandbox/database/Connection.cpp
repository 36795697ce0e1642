#include "sandbox/database/Connection.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "sandbox/database/Statement.h"

#include <algorithm>
#include <cwchar>

namespace sandbox
{

namespace
{

// Under Wine the driver is the system's own and knows no drives: it takes the path that Wine maps a file to.
std::wstring PathForDriver(const std::wstring& path)
{
    using GetUnixFileName = char*(CDECL*)(const wchar_t*);
    const auto getUnixFileName = reinterpret_cast<GetUnixFileName>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    if (getUnixFileName == nullptr || path.starts_with(L'/'))
    {
        return path;
    }
    char* name = getUnixFileName(path.c_str());
    if (name == nullptr)
    {
        throw automation::Error(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND), L"database");
    }
    std::wstring result = automation::FromUtf8(name);
    HeapFree(GetProcessHeap(), 0, name);
    return result;
}

// The position of the database's path in a connection string; a length of 0 for one that names no database.
struct PathSpan
{
    size_t start = 0;
    size_t length = 0;
};

PathSpan PathIn(const std::wstring& connectionString)
{
    constexpr std::wstring_view kKey = L"DATABASE=";
    const size_t key = automation::UpperCased(connectionString).find(kKey);
    if (key == std::wstring::npos)
    {
        return {};
    }
    const size_t start = key + kKey.size();
    return {start, std::min(connectionString.find(L';', start), connectionString.size()) - start};
}

std::wstring StringForDriver(std::wstring connectionString)
{
    const PathSpan path = PathIn(connectionString);
    return path.length == 0
               ? connectionString
               : connectionString.replace(path.start, path.length,
                                          PathForDriver(connectionString.substr(path.start, path.length)));
}

// The database's name in messages: its path, else the whole connection string.
std::wstring NameOf(const std::wstring& connectionString)
{
    const PathSpan path = PathIn(connectionString);
    return path.length == 0 ? connectionString : connectionString.substr(path.start, path.length);
}

} // namespace

size_t ResultSet::IndexOf(const std::wstring& name) const
{
    for (size_t i = 0; i < columns.size(); ++i)
    {
        if (_wcsicmp(columns[i].name.c_str(), name.c_str()) == 0)
        {
            return i;
        }
    }
    return npos;
}

struct Connection::Handles
{
    SQLHENV environment = SQL_NULL_HENV;
    SQLHDBC connection = SQL_NULL_HDBC;
    bool isConnected = false;

    ~Handles()
    {
        if (isConnected)
        {
            SQLDisconnect(connection);
        }
        if (connection != SQL_NULL_HDBC)
        {
            SQLFreeHandle(SQL_HANDLE_DBC, connection);
        }
        if (environment != SQL_NULL_HENV)
        {
            SQLFreeHandle(SQL_HANDLE_ENV, environment);
        }
    }
};

Connection::Connection(const std::wstring& connectionString)
    : mHandles(std::make_unique<Handles>()), mConnectionString(connectionString)
{
    try
    {
        Open();
    }
    catch (const automation::Error& error)
    {
        throw automation::Error(error.Code(), error.Member(),
                                NameOf(connectionString) + L": " + error.Description());
    }
}

void Connection::Open()
{
    Handles& handles = *mHandles;
    CheckSql(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &handles.environment), SQL_HANDLE_ENV, nullptr);
    SQLSetEnvAttr(handles.environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    CheckSql(SQLAllocHandle(SQL_HANDLE_DBC, handles.environment, &handles.connection), SQL_HANDLE_ENV,
             handles.environment);
    TextForDriver text(StringForDriver(mConnectionString));
    CheckSql(SQLDriverConnect(handles.connection, nullptr, text.Data(), SQL_NTS, nullptr, 0, nullptr,
                              SQL_DRIVER_NOPROMPT),
             SQL_HANDLE_DBC, handles.connection);
    handles.isConnected = true;
    // A file that is no database is refused here and not at the first use; the sandbox's data need not
    // survive a power failure, so nothing waits for the disk.
    Query(L"SELECT count(*) FROM sqlite_master");
    Query(L"PRAGMA synchronous=OFF");
}

Connection::~Connection()
{
    if (mInTransaction)
    {
        SQLEndTran(SQL_HANDLE_DBC, mHandles->connection, SQL_ROLLBACK);
    }
}

long Connection::Execute(const std::wstring& sql, const Row& parameters)
{
    Statement statement(mHandles->connection);
    statement.Execute(sql, parameters);
    return statement.ChangedRows();
}

ResultSet Connection::Query(const std::wstring& sql, const Row& parameters)
{
    Statement statement(mHandles->connection);
    statement.Execute(sql, parameters);
    return statement.FetchAll();
}

Value Connection::QueryValue(const std::wstring& sql, const Row& parameters)
{
    ResultSet result = Query(sql, parameters);
    return result.rows.empty() ? Value::Null() : std::move(result.rows.front().front());
}

void Connection::Begin()
{
    SetAutocommit(false);
    mInTransaction = true;
}

void Connection::Commit()
{
    CheckSql(SQLEndTran(SQL_HANDLE_DBC, mHandles->connection, SQL_COMMIT), SQL_HANDLE_DBC,
             mHandles->connection);
    mInTransaction = false;
    SetAutocommit(true);
}

void Connection::Rollback()
{
    const SQLRETURN result = SQLEndTran(SQL_HANDLE_DBC, mHandles->connection, SQL_ROLLBACK);
    mInTransaction = false;
    SetAutocommit(true);
    CheckSql(result, SQL_HANDLE_DBC, mHandles->connection);
}

void Connection::SetAutocommit(bool isOn)
{
    const SQLULEN value = isOn ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF;
    CheckSql(SQLSetConnectAttr(mHandles->connection, SQL_ATTR_AUTOCOMMIT, reinterpret_cast<SQLPOINTER>(value),
                               SQL_IS_UINTEGER),
             SQL_HANDLE_DBC, mHandles->connection);
}

std::wstring ConnectionStringOf(const std::wstring& path)
{
    return L"Driver=SQLite3;Timeout=1000;Database=" + path;
}

} // namespace sandbox
