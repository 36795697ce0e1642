#include "tests/tasks/RecordingHost.h"

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

const sandbox::MemberTable& RecordingHost::Members() const
{
    static const sandbox::MemberTable kMembers = {
        {L"OpenRecordsetByString", Reads(&RecordingHost::OpenRecordsetByString), {}},
        {L"Insert", Reads(&RecordingHost::Insert), {}},
        {L"Update", Reads(&RecordingHost::Update), {}},
        {L"NewGuid", Reads(&RecordingHost::NewGuid), {}},
        {L"BeginTrans", Reads(&RecordingHost::BeginTrans), {}},
        {L"CommitTrans", Reads(&RecordingHost::CommitTrans), {}},
        {L"RollbackTrans", Reads(&RecordingHost::RollbackTrans), {}},
        {L"InTransaction", Reads(&RecordingHost::InTransaction), {}},
        {L"MyInfo", Reads(&RecordingHost::MyInfo), {}},
        {L"UID", Reads(&RecordingHost::UserId), {}},
        {L"PermissionOn", Reads(&RecordingHost::PermissionOn), {}},
    };
    return kMembers;
}

void RecordingHost::Record(const wchar_t* member, const Call& call)
{
    std::wstring text = member;
    for (size_t i = 0; i < call.Count(); ++i)
    {
        text += (i == 0 ? L" " : L"|") + TextOf(call.At(i));
    }
    Calls.push_back(text);
}

Value RecordingHost::OpenRecordsetByString(const Call& call)
{
    const std::wstring statement = TextOf(call.At(1));
    Calls.push_back(L"OpenRecordsetByString " + statement);
    const auto failing = Failing.find(statement);
    if (failing != Failing.end())
    {
        throw automation::Error(E_FAIL, L"OpenRecordsetByString", failing->second);
    }
    const auto found = Found.find(statement);
    const std::wstring column = statement.substr(7, statement.find_first_of(L"\r ", 7) - 7);
    const std::wstring answer = found == Found.end() ? L"SELECT '' AS " + column + L" WHERE 1=0"
                                                     : L"SELECT '" + found->second + L"' AS " + column;
    call.Write(0, automation::OpenRecordset(answer, state::Shared().gCnnString, {}).AsObject());
    return 0L;
}

Value RecordingHost::Insert(const Call& call)
{
    Record(L"Insert", call);
    return Results[TextOf(call.At(0))];
}

Value RecordingHost::Update(const Call& call)
{
    Record(L"Update", call);
    return Results[TextOf(call.At(0))];
}

Value RecordingHost::NewGuid(const Call& /*call*/)
{
    return L"KEY" + std::to_wstring(++mKeys);
}

Value RecordingHost::BeginTrans(const Call& call)
{
    Record(L"BeginTrans", call);
    mInTransaction = HasTransactions;
    return {};
}

Value RecordingHost::CommitTrans(const Call& call)
{
    Record(L"CommitTrans", call);
    mInTransaction = false;
    return {};
}

Value RecordingHost::RollbackTrans(const Call& call)
{
    Record(L"RollbackTrans", call);
    mInTransaction = false;
    return {};
}

Value RecordingHost::InTransaction(const Call& /*call*/)
{
    return mInTransaction;
}

Value RecordingHost::MyInfo(const Call& /*call*/)
{
    return automation::Object(this);
}

Value RecordingHost::UserId(const Call& /*call*/)
{
    return L"7";
}

Value RecordingHost::PermissionOn(const Call& call)
{
    const Right right{LongOf(call.At(0)), LongOf(call.At(1)), LongOf(call.At(2))};
    Asked.push_back(right);
    return Denied.contains(right) ? 1L : 0L;
}

} // namespace test_support
