#include "sandbox/outlook/PropertyValues.h"

#include "automation/Dates.h"
#include "automation/Object.h"
#include "sandbox/outlook/Failures.h"

#include <cwchar>

namespace sandbox::outlook
{

namespace
{

using automation::Date;

// The first date that a file time can hold, 1601-01-01; Outlook keeps dates as file times.
constexpr Date kFirstDate{-109205};

Value ConvertedNumber(const Property& property, const Value& given)
{
    const long number = automation::LongOf(given);
    if (number < property.lowest || number > property.highest)
    {
        FailInvalid(property.name, std::wstring(L"The value of ") + property.name + L" is out of range.");
    }
    return number;
}

Value ConvertedDate(const Property& property, const Value& given)
{
    const Date date = automation::DateOf(given);
    if (!(date >= kFirstDate) || date >= Date{automation::kOutlookNoDate.days + 1})
    {
        FailInvalid(property.name, std::wstring(L"The date of ") + property.name + L" is out of range.");
    }
    return property.type == PropertyType::Day ? automation::DayOf(date) : date;
}

Value ConvertedByType(const Property& property, const Value& given)
{
    switch (property.type)
    {
    case PropertyType::Text: return automation::TextOf(given);
    case PropertyType::Number: return ConvertedNumber(property, given);
    case PropertyType::Truth: return automation::TruthOf(given);
    default: return ConvertedDate(property, given);
    }
}

std::optional<Value> DateOfFileText(const std::wstring& text)
{
    automation::Moment moment;
    const int read = std::swscanf(text.c_str(), L"%d-%d-%d %d:%d:%d", &moment.year, &moment.month,
                                  &moment.day, &moment.hour, &moment.minute, &moment.second);
    if (read < 3)
    {
        return automation::DateOf(Value(text));
    }
    return automation::DateOf(moment);
}

} // namespace

Value Converted(const Property& property, const Value& given)
{
    if (given.Type() == VT_NULL || given.Type() == VT_ERROR || given.Type() == VT_DISPATCH ||
        given.Type() == VT_UNKNOWN)
    {
        FailTypeMismatch(property.name);
    }
    try
    {
        return ConvertedByType(property, given);
    }
    catch (const automation::Error& error)
    {
        if (HRESULT_FACILITY(error.Code()) == FACILITY_DISPATCH)
        {
            FailTypeMismatch(property.name);
        }
        throw;
    }
}

std::wstring FileText(const Value& value)
{
    if (value.Type() == VT_DATE)
    {
        return automation::Formatted(automation::DateOf(value), L"yyyy-mm-dd hh:mm:ss");
    }
    if (value.Type() == VT_BOOL)
    {
        return automation::TruthOf(value) ? L"1" : L"0";
    }
    return automation::TextOf(value);
}

std::optional<Value> ValueOfFileText(PropertyType type, const std::wstring& text)
{
    try
    {
        switch (type)
        {
        case PropertyType::Text: return Value(text);
        case PropertyType::Number: return Value(automation::LongOf(Value(text)));
        case PropertyType::Truth: return Value(automation::TruthOf(Value(text)));
        default: return DateOfFileText(text);
        }
    }
    catch (const automation::Error&)
    {
        // Rows may be written by hand; one that cannot be read counts as absent.
        return std::nullopt;
    }
}

} // namespace sandbox::outlook
