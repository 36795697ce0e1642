// OLE DB keeps the session of a connection that is given back for the next one with the same connection
// string (its resource pooling), since opening a database costs more than most queries of it.
#pragma once

#include "sandbox/database/Connection.h"

#include <memory>
#include <string>

#include <windows.h>

namespace sandbox
{

// As long as this lives, the recordsets of this thread open one session per connection string in turn and not
// one for each of them. One at a time, for tests that open thousands of recordsets.
class SessionPool
{
  public:
    SessionPool() noexcept;
    SessionPool(const SessionPool&) = delete;
    SessionPool& operator=(const SessionPool&) = delete;
    ~SessionPool();

    // The rows of a query in a session of the pool, where there is one, or in one of its own. Throws
    // automation::Error; the session is closed then.
    static ResultSet Query(const std::wstring& connectionString, const std::wstring& sql);

  private:
    DWORD mThread = GetCurrentThreadId();
    std::wstring mConnectionString;
    std::unique_ptr<Connection> mIdle;
};

} // namespace sandbox
