#include "automation/Argument.h"

#include "automation/Object.h"

namespace automation
{

Argument::Argument(ByReference<Object> object)
    : mValue(object.target), mReferenceType(VT_DISPATCH), mTarget(&object.target)
{
}

Argument::Argument(ByReference<std::wstring> text)
    : mValue(text.target), mReferenceType(VT_BSTR), mTarget(&text.target)
{
}

Argument::Argument(ByReference<long> number)
    : mValue(number.target), mReferenceType(VT_I4), mTarget(&number.target)
{
}

VARIANT Argument::Passed() noexcept
{
    if (mTarget == nullptr)
    {
        return mValue.Raw();
    }
    VARIANT result;
    VariantInit(&result);
    result.vt = static_cast<VARTYPE>(VT_BYREF | mReferenceType);
    result.byref = const_cast<LONG*>(&mValue.Raw().lVal); // every member of the union starts here
    return result;
}

void Argument::WriteBack()
{
    switch (mReferenceType)
    {
    case VT_DISPATCH: *static_cast<Object*>(mTarget) = Object(mValue.Raw().pdispVal); break;
    case VT_BSTR: *static_cast<std::wstring*>(mTarget) = TextOf(mValue); break;
    case VT_I4: *static_cast<long*>(mTarget) = mValue.Raw().lVal; break;
    default: break;
    }
}

} // namespace automation
