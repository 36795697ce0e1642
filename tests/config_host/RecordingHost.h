// A host data-access object (DTC) with what the configuration uses of it, over a real database. It keeps a
// list of the calls that reached it, and refuses on demand: so a test can say both what was asked, letter for
// letter, and what came of it. A statement that the database does not take is a negative status.
#pragma once

#include "sandbox/database/Connection.h"
#include "sandbox/dispatch/DispatchObject.h"

#include <functional>
#include <string>
#include <vector>

namespace config_tests
{

class HostLog
{
  public:
    // "Update(T_POutlookSyncParam; IsTrans=1; ; TransObject='Task' And F_UID=7)"
    std::vector<std::wstring> Calls;
    // Asked before each call with its member; a negative number is the status that the call returns.
    std::function<long(const std::wstring& member)> Refuse;

    // The calls of one member, in their order.
    std::vector<std::wstring> CallsOf(const std::wstring& member) const;
};

// The user's id is 7. Log and connection outlive the object.
automation::Object MakeRecordingHost(sandbox::Connection& connection, HostLog& log);

inline constexpr long kUser = 7;

} // namespace config_tests
