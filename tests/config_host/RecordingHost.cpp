#include "tests/config_host/RecordingHost.h"

#include "automation/Error.h"
#include "sandbox/ado/Recordset.h"

namespace config_tests
{

namespace
{

using automation::TextOf;
using sandbox::Call;
using sandbox::Value;

constexpr long kRejected = -2;

class User : public sandbox::DispatchObject
{
    const wchar_t* ClassName() const override { return L"MyInfo"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable kMembers = {
            {L"UID", [](auto&, const Call&) { return Value(kUser); }, nullptr},
        };
        return kMembers;
    }
};

class RecordingHost : public sandbox::DispatchObject
{
  public:
    RecordingHost(sandbox::Connection& connection, HostLog& log) : mConnection(connection), mLog(log) {}

  private:
    const wchar_t* ClassName() const override { return L"DTC"; }
    const sandbox::MemberTable& Members() const override
    {
        using sandbox::Reads;
        static const sandbox::MemberTable kMembers = {
            {L"OpenRecordsetByString", Reads(&RecordingHost::OpenRecordsetByString), nullptr},
            {L"Insert", Reads(&RecordingHost::Insert), nullptr},
            {L"Update", Reads(&RecordingHost::Update), nullptr},
            {L"Delete", Reads(&RecordingHost::Delete), nullptr},
            {L"MyInfo", [](auto&, const Call&) { return Value(sandbox::MakeObject<User>()); }, nullptr},
        };
        return kMembers;
    }

    // Notes the call, its arguments from this one on, and does the work unless it is refused.
    template<typename Work>
    Value Do(const wchar_t* member, const Call& call, size_t firstNoted, Work&& work)
    {
        std::wstring noted = std::wstring(member) + L"(";
        for (size_t i = firstNoted; i < call.Count(); ++i)
        {
            noted += (i > firstNoted ? L"; " : L"") + TextOf(call.At(i));
        }
        mLog.Calls.push_back(noted + L")");
        const long refusal = mLog.Refuse ? mLog.Refuse(member) : 0;
        if (refusal < 0)
        {
            return refusal;
        }
        try
        {
            work();
            return 0;
        }
        catch (const automation::Error&)
        {
            return kRejected;
        }
    }

    Value OpenRecordsetByString(const Call& call)
    {
        return Do(L"OpenRecordsetByString", call, 1,
                  [&] { call.Write(0, sandbox::MakeRecordset(mConnection.Query(TextOf(call.At(1))))); });
    }

    Value Insert(const Call& call)
    {
        return Do(L"Insert", call, 0, [&] {
            mConnection.Execute(L"INSERT INTO " + TextOf(call.At(0)) + L" (" + TextOf(call.At(1)) +
                                L") VALUES (" + TextOf(call.At(2)) + L")");
        });
    }

    Value Update(const Call& call)
    {
        return Do(L"Update", call, 0, [&] {
            mConnection.Execute(L"UPDATE " + TextOf(call.At(0)) + L" SET " + TextOf(call.At(1)) + L" WHERE " +
                                TextOf(call.At(3)));
        });
    }

    Value Delete(const Call& call)
    {
        return Do(L"Delete", call, 0, [&] {
            mConnection.Execute(L"DELETE FROM " + TextOf(call.At(0)) + L" WHERE " + TextOf(call.At(1)));
        });
    }

    sandbox::Connection& mConnection;
    HostLog& mLog;
};

} // namespace

std::vector<std::wstring> HostLog::CallsOf(const std::wstring& member) const
{
    std::vector<std::wstring> found;
    for (const std::wstring& call : Calls)
    {
        if (call.starts_with(member + L"("))
        {
            found.push_back(call);
        }
    }
    return found;
}

automation::Object MakeRecordingHost(sandbox::Connection& connection, HostLog& log)
{
    return sandbox::MakeObject<RecordingHost>(connection, log);
}

} // namespace config_tests
