#include "exchange/ItemProperties.h"

#include "automation/Dates.h"

namespace exchange
{

using automation::Value;

const Value& ItemProperties::ValueOf(const std::wstring& property)
{
    auto value = mValues.find(property);
    if (value == mValues.end())
    {
        value = mValues.emplace(property, mItem.Get(property.c_str())).first;
    }
    return value->second;
}

bool ItemProperties::IsEmpty(const std::wstring& property)
{
    return automation::TextOrEmpty(ValueOf(property)).empty();
}

Value ItemProperties::DateOrNull(const std::wstring& property)
{
    const Value& date = ValueOf(property);
    return automation::IsEmptyOrNull(date) ? Value::Null()
                                           : automation::WithoutNoDate(automation::DateOf(date));
}

} // namespace exchange
