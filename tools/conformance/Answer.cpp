#include "tools/conformance/Answer.h"

#include "automation/Dates.h"
#include "automation/Error.h"

#include <cstdio>

namespace conformance
{

using automation::Value;

namespace
{

std::wstring Hexadecimal(const char* word, unsigned long number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%s 0x%08lX", word, number);
    const std::string narrow = text;
    return {narrow.begin(), narrow.end()};
}

std::wstring OfType(const Value& value)
{
    switch (value.Type())
    {
    case VT_EMPTY: return L"empty";
    case VT_NULL: return L"null";
    case VT_BSTR: return L"text '" + automation::TextOf(value) + L"'";
    case VT_BOOL: return automation::TruthOf(value) ? L"true" : L"false";
    case VT_DATE: return L"date " + automation::Formatted(automation::DateOf(value), L"yyyy-mm-dd hh:mm:ss");
    case VT_DISPATCH:
    case VT_UNKNOWN: return value.Raw().punkVal != nullptr ? L"object" : L"nothing";
    case VT_ERROR: return Hexadecimal("error", static_cast<unsigned long>(value.Raw().scode));
    case VT_I2:
    case VT_I4:
    case VT_UI1:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DECIMAL: return L"number " + automation::TextOf(value);
    default: return L"type " + std::to_wstring(value.Type());
    }
}

} // namespace

std::wstring Describe(const Value& value)
{
    try
    {
        return OfType(value);
    }
    catch (const automation::Error&)
    {
        return L"unreadable, type " + std::to_wstring(value.Type());
    }
}

std::wstring AnswerOf(const std::function<Value()>& ask)
{
    try
    {
        return Describe(ask());
    }
    catch (const automation::Error& error)
    {
        return Hexadecimal("error", static_cast<unsigned long>(error.Code()));
    }
}

std::wstring Joined(std::initializer_list<std::wstring> answers)
{
    std::wstring joined;
    for (const std::wstring& answer : answers)
    {
        joined += (joined.empty() ? L"" : L"; ") + answer;
    }
    return joined;
}

} // namespace conformance
