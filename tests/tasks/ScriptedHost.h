// A host whose answers a test sets and whose calls it reads, argument for argument: what the record writers
// send is compared as text with what the host contract says. Lookups are answered from a table of statements.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace test_support
{

class ScriptedHost : public sandbox::DispatchObject
{
  public:
    using Right = std::tuple<long, long, long>; // module, function and right code

    // In call order: the member, and its arguments joined by "|".
    std::vector<std::wstring> Calls;
    std::vector<Right> Asked;

    std::set<Right> Denied;
    // What Insert and Update of a table return; 0 for the others.
    std::map<std::wstring, long> Results;
    // The value that a statement finds; the others find no row.
    std::map<std::wstring, std::wstring> Found;
    // Statements that fail with this text.
    std::map<std::wstring, std::wstring> Failing;
    // The error's code then.
    HRESULT FailureCode = E_FAIL;
    bool HasTransactions = true;
    long TransactionAsked = 0; // calls of InTransaction

  protected:
    const wchar_t* ClassName() const override { return L"ScriptedHost"; }
    const sandbox::MemberTable& Members() const override;

  private:
    using Value = automation::Value;

    Value OpenRecordsetByString(const sandbox::Call& call);
    Value Insert(const sandbox::Call& call);
    Value Update(const sandbox::Call& call);
    Value NewGuid(const sandbox::Call& call);
    Value BeginTrans(const sandbox::Call& call);
    Value CommitTrans(const sandbox::Call& call);
    Value RollbackTrans(const sandbox::Call& call);
    Value InTransaction(const sandbox::Call& call);
    Value MyInfo(const sandbox::Call& call);
    Value UserId(const sandbox::Call& call);
    Value PermissionOn(const sandbox::Call& call);

    void Record(const wchar_t* member, const sandbox::Call& call);

    bool mInTransaction = false;
    long mKeys = 0;
};

} // namespace test_support
