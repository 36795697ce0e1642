#include "automation/Value.h"

#include "automation/Error.h"
#include "automation/Object.h"

#include <utility>

#include <oleauto.h>

namespace automation
{

namespace
{

constexpr LCID kFixedLocale = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);

BSTR AllocateText(std::wstring_view text)
{
    BSTR result = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (result == nullptr)
    {
        throw std::bad_alloc();
    }
    return result;
}

Value Coerced(const Value& value, VARTYPE type, const wchar_t* purpose)
{
    Value result;
    Check(VariantChangeTypeEx(result.Receive(), const_cast<VARIANT*>(&value.Raw()), kFixedLocale,
                              VARIANT_ALPHABOOL | VARIANT_NOUSEROVERRIDE, type),
          purpose);
    return result;
}

} // namespace

Value::Value(const wchar_t* text) : Value(std::wstring_view(text)) {}

Value::Value(std::wstring_view text)
{
    VariantInit(&mVariant);
    mVariant.bstrVal = AllocateText(text);
    mVariant.vt = VT_BSTR;
}

Value::Value(bool truth) noexcept
{
    VariantInit(&mVariant);
    mVariant.vt = VT_BOOL;
    mVariant.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
}

Value::Value(short number) noexcept
{
    VariantInit(&mVariant);
    mVariant.vt = VT_I2;
    mVariant.iVal = number;
}

Value::Value(long number) noexcept
{
    VariantInit(&mVariant);
    mVariant.vt = VT_I4;
    mVariant.lVal = number;
}

Value::Value(double number) noexcept
{
    VariantInit(&mVariant);
    mVariant.vt = VT_R8;
    mVariant.dblVal = number;
}

Value::Value(Date date) noexcept
{
    VariantInit(&mVariant);
    mVariant.vt = VT_DATE;
    mVariant.date = date.days;
}

Value::Value(const Object& object) noexcept
{
    VariantInit(&mVariant);
    mVariant.vt = VT_DISPATCH;
    mVariant.pdispVal = object.Dispatch();
    if (mVariant.pdispVal != nullptr)
    {
        mVariant.pdispVal->AddRef();
    }
}

Value::Value(const VARIANT& variant)
{
    VariantInit(&mVariant);
    Check(VariantCopyInd(&mVariant, const_cast<VARIANT*>(&variant)), L"VariantCopyInd");
}

Value::Value(const std::vector<BYTE>& bytes)
{
    VariantInit(&mVariant);
    SAFEARRAY* array = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    if (array == nullptr)
    {
        throw std::bad_alloc();
    }
    std::copy(bytes.begin(), bytes.end(), static_cast<BYTE*>(array->pvData));
    mVariant.vt = VT_ARRAY | VT_UI1;
    mVariant.parray = array;
}

Value Value::Null() noexcept
{
    Value result;
    result.mVariant.vt = VT_NULL;
    return result;
}

Value Value::Missing() noexcept
{
    Value result;
    result.mVariant.vt = VT_ERROR;
    result.mVariant.scode = DISP_E_PARAMNOTFOUND;
    return result;
}

Value::Value(const Value& other)
{
    VariantInit(&mVariant);
    Check(VariantCopy(&mVariant, const_cast<VARIANT*>(&other.mVariant)), L"VariantCopy");
}

Value::Value(Value&& other) noexcept : mVariant(other.mVariant)
{
    VariantInit(&other.mVariant);
}

Value& Value::operator=(Value other) noexcept
{
    std::swap(mVariant, other.mVariant);
    return *this;
}

VARIANT* Value::Receive() noexcept
{
    VariantClear(&mVariant);
    return &mVariant;
}

VARIANT Value::Detach() noexcept
{
    const VARIANT result = mVariant;
    VariantInit(&mVariant);
    return result;
}

long LengthOf(const Value& value) noexcept
{
    try
    {
        return static_cast<long>(TextOrEmpty(value).size());
    }
    catch (const std::exception&)
    {
        return 0;
    }
}

bool IsEmptyOrNull(const Value& value)
{
    return value.Type() == VT_EMPTY || value.Type() == VT_NULL;
}

bool IsAbsent(const Value& value)
{
    return IsEmptyOrNull(value) || (value.Type() == VT_BSTR && SysStringLen(value.Raw().bstrVal) == 0);
}

bool IsMissing(const Value& value)
{
    return value.Type() == VT_ERROR && value.Raw().scode == DISP_E_PARAMNOTFOUND;
}

std::wstring TextOf(const Value& value)
{
    if (value.Type() == VT_BSTR)
    {
        return {value.Raw().bstrVal, SysStringLen(value.Raw().bstrVal)};
    }
    const Value text = Coerced(value, VT_BSTR, L"conversion to text");
    return {text.Raw().bstrVal, SysStringLen(text.Raw().bstrVal)};
}

long LongOf(const Value& value)
{
    return Coerced(value, VT_I4, L"conversion to a 32-bit integer").Raw().lVal;
}

short ShortOf(const Value& value)
{
    return Coerced(value, VT_I2, L"conversion to a 16-bit integer").Raw().iVal;
}

double DoubleOf(const Value& value)
{
    return Coerced(value, VT_R8, L"conversion to a number").Raw().dblVal;
}

bool TruthOf(const Value& value)
{
    return Coerced(value, VT_BOOL, L"conversion to a truth value").Raw().boolVal != VARIANT_FALSE;
}

Date DateOf(const Value& value)
{
    return {Coerced(value, VT_DATE, L"conversion to a date").Raw().date};
}

Object ObjectOf(const Value& value)
{
    if (IsEmptyOrNull(value))
    {
        return {};
    }
    return Object(Coerced(value, VT_DISPATCH, L"conversion to an object").Raw().pdispVal);
}

std::vector<BYTE> BytesOf(const Value& value)
{
    if (value.Type() != (VT_ARRAY | VT_UI1) || value.Raw().parray == nullptr ||
        SafeArrayGetDim(value.Raw().parray) != 1)
    {
        throw Error(DISP_E_TYPEMISMATCH, L"conversion to bytes");
    }
    const SAFEARRAY& array = *value.Raw().parray;
    const BYTE* first = static_cast<const BYTE*>(array.pvData);
    return {first, first + array.rgsabound[0].cElements};
}

std::wstring TextOrEmpty(const Value& value)
{
    return IsEmptyOrNull(value) ? std::wstring() : TextOf(value);
}

} // namespace automation
