// Puts an interceptor around an automation object of any origin: it sees each call on its way, may answer or
// fail it, and may change its outcome. Objects that come out of a wrapped one can be wrapped too, so that an
// interceptor follows a whole run.
#pragma once

#include "automation/Object.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

#include <windows.h>

#include <oaidl.h>

namespace test_support
{

struct InterceptedCall
{
    const std::wstring& member;
    DISPPARAMS& arguments; // as passed: the last argument first
    VARIANT& result;
    bool isRoot; // the object is the one given to Intercept, not one that came out of it
};

// The default members let every call pass. Before and After may throw automation::Error: the caller sees an
// error that the object raises, or the bare code if that belongs to RPC.
class Interceptor
{
  public:
    virtual ~Interceptor() = default;
    // A client asks for the number of a member, or for the type information ("(type)"). A failure is the
    // answer.
    virtual HRESULT OnLookup(const std::wstring& /*name*/) { return S_OK; }
    // False: the object does not get the call, and call.result is the answer.
    virtual bool Before(const InterceptedCall& /*call*/) { return true; }
    // The call has succeeded.
    virtual void After(const InterceptedCall& /*call*/) {}
    // Whether the objects that the member returns, or writes to its arguments, are wrapped.
    virtual bool WrapsResultsOf(const std::wstring& /*member*/) const { return false; }
};

// Functions as an interceptor, and the count of the calls by member. Of the host it wraps the user object
// too.
class Hooks : public Interceptor
{
  public:
    std::function<void(const std::wstring& member)> before;
    std::function<void(const std::wstring& member, DISPPARAMS& arguments, VARIANT& result)> after;
    std::map<std::wstring, long> calls;

    bool Before(const InterceptedCall& call) override;
    void After(const InterceptedCall& call) override;
    bool WrapsResultsOf(const std::wstring& member) const override { return member == L"MyInfo"; }
};

// A wrapper around the object; nothing for nothing. All wrappers of a run share the interceptor.
automation::Object Intercept(const automation::Object& object, std::shared_ptr<Interceptor> interceptor);

// Wrappers alive in this process.
long InterceptedObjects() noexcept;

} // namespace test_support
