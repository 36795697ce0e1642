#include "data/Host.h"

#include "automation/Error.h"
#include "data/Literals.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"

namespace data
{

using automation::ByRef;
using automation::LongOf;
using automation::Object;
using automation::Recordset;
using automation::TextOf;
using automation::Value;

Host::Host() : mDtc(state::Shared().gDTC) {}

long Host::OpenRecordset(Recordset& recordset, const std::wstring& source, const std::wstring& filter) const
{
    Object filled = recordset.AsObject();
    const Value status = filter.empty()
                             ? mDtc.Call(L"OpenRecordset", ByRef(filled), source)
                             : mDtc.Call(L"OpenRecordset", ByRef(filled), source, Value::Missing(), filter);
    recordset = Recordset(filled);
    return LongOf(status);
}

long Host::OpenRecordsetByString(Recordset& recordset, const std::wstring& sql) const
{
    Object filled = recordset.AsObject();
    const Value status = mDtc.Call(L"OpenRecordsetByString", ByRef(filled), sql);
    recordset = Recordset(filled);
    return LongOf(status);
}

long Host::Insert(const std::wstring& table, std::wstring fields, std::wstring values,
                  std::wstring text) const
{
    return LongOf(mDtc.Call(L"Insert", table, ByRef(fields), ByRef(values), ByRef(text)));
}

long Host::Update(const std::wstring& table, std::wstring setList, const std::wstring& condition) const
{
    return LongOf(mDtc.Call(L"Update", table, ByRef(setList), L"", condition));
}

long Host::Delete(const std::wstring& table, const std::wstring& condition) const
{
    return LongOf(mDtc.Call(L"Delete", table, condition));
}

std::wstring Host::NewGuid() const
{
    return TextOf(mDtc.Call(L"NewGuid"));
}

std::wstring Host::UserId() const
{
    return TextOf(mDtc.GetObject(L"MyInfo").Get(L"UID"));
}

std::wstring Host::UserIdLiteral() const
{
    return NumberOrQuotedText(UserId());
}

long Host::PermissionOn(long module, long function, long right) const
{
    return LongOf(
        mDtc.GetObject(L"MyInfo").Call(L"PermissionOn", ByRef(module), ByRef(function), ByRef(right)));
}

automation::Date Host::SysDateTime() const
{
    return automation::DateOf(mDtc.Get(L"SysDateTime"));
}

void Host::BeginTrans() const
{
    mDtc.Call(L"BeginTrans");
}

bool Host::InTransaction() const
{
    return automation::TruthOf(mDtc.Get(L"InTransaction"));
}

void Host::CommitTrans() const
{
    mDtc.Call(L"CommitTrans");
}

void Host::RollbackTrans() const
{
    mDtc.Call(L"RollbackTrans");
}

void ThrowUnless(bool accepted, const wchar_t* member, long code)
{
    if (!accepted)
    {
        throw Refusal(code, member, resources::Choose(L"主系统报告操作失败", L"The host reported a failure"));
    }
}

Transaction::Transaction(const Host& host) : mHost(host)
{
    try
    {
        mHost.BeginTrans();
    }
    catch (...)
    {
        RollBack(); // the host may have begun it all the same, and the answer been lost
        throw;
    }
}

Transaction::~Transaction()
{
    if (mPending)
    {
        RollBack();
    }
}

// Also rolls back when the host does not answer: an open transaction would swallow every later write.
void Transaction::RollBack() noexcept
{
    const bool isPending = state::Trapped(true, [&] { return mHost.InTransaction(); });
    if (isPending)
    {
        state::Trapped([&] { mHost.RollbackTrans(); });
    }
}

void Transaction::Commit()
{
    if (mHost.InTransaction())
    {
        mHost.CommitTrans();
    }
    mPending = false;
}

} // namespace data
