// Shared by the parts of the fake host: its database, who is signed in, the clock, the refusals so far
// and the failures that a test has ordered. It lives as long as one of its objects is referred to.
#pragma once

#include "automation/Dates.h"
#include "sandbox/ado/AwkwardAdo.h"
#include "sandbox/database/Connection.h"
#include "sandbox/host/Catalogue.h"
#include "sandbox/host/MemberFailures.h"

#include <optional>
#include <string>
#include <vector>

namespace sandbox
{

struct HostState
{
    explicit HostState(const std::wstring& connectionString) : database(connectionString) {}

    Connection database;
    long userId = kFirstUser;
    std::optional<automation::Date> clock; // nothing: the machine's
    std::vector<std::wstring> rejections;  // the reasons, oldest first
    MemberFailures failures;
    AwkwardAdo recordsets; // the switches of the recordsets that the host opens
};

} // namespace sandbox
