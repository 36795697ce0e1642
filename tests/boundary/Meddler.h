// A host's data-access object in the hands of a test: it passes every call on to another one, and lets the
// test step in before a call and change what comes out of it. The user object that it hands out is meddled
// with in the same way.
#pragma once

#include "automation/Object.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

#include <windows.h>

#include <oaidl.h>

namespace boundary_tests
{

struct Meddling
{
    // What a member has been called; both may throw automation::Error, which the caller sees as an error that
    // the host raises.
    std::function<void(const std::wstring& member)> before;
    // The call has succeeded: its arguments in reversed order, as they were passed, and its result.
    std::function<void(const std::wstring& member, DISPPARAMS& arguments, VARIANT& result)> after;
    std::map<std::wstring, long> calls;
};

// Objects alive that MakeMeddled has made.
long MeddledObjects();

automation::Object MakeMeddled(const automation::Object& original, std::shared_ptr<Meddling> meddling);

} // namespace boundary_tests
