#include "sandbox/host/Dtc.h"

#include "automation/Error.h"
#include "sandbox/ado/Recordset.h"
#include "sandbox/host/ColumnTypes.h"
#include "sandbox/host/HostStatements.h"
#include "sandbox/host/RecordSources.h"
#include "sandbox/host/Rejection.h"

#include <combaseapi.h>

namespace sandbox
{

namespace
{

using automation::Error;
using automation::TextOf;

constexpr long kSuccess = 0;

std::wstring FreshGuid()
{
    GUID guid{};
    automation::Check(CoCreateGuid(&guid), L"NewGuid");
    wchar_t text[40];
    StringFromGUID2(guid, text, ARRAYSIZE(text));
    return std::wstring(text + 1, 36); // without its braces
}

automation::Date LocalClock()
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    return automation::DateOf(
        automation::Moment{now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond});
}

std::wstring FirstWord(const std::wstring& text)
{
    return text.substr(0, text.find(L' '));
}

class Dtc : public DispatchObject
{
  public:
    explicit Dtc(std::shared_ptr<HostState> state) : mState(std::move(state)) {}

  private:
    struct ArgumentCount
    {
        size_t least;
        size_t most;
    };

    template<long (Dtc::*action)(const Call&)>
    static Member Reporting(const wchar_t* name, ArgumentCount count);
    template<Value (Dtc::*action)()>
    static Member Giving(const wchar_t* name);

    const wchar_t* ClassName() const override { return L"DTC"; }
    const MemberTable& Members() const override;

    long OpenRecordset(const Call& call)
    {
        const std::wstring filter = automation::IsMissing(call.At(3)) ? L"" : Sql(call, 3);
        return Open(call, [state = mState, source = TextOf(call.At(1)), filter] {
            return OpenSource(state->database, state->userId, source, filter);
        });
    }

    long OpenRecordsetByString(const Call& call)
    {
        return Open(call, [state = mState, sql = Sql(call, 1)] {
            return HostStatements(state->database).Select(sql);
        });
    }

    // The host sorts and filters its record sources, those that have the column that it names.
    long Open(const Call& call, const Requery& query)
    {
        ResultSet rows = query();
        AwkwardAdo awkward = mState->recordsets;
        if (rows.IndexOf(FirstWord(awkward.sort + awkward.filter)) == ResultSet::npos)
        {
            awkward.sort.clear();
            awkward.filter.clear();
        }
        call.Write(0, MakeRecordset(std::move(rows), std::move(awkward), query));
        return kSuccess;
    }

    long Insert(const Call& call)
    {
        return Statements().Insert(TextOf(call.At(0)), TextOf(call.At(1)), Sql(call, 2));
    }

    long Update(const Call& call)
    {
        return Statements().Update(TextOf(call.At(0)), Sql(call, 1), Sql(call, 3));
    }

    long Delete(const Call& call) { return Statements().Delete(TextOf(call.At(0)), Sql(call, 1)); }

    Value NewGuid() { return FreshGuid(); }
    Value MyInfo() { return MakeMyInfo(mState); }
    Value SysDateTime() { return mState->clock ? *mState->clock : LocalClock(); }
    Value InTransaction() { return mState->database.InTransaction(); }

    Value BeginTrans()
    {
        Require(!mState->database.InTransaction(), L"A transaction is pending already");
        mState->database.Begin();
        return {};
    }

    Value CommitTrans()
    {
        Require(mState->database.InTransaction(), L"No transaction is pending");
        mState->database.Commit();
        return {};
    }

    Value RollbackTrans()
    {
        Require(mState->database.InTransaction(), L"No transaction is pending");
        mState->database.Rollback();
        return {};
    }

    static void Require(bool condition, const wchar_t* complaint)
    {
        if (!condition)
        {
            throw Error(E_FAIL, L"DTC", complaint);
        }
    }

    // An argument that is a part of a statement.
    std::wstring Sql(const Call& call, size_t argument) const
    {
        return InColumnTypes(TextOf(call.At(argument)), mState->recordsets);
    }

    HostStatements Statements() { return HostStatements(mState->database); }

    template<typename Body>
    long ResultOf(const wchar_t* member, Body&& body);

    std::shared_ptr<HostState> mState;
};

// The number that a member reports: its own, that of a refusal, or that of a failure ordered by a test.
template<typename Body>
long Dtc::ResultOf(const wchar_t* member, Body&& body)
{
    if (const std::optional<long> ordered = mState->failures.OnCall(member, true))
    {
        return *ordered;
    }
    try
    {
        return body();
    }
    catch (const Rejection& rejection)
    {
        mState->rejections.push_back(std::wstring(member) + L": " + rejection.Reason());
        return rejection.Result();
    }
}

// A member that reports a number.
template<long (Dtc::*action)(const Call&)>
Member Dtc::Reporting(const wchar_t* name, ArgumentCount count)
{
    const auto read = [name, count](DispatchObject& self, const Call& call) -> Value {
        if (call.Count() < count.least || call.Count() > count.most)
        {
            throw Error(DISP_E_BADPARAMCOUNT, name);
        }
        Dtc& dtc = static_cast<Dtc&>(self);
        return dtc.ResultOf(name, [&] { return (dtc.*action)(call); });
    };
    return {name, read, nullptr};
}

// A member without arguments that gives something, or nothing.
template<Value (Dtc::*action)()>
Member Dtc::Giving(const wchar_t* name)
{
    const auto read = [name](DispatchObject& self, const Call&) -> Value {
        Dtc& dtc = static_cast<Dtc&>(self);
        dtc.mState->failures.OnCall(name, false);
        return (dtc.*action)();
    };
    return {name, read, nullptr};
}

const MemberTable& Dtc::Members() const
{
    static const MemberTable members{
        Reporting<&Dtc::OpenRecordset>(L"OpenRecordset", {2, 4}),
        Reporting<&Dtc::OpenRecordsetByString>(L"OpenRecordsetByString", {2, 2}),
        Reporting<&Dtc::Insert>(L"Insert", {4, 4}),
        Reporting<&Dtc::Update>(L"Update", {4, 4}),
        Reporting<&Dtc::Delete>(L"Delete", {2, 2}),
        Giving<&Dtc::NewGuid>(L"NewGuid"),
        Giving<&Dtc::MyInfo>(L"MyInfo"),
        Giving<&Dtc::SysDateTime>(L"SysDateTime"),
        Giving<&Dtc::BeginTrans>(L"BeginTrans"),
        Giving<&Dtc::CommitTrans>(L"CommitTrans"),
        Giving<&Dtc::RollbackTrans>(L"RollbackTrans"),
        Giving<&Dtc::InTransaction>(L"InTransaction"),
    };
    return members;
}

} // namespace

automation::Object MakeDtc(std::shared_ptr<HostState> state)
{
    return MakeObject<Dtc>(std::move(state));
}

} // namespace sandbox
