// The types in which a field gives its values, as the switches have them.
#pragma once

#include "sandbox/ado/AwkwardAdo.h"
#include "sandbox/database/Connection.h"

namespace sandbox
{

// ADO's DataTypeEnum, as far as used.
long AdoTypeOf(const Column& column, const AwkwardAdo& awkward);
Value FieldValue(const Value& value, const AwkwardAdo& awkward);

} // namespace sandbox
