// The host's data-access object, as clients reach it by name: recordsets, writes in the host's transactions,
// keys, the signed-in user, the clock. Members that report a number answer a refusal with a negative one.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"
#include "sandbox/host/HostState.h"

#include <memory>

namespace sandbox
{

automation::Object MakeDtc(std::shared_ptr<HostState> state);

// The signed-in user ("MyInfo"): UID and PermissionOn.
automation::Object MakeMyInfo(std::shared_ptr<HostState> state);

} // namespace sandbox
