#include "tests/tasks/ScriptedHost.h"

#include "automation/Error.h"
#include "automation/Recordset.h"
#include "state/SharedState.h"

namespace test_support
{

using automation::LongOf;
using automation::TextOf;
using automation::Value;
using sandbox::Call;
using sandbox::Reads;

const sandbox::MemberTable& ScriptedHost::Members() const
{
    static const sandbox::MemberTable kMembers = {
        {L"OpenRecordsetByString", Reads(&ScriptedHost::OpenRecordsetByString), {}},
        {L"Insert", Reads(&ScriptedHost::Insert), {}},
        {L"Update", Reads(&ScriptedHost::Update), {}},
        {L"NewGuid", Reads(&ScriptedHost::NewGuid), {}},
        {L"BeginTrans", Reads(&ScriptedHost::BeginTrans), {}},
        {L"CommitTrans", Reads(&ScriptedHost::CommitTrans), {}},
        {L"RollbackTrans", Reads(&ScriptedHost::RollbackTrans), {}},
        {L"InTransaction", Reads(&ScriptedHost::InTransaction), {}},
        {L"MyInfo", Reads(&ScriptedHost::MyInfo), {}},
        {L"UID", Reads(&ScriptedHost::UserId), {}},
        {L"PermissionOn", Reads(&ScriptedHost::PermissionOn), {}},
    };
    return kMembers;
}

void ScriptedHost::Record(const wchar_t* member, const Call& call)
{
    std::wstring text = member;
    for (size_t i = 0; i < call.Count(); ++i)
    {
        text += (i == 0 ? L" " : L"|") + TextOf(call.At(i));
    }
    Calls.push_back(text);
}

Value ScriptedHost::OpenRecordsetByString(const Call& call)
{
    const std::wstring statement = TextOf(call.At(1));
    Calls.push_back(L"OpenRecordsetByString " + statement);
    const auto failing = Failing.find(statement);
    if (failing != Failing.end())
    {
        throw automation::Error(FailureCode, L"OpenRecordsetByString", failing->second);
    }
    const auto found = Found.find(statement);
    const std::wstring column = statement.substr(7, statement.find_first_of(L"\r ", 7) - 7);
    const std::wstring answer = found == Found.end() ? L"SELECT '' AS " + column + L" WHERE 1=0"
                                                     : L"SELECT '" + found->second + L"' AS " + column;
    call.Write(0, automation::OpenRecordset(answer, state::Shared().gCnnString, {}).AsObject());
    return 0L;
}

Value ScriptedHost::Insert(const Call& call)
{
    Record(L"Insert", call);
    return Results[TextOf(call.At(0))];
}

Value ScriptedHost::Update(const Call& call)
{
    Record(L"Update", call);
    return Results[TextOf(call.At(0))];
}

Value ScriptedHost::NewGuid(const Call& /*call*/)
{
    return L"KEY" + std::to_wstring(++mKeys);
}

Value ScriptedHost::BeginTrans(const Call& call)
{
    Record(L"BeginTrans", call);
    mInTransaction = HasTransactions;
    return {};
}

Value ScriptedHost::CommitTrans(const Call& call)
{
    Record(L"CommitTrans", call);
    mInTransaction = false;
    return {};
}

Value ScriptedHost::RollbackTrans(const Call& call)
{
    Record(L"RollbackTrans", call);
    mInTransaction = false;
    return {};
}

Value ScriptedHost::InTransaction(const Call& /*call*/)
{
    ++TransactionAsked;
    return mInTransaction;
}

Value ScriptedHost::MyInfo(const Call& /*call*/)
{
    return automation::Object(this);
}

Value ScriptedHost::UserId(const Call& /*call*/)
{
    return L"7";
}

Value ScriptedHost::PermissionOn(const Call& call)
{
    const Right right{LongOf(call.At(0)), LongOf(call.At(1)), LongOf(call.At(2))};
    Asked.push_back(right);
    return Denied.contains(right) ? 1L : 0L;
}

} // namespace test_support
