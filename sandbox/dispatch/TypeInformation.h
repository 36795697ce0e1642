// The type information of a stand-in's dispinterface, made from its table of members: what tells a client
// that two objects have the same interface, and with it the same DISPIDs.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

namespace sandbox
{

// Every member as a property of the dispinterface with this id. Throws automation::Error.
Microsoft::WRL::ComPtr<ITypeInfo> MakeTypeInformation(const GUID& interfaceId, const wchar_t* name,
                                                      const MemberTable& members);

} // namespace sandbox
