// Writes down what a pass asks of the host, so that the bare loop can ask exactly the same of another copy of
// the data: the statements, their order and the keys in them are part of the contract with the host.
#pragma once

#include "benchmarks/RawObject.h"

#include <string>
#include <vector>

namespace benchmarks
{

// One call, or one lookup of a member, on the host's object (0) or on one that an earlier call returned.
struct HostCall
{
    size_t Target = 0;
    std::wstring Lookup{}; // the member's name; empty for a call
    DISPID Id = DISPID_UNKNOWN;
    WORD Flags = 0;
    std::vector<automation::Value> Reversed{}; // the arguments
    std::vector<VARTYPE> References{};         // for each: the type that it is passed by reference with, or 0
    size_t Result = 0;                         // the object that the call returned, or wrote; 0 for none
};

using HostCalls = std::vector<HostCall>;

// The object, with everything that is done with it and with what it returns written down.
automation::Object Recorded(const automation::Object& host, HostCalls& calls);

// Makes the calls on another host.
void Replay(const HostCalls& calls, const automation::Object& host);

} // namespace benchmarks
