#include "sandbox/ado/SessionPool.h"

#include <utility>

namespace sandbox
{

namespace
{

SessionPool* gPool = nullptr;

} // namespace

SessionPool::SessionPool() noexcept
{
    gPool = this;
}

SessionPool::~SessionPool()
{
    gPool = nullptr;
}

ResultSet SessionPool::Query(const std::wstring& connectionString, const std::wstring& sql)
{
    SessionPool* const pool = gPool != nullptr && gPool->mThread == GetCurrentThreadId() ? gPool : nullptr;
    if (pool == nullptr)
    {
        return Connection(connectionString).Query(sql);
    }
    std::unique_ptr<Connection> session = std::move(pool->mIdle);
    if (session == nullptr || pool->mConnectionString != connectionString)
    {
        session = std::make_unique<Connection>(connectionString);
    }
    ResultSet rows = session->Query(sql);
    pool->mIdle = std::move(session);
    pool->mConnectionString = connectionString;
    return rows;
}

} // namespace sandbox
