#include "tests/support/FakeHost.h"

#include "automation/Error.h"
#include "state/SharedState.h"

#include <algorithm>

namespace test_support
{

namespace
{

using automation::LongOf;
using automation::TextOf;
using automation::Value;
using sandbox::Call;

constexpr long kRejected = -2; // by the database

std::wstring Written(const wchar_t* member, const Call& call)
{
    std::wstring text = std::wstring(member) + L"(";
    for (size_t i = 0; i < call.Count(); ++i)
    {
        const Value argument = call.At(i);
        text += i == 0 ? L"" : L"|";
        text += argument.Type() == VT_DISPATCH    ? (automation::ObjectOf(argument) ? L"rows" : L"nothing")
                : automation::IsMissing(argument) ? L"omitted"
                                                  : TextOf(argument);
    }
    return text + L")";
}

std::wstring Statement(const std::wstring& member, const Call& call)
{
    const std::wstring table = TextOf(call.At(0));
    if (member == L"Insert")
    {
        return L"INSERT INTO " + table + L" (" + TextOf(call.At(1)) + L") VALUES (" + TextOf(call.At(2)) +
               L")";
    }
    if (member == L"Update")
    {
        return L"UPDATE " + table + L" SET " + TextOf(call.At(1)) + L" WHERE " + TextOf(call.At(3));
    }
    return L"DELETE FROM " + table + L" WHERE " + TextOf(call.At(1));
}

} // namespace

FakeHost::Texts FakeHost::CallsOf(const std::wstring& member) const
{
    Texts found;
    std::ranges::copy_if(Calls, std::back_inserter(found),
                         [&](const std::wstring& call) { return call.starts_with(member + L"("); });
    return found;
}

void FakeHost::Find(const std::wstring& statement, const std::wstring& value)
{
    constexpr size_t kColumn = 7; // after "SELECT "
    const size_t end = statement.find_first_of(L"\r ", kColumn);
    RowsOf[statement] = {{{statement.substr(kColumn, end - kColumn)}}, {{value}}};
}

template<FakeHost::Body body>
sandbox::Member FakeHost::Row(const wchar_t* member)
{
    return {member,
            [member](sandbox::DispatchObject& self, const Call& call) {
                return static_cast<FakeHost&>(self).Run(member, body, call);
            },
            {}};
}

const sandbox::MemberTable& FakeHost::Members() const
{
    static const sandbox::MemberTable kMembers = {
        Row<&FakeHost::OpenRows>(L"OpenRecordset"),
        Row<&FakeHost::OpenRows>(L"OpenRecordsetByString"),
        Row<&FakeHost::Write>(L"Insert"),
        Row<&FakeHost::Write>(L"Update"),
        Row<&FakeHost::Write>(L"Delete"),
        Row<&FakeHost::NewGuid>(L"NewGuid"),
        Row<&FakeHost::Begin>(L"BeginTrans"),
        Row<&FakeHost::End>(L"CommitTrans"),
        Row<&FakeHost::End>(L"RollbackTrans"),
        Row<&FakeHost::InTransaction>(L"InTransaction"),
        Row<&FakeHost::Self>(L"MyInfo"),
        Row<&FakeHost::Uid>(L"UID"),
        Row<&FakeHost::Permit>(L"PermissionOn"),
        Row<&FakeHost::Clock>(L"SysDateTime"),
    };
    return kMembers;
}

Value FakeHost::Run(const wchar_t* member, Body body, const Call& call)
{
    ++Counts[member];
    if (!Unlogged.contains(member))
    {
        Calls.push_back(Written(member, call));
    }
    if (Failing.contains(member))
    {
        throw automation::Error(FailureCode, member, L"The host raised an error");
    }
    return (this->*body)(member, call);
}

long FakeHost::StatusOf(const std::wstring& member, const std::wstring& table) const
{
    const long refusal = Refuse ? Refuse(member) : 0;
    if (refusal < 0)
    {
        return refusal;
    }
    const auto byMember = Status.find(member);
    const auto found = byMember == Status.end() ? Status.find(table) : byMember;
    return found == Status.end() ? 0 : found->second;
}

sandbox::ResultSet FakeHost::RowsFor(const std::wstring& source)
{
    for (const auto& [part, rows] : RowsOf)
    {
        if (source.find(part) != std::wstring::npos)
        {
            return rows;
        }
    }
    return Database != nullptr ? Database->Query(source) : Rows;
}

Value FakeHost::OpenRows(const std::wstring& member, const Call& call)
{
    const std::wstring source = TextOf(call.At(1));
    if (const auto failing = FailingStatements.find(source); failing != FailingStatements.end())
    {
        throw automation::Error(FailureCode, member, failing->second);
    }
    const long status = StatusOf(member, source);
    if (status < 0)
    {
        return status;
    }
    try
    {
        Opened.push_back(sandbox::MakeRecordset(RowsFor(source)));
    }
    catch (const automation::Error&)
    {
        return kRejected;
    }
    call.Write(0, Opened.back());
    return status;
}

Value FakeHost::Write(const std::wstring& member, const Call& call)
{
    const long status = StatusOf(member, TextOf(call.At(0)));
    if (Database == nullptr || status < 0)
    {
        return status;
    }
    try
    {
        Database->Execute(Statement(member, call));
        return status;
    }
    catch (const automation::Error&)
    {
        return kRejected;
    }
}

Value FakeHost::NewGuid(const std::wstring& /*member*/, const Call& /*call*/)
{
    return KeyStem + std::to_wstring(++mKeys);
}

Value FakeHost::Begin(const std::wstring& /*member*/, const Call& /*call*/)
{
    Pending = BeginOpensTransaction;
    return {};
}

Value FakeHost::End(const std::wstring& /*member*/, const Call& /*call*/)
{
    Pending = false;
    return {};
}

Value FakeHost::InTransaction(const std::wstring& /*member*/, const Call& /*call*/)
{
    return Pending;
}

Value FakeHost::Self(const std::wstring& /*member*/, const Call& /*call*/)
{
    return automation::Object(this);
}

Value FakeHost::Uid(const std::wstring& /*member*/, const Call& /*call*/)
{
    return UserId;
}

Value FakeHost::Permit(const std::wstring& /*member*/, const Call& call)
{
    constexpr long kDenied = 1;
    Asked.push_back({LongOf(call.At(0)), LongOf(call.At(1)), LongOf(call.At(2))});
    return Denied.contains(Asked.back()) || DeniedCodes.contains(Asked.back()[2]) ? kDenied : Permission;
}

Value FakeHost::Clock(const std::wstring& /*member*/, const Call& /*call*/)
{
    return Now;
}

WithFakeHost::WithFakeHost()
{
    state::Shared().gDTC = automation::Object(mHost.Get());
}

WithFakeHost::~WithFakeHost()
{
    state::Shared().gDTC = {};
}

} // namespace test_support
