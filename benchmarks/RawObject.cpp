#include "benchmarks/RawObject.h"

#include "automation/Error.h"

#include <oleauto.h>

namespace benchmarks
{

using automation::Value;

namespace
{

constexpr WORD kRead = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

} // namespace

RawObject::RawObject(const Value& value)
{
    if (value.Type() != VT_DISPATCH)
    {
        throw automation::Error(DISP_E_TYPEMISMATCH, L"object");
    }
    mDispatch = value.Raw().pdispVal;
}

DISPID RawObject::IdOf(const wchar_t* member) const
{
    DISPID id = DISPID_UNKNOWN;
    LPOLESTR name = const_cast<LPOLESTR>(member);
    automation::Check(mDispatch->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_SYSTEM_DEFAULT, &id), member);
    return id;
}

Value RawObject::Get(DISPID id) const
{
    return Invoke(id, kRead, nullptr, 0);
}

Value RawObject::Get(DISPID id, const Value& argument) const
{
    VARIANT passed = argument.Raw();
    return Invoke(id, kRead, &passed, 1);
}

void RawObject::Put(DISPID id, const Value& value) const
{
    VARIANT passed = value.Raw();
    Invoke(id, DISPATCH_PROPERTYPUT, &passed, 1);
}

Value RawObject::Invoke(DISPID id, WORD flags, VARIANT* reversed, UINT count) const
{
    DISPID putId = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{reversed, nullptr, count, 0};
    const bool isWrite = (flags & DISPATCH_PROPERTYPUT) != 0;
    if (isWrite)
    {
        parameters.rgdispidNamedArgs = &putId;
        parameters.cNamedArgs = 1;
    }
    Value result;
    automation::Check(mDispatch->Invoke(id, IID_NULL, LOCALE_SYSTEM_DEFAULT, flags, &parameters,
                                        isWrite ? nullptr : result.Receive(), nullptr, nullptr),
                      L"bare call");
    return result;
}

} // namespace benchmarks
