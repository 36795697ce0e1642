// The type information of an object of the fake: the dispatch interface as it is published, with its
// identifier, the DISPIDs and functions that get, put or call. It tells a client that two objects have the
// same interface, and with it the same DISPIDs.
#pragma once

#include "sandbox/outlook/facts/Published.h"

namespace sandbox::outlook
{

// In memory, made anew by each call. Throws automation::Error.
Microsoft::WRL::ComPtr<ITypeInfo> MakeTypeInformation(const PublishedInterface& of);

// The same, made once per interface of this process.
const Microsoft::WRL::ComPtr<ITypeInfo>& TypeInformationOf(std::wstring_view interfaceName);

} // namespace sandbox::outlook
