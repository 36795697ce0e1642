// A dispatch object whose members are methods of a C++ interface, described by type information and called
// through ITypeInfo::Invoke, as the classes of Visual Basic are.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

#include <span>

namespace sandbox
{

// One method: it returns an HRESULT, takes its parameters by reference and writes its result, where there is
// one, through a last pointer. The methods of an interface stand in the order of its rows, and of its slots.
struct TypedMethod
{
    const wchar_t* name;
    std::vector<VARTYPE> parameters; // without the reference
    VARTYPE result = VT_EMPTY;
    bool isProperty = false;
    size_t optional = 0; // so many of the last parameters, which are VARIANTs
};

// The type information of such an interface. Throws automation::Error.
Microsoft::WRL::ComPtr<ITypeInfo> DescribeMethods(const wchar_t* name, std::span<const TypedMethod> methods);

// Calls through the type information; methods points to the C++ interface's table of methods.
HRESULT InvokeMethod(ITypeInfo& type, void* methods, DISPID id, WORD flags, DISPPARAMS* parameters,
                     VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument);

// Forwards one call to an object that is reached by name; by-reference arguments are written by it. A failure
// becomes the thread's error information, from which ITypeInfo::Invoke takes its description.
HRESULT Forward(const automation::Object& to, const wchar_t* member, std::vector<VARIANT> arguments,
                Value& result);

} // namespace sandbox
