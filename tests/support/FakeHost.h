// A host's data-access object with a log: it keeps the calls, and answers or fails as a test says. For tests
// of the boundary: the exact texts, the order of the calls, and a host that refuses. It writes nothing,
// unless a test gives it a database.
#pragma once

#include "automation/Dates.h"
#include "sandbox/ado/Recordset.h"
#include "sandbox/database/Connection.h"
#include "sandbox/dispatch/DispatchObject.h"

#include <array>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace test_support
{

class FakeHost : public sandbox::DispatchObject
{
  public:
    using Texts = std::vector<std::wstring>;
    using Right = std::array<long, 3>; // the codes of module, function and right

    // The log: every call as "Member(argument|argument)"; a recordset argument reads "rows" or "nothing".
    // Members that are not logged are only counted.
    Texts Calls;
    std::set<std::wstring> Unlogged;
    std::map<std::wstring, long> Counts;
    std::vector<Right> Asked; // by PermissionOn
    std::vector<automation::Object> Opened;

    // The answers of members that return a status, by member or by table; otherwise 0.
    std::map<std::wstring, long> Status;
    // Asked before the others: a negative number is the status of this call.
    std::function<long(const std::wstring& member)> Refuse;
    // The rows of every recordset opened, and of those whose source or statement has this part.
    sandbox::ResultSet Rows;
    std::map<std::wstring, sandbox::ResultSet> RowsOf;
    long Permission = 0; // the answer of PermissionOn, if the right is not denied
    std::set<Right> Denied;
    std::set<long> DeniedCodes; // right codes of every module and function
    std::wstring UserId = L"7";
    std::wstring KeyStem = L"KEY-"; // of new keys, before their number
    automation::Date Now{37747.5};
    bool Pending = false;              // InTransaction
    bool BeginOpensTransaction = true; // false: the host has another idea of transactions
    // Statements are executed here; null for none. One that the database refuses has a negative status.
    sandbox::Connection* Database = nullptr;

    // Members that raise an error instead of answering, and statements with the text of their error.
    std::set<std::wstring> Failing;
    std::map<std::wstring, std::wstring> FailingStatements;
    HRESULT FailureCode = E_FAIL;

    // The calls of one member, in their order.
    Texts CallsOf(const std::wstring& member) const;
    // The statement "SELECT column ..." finds one row with this value.
    void Find(const std::wstring& statement, const std::wstring& value);

  protected:
    const wchar_t* ClassName() const override { return L"DTC"; }
    const sandbox::MemberTable& Members() const override;

  private:
    using Value = automation::Value;
    using Body = Value (FakeHost::*)(const std::wstring& member, const sandbox::Call& call);

    template<Body body>
    static sandbox::Member Row(const wchar_t* member);
    Value Run(const wchar_t* member, Body body, const sandbox::Call& call);

    Value OpenRows(const std::wstring& member, const sandbox::Call& call);
    Value Write(const std::wstring& member, const sandbox::Call& call);
    Value NewGuid(const std::wstring& member, const sandbox::Call& call);
    Value Begin(const std::wstring& member, const sandbox::Call& call);
    Value End(const std::wstring& member, const sandbox::Call& call);
    Value InTransaction(const std::wstring& member, const sandbox::Call& call);
    Value Self(const std::wstring& member, const sandbox::Call& call);
    Value Uid(const std::wstring& member, const sandbox::Call& call);
    Value Permit(const std::wstring& member, const sandbox::Call& call);
    Value Clock(const std::wstring& member, const sandbox::Call& call);

    long StatusOf(const std::wstring& member, const std::wstring& table) const;
    sandbox::ResultSet RowsFor(const std::wstring& source);

    long mKeys = 0;
};

// A FakeHost as the thread's host, for the life of the object.
class WithFakeHost
{
  public:
    WithFakeHost();
    WithFakeHost(const WithFakeHost&) = delete;
    WithFakeHost& operator=(const WithFakeHost&) = delete;
    ~WithFakeHost();

    FakeHost* operator->() const noexcept { return mHost.Get(); }
    FakeHost& operator*() const noexcept { return *mHost.Get(); }

  private:
    Microsoft::WRL::ComPtr<FakeHost> mHost{new FakeHost};
};

} // namespace test_support
