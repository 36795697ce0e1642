#include "sandbox/ado/FieldValues.h"

#include "automation/Error.h"

#include <oleauto.h>

namespace sandbox
{

namespace
{

struct NumberType
{
    IntegersAs as;
    VARTYPE type;
    long adoType; // DataTypeEnum
};

constexpr NumberType kNumberTypes[] = {
    {IntegersAs::Longs, VT_I4, 3},      {IntegersAs::Shorts, VT_I2, 2},
    {IntegersAs::Bytes, VT_UI1, 17},    {IntegersAs::Decimals, VT_DECIMAL, 14},
    {IntegersAs::Currencies, VT_CY, 6},
};

const NumberType& NumberTypeOf(const AwkwardAdo& awkward)
{
    return kNumberTypes[static_cast<size_t>(awkward.integers)];
}

bool IsGuid(const std::wstring& text)
{
    constexpr size_t kLength = 36;
    if (text.size() != kLength || text.find_first_not_of(L"0123456789ABCDEFabcdef-") != std::wstring::npos)
    {
        return false;
    }
    return text[8] == L'-' && text[13] == L'-' && text[18] == L'-' && text[23] == L'-';
}

// A number that does not fit the type stays what it is.
Value Number(const Value& value, const AwkwardAdo& awkward)
{
    Value converted;
    const HRESULT result = VariantChangeType(converted.Receive(), const_cast<VARIANT*>(&value.Raw()), 0,
                                             NumberTypeOf(awkward).type);
    return SUCCEEDED(result) ? converted : value;
}

Value Text(std::wstring text, const AwkwardAdo& awkward)
{
    if (awkward.guids && IsGuid(text))
    {
        return L"{" + text + L"}";
    }
    const auto width = static_cast<size_t>(awkward.charWidth);
    if (width > 0)
    {
        text.resize((text.size() + width - 1) / width * width, L' ');
    }
    return text;
}

} // namespace

long AdoTypeOf(const Column& column, const AwkwardAdo& awkward)
{
    const bool isExact =
        awkward.integers == IntegersAs::Decimals || awkward.integers == IntegersAs::Currencies;
    switch (column.type)
    {
    case ColumnType::Integer: return NumberTypeOf(awkward).adoType;
    case ColumnType::Double: return isExact ? NumberTypeOf(awkward).adoType : 5;
    case ColumnType::Truth: return 11;
    case ColumnType::Date: return 135;
    default: return awkward.charWidth > 0 ? 130 : 202;
    }
}

Value FieldValue(const Value& value, const AwkwardAdo& awkward)
{
    const bool isExact =
        awkward.integers == IntegersAs::Decimals || awkward.integers == IntegersAs::Currencies;
    if (value.Type() == VT_BSTR && (awkward.guids || awkward.charWidth > 0))
    {
        return Text(automation::TextOf(value), awkward);
    }
    const bool isNumber = value.Type() == VT_I4 || (value.Type() == VT_R8 && isExact);
    return isNumber && awkward.integers != IntegersAs::Longs ? Number(value, awkward) : value;
}

} // namespace sandbox
