// A host's data-access object that writes nothing: it keeps what it was called with, and answers or fails as
// the test says. For what can only be seen at the boundary: the exact texts, the order of the calls, and what
// happens when the host refuses. Header only; for programs of tests that link sandbox_ado.
#pragma once

#include "automation/Error.h"
#include "sandbox/ado/Recordset.h"
#include "sandbox/dispatch/DispatchObject.h"
#include "state/SharedState.h"

#include <map>
#include <set>
#include <vector>

namespace test_support
{

class RecordingHost : public sandbox::DispatchObject
{
  public:
    // Every call as "Member(argument|argument)"; the recordset argument reads "rows" or "nothing".
    std::vector<std::wstring> Calls;
    // What a member that returns a status answers; 0 where nothing is said.
    std::map<std::wstring, long> Status;
    // Members that raise an error instead of answering.
    std::set<std::wstring> Failing;
    // The rows of every recordset opened; those of one whose source or statement has this part; the
    // recordsets.
    sandbox::ResultSet Rows;
    std::map<std::wstring, sandbox::ResultSet> RowsOf;
    std::vector<automation::Object> Opened;
    std::wstring UserId = L"7";
    std::wstring KeyStem = L"KEY-";    // of new keys, before their number
    bool Pending = false;              // InTransaction
    bool BeginOpensTransaction = true; // false: the host has another idea of transactions
    long Permission = 0;

  protected:
    const wchar_t* ClassName() const override { return L"DTC"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable kMembers = {
            Row<&RecordingHost::OpenRows>(L"OpenRecordset"),
            Row<&RecordingHost::OpenRows>(L"OpenRecordsetByString"),
            Row<&RecordingHost::Answer>(L"Insert"),
            Row<&RecordingHost::Answer>(L"Update"),
            Row<&RecordingHost::Answer>(L"Delete"),
            Row<&RecordingHost::NewGuid>(L"NewGuid"),
            Row<&RecordingHost::Begin>(L"BeginTrans"),
            Row<&RecordingHost::End>(L"CommitTrans"),
            Row<&RecordingHost::End>(L"RollbackTrans"),
            Row<&RecordingHost::InTransaction>(L"InTransaction"),
            Row<&RecordingHost::Self>(L"MyInfo"),
            Row<&RecordingHost::Uid>(L"UID"),
            Row<&RecordingHost::Permit>(L"PermissionOn"),
            Row<&RecordingHost::Clock>(L"SysDateTime"),
        };
        return kMembers;
    }

  private:
    using Value = automation::Value;
    using Body = Value (RecordingHost::*)(const wchar_t* member, const sandbox::Call& call);

    template<Body body>
    static sandbox::Member Row(const wchar_t* member)
    {
        return {member,
                [member](sandbox::DispatchObject& self, const sandbox::Call& call) {
                    return static_cast<RecordingHost&>(self).Run(member, body, call);
                },
                {}};
    }

    Value Run(const wchar_t* member, Body body, const sandbox::Call& call)
    {
        Calls.push_back(Written(member, call));
        if (Failing.contains(member))
        {
            throw automation::Error(E_FAIL, member, L"The host raised an error");
        }
        return (this->*body)(member, call);
    }

    static std::wstring Written(const wchar_t* member, const sandbox::Call& call)
    {
        std::wstring text = std::wstring(member) + L"(";
        for (size_t i = 0; i < call.Count(); ++i)
        {
            const Value argument = call.At(i);
            text += i == 0 ? L"" : L"|";
            text += argument.Type() == VT_DISPATCH ? (automation::ObjectOf(argument) ? L"rows" : L"nothing")
                    : automation::IsMissing(argument) ? L"omitted"
                                                      : automation::TextOf(argument);
        }
        return text + L")";
    }

    Value OpenRows(const wchar_t* member, const sandbox::Call& call)
    {
        const Value status = Answer(member, call);
        if (automation::LongOf(status) >= 0)
        {
            Opened.push_back(sandbox::MakeRecordset(RowsFor(automation::TextOf(call.At(1)))));
            call.Write(0, Opened.back());
        }
        return status;
    }

    const sandbox::ResultSet& RowsFor(const std::wstring& source) const
    {
        for (const auto& [part, rows] : RowsOf)
        {
            if (source.find(part) != std::wstring::npos)
            {
                return rows;
            }
        }
        return Rows;
    }

    Value Answer(const wchar_t* member, const sandbox::Call& /*call*/) { return Status[member]; }
    Value NewGuid(const wchar_t*, const sandbox::Call&) { return KeyStem + std::to_wstring(++mKeys); }
    Value Begin(const wchar_t*, const sandbox::Call&)
    {
        Pending = BeginOpensTransaction;
        return {};
    }
    Value End(const wchar_t*, const sandbox::Call&)
    {
        Pending = false;
        return {};
    }
    Value InTransaction(const wchar_t*, const sandbox::Call&) { return Pending; }
    Value Self(const wchar_t*, const sandbox::Call&) { return automation::Object(this); }
    Value Uid(const wchar_t*, const sandbox::Call&) { return UserId; }
    Value Permit(const wchar_t*, const sandbox::Call&) { return Permission; }
    Value Clock(const wchar_t*, const sandbox::Call&) { return automation::Date{37747.5}; }

    long mKeys = 0;
};

// The recording host as the thread's host, for the life of the object.
class WithRecordingHost
{
  public:
    WithRecordingHost() { state::Shared().gDTC = automation::Object(mHost.Get()); }
    WithRecordingHost(const WithRecordingHost&) = delete;
    WithRecordingHost& operator=(const WithRecordingHost&) = delete;
    ~WithRecordingHost() { state::Shared().gDTC = {}; }

    RecordingHost* operator->() const noexcept { return mHost.Get(); }

  private:
    Microsoft::WRL::ComPtr<RecordingHost> mHost{new RecordingHost};
};

} // namespace test_support
