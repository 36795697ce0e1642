// The data-access object as a host written in Visual Basic has it: a public class whose calls go through
// ITypeInfo::Invoke to methods with typed parameters, all of them by reference, as Visual Basic declares them
// ("Passing Arguments by Value and by Reference": by reference is the default). What comes in by value is
// handed over as a copy; a by-reference argument of another type is refused.
#pragma once

#include "automation/Object.h"

namespace sandbox
{

// Its methods are those of the plain data-access object, which does the work.
automation::Object MakeTypedDtc(const automation::Object& dtc);

} // namespace sandbox
