#include "contacts/ContactFieldsFromOutlook.h"

#include "automation/Dates.h"
#include "resources/Strings.h"

#include <algorithm>
#include <iterator>

namespace contacts
{

using automation::Value;

namespace
{

using HostValue = std::optional<Value>;
using Handling = HostValue (*)(ContactItem& item, const std::wstring& outlookName);

HostValue Plain(ContactItem& item, const std::wstring& outlookName)
{
    return item.ValueOf(outlookName);
}

// Outside the Chinese interface the host keeps the two names the other way round; contacts to Outlook make
// the same exchange.
HostValue Name(ContactItem& item, const std::wstring& outlookName)
{
    if (item.IsEmpty(outlookName))
    {
        return std::nullopt;
    }
    const wchar_t* const exchanged = outlookName == L"LastName" ? L"FirstName" : L"LastName";
    return item.ValueOf(resources::IsChinese() ? outlookName : exchanged);
}

HostValue WhenFilled(bool inThisLanguage, ContactItem& item, const std::wstring& outlookName)
{
    return inThisLanguage && !item.IsEmpty(outlookName) ? item.ValueOf(outlookName) : Value(kNoColumn);
}

HostValue InChineseWhenFilled(ContactItem& item, const std::wstring& outlookName)
{
    return WhenFilled(resources::IsChinese(), item, outlookName);
}

HostValue InEnglishWhenFilled(ContactItem& item, const std::wstring& outlookName)
{
    return WhenFilled(resources::IsEnglish(), item, outlookName);
}

HostValue DateOrNull(ContactItem& item, const std::wstring& outlookName)
{
    const Value& date = item.ValueOf(outlookName);
    return automation::IsEmptyOrNull(date) ? Value::Null()
                                           : automation::WithoutNoDate(automation::DateOf(date));
}

struct MappingRow
{
    const wchar_t* outlookName;
    Handling handling;
};

// Company and business address are not here: they reach the host through the account and address links.
constexpr MappingRow kMapping[] = {
    {L"LastName", Name},
    {L"FirstName", Name},
    {L"Suffix", InChineseWhenFilled},
    {L"Title", InEnglishWhenFilled},
    {L"Birthday", DateOrNull},
    {L"Anniversary", DateOrNull},
    {L"NickName", Plain},
    {L"Spouse", Plain},
    {L"HomeAddressCountry", Plain},
    {L"HomeAddressState", Plain},
    {L"HomeAddressCity", Plain},
    {L"HomeAddressStreet", Plain},
    {L"HomeAddressPostalCode", Plain},
    {L"JobTitle", Plain},
    {L"Department", Plain},
    {L"AssistantName", Plain},
    {L"BusinessTelephoneNumber", Plain},
    {L"BusinessFaxNumber", Plain},
    {L"MobileTelephoneNumber", Plain},
    {L"HomeTelephoneNumber", Plain},
    {L"AssistantTelephoneNumber", Plain},
    {L"Email1Address", Plain},
};

} // namespace

const Value& ContactItem::ValueOf(const std::wstring& property)
{
    auto value = mValues.find(property);
    if (value == mValues.end())
    {
        value = mValues.emplace(property, mItem.Get(property.c_str())).first;
    }
    return value->second;
}

bool ContactItem::IsEmpty(const std::wstring& property)
{
    return automation::TextOrEmpty(ValueOf(property)).empty();
}

bool IsNoColumn(const Value& value)
{
    return value.Type() == VT_BSTR && automation::TextOf(value) == kNoColumn;
}

std::optional<Value> HostValueOf(ContactItem& item, const std::wstring& outlookName)
{
    const auto row = std::find_if(std::begin(kMapping), std::end(kMapping),
                                  [&](const MappingRow& one) { return outlookName == one.outlookName; });
    return row == std::end(kMapping) ? Value(kNoColumn) : row->handling(item, outlookName);
}

} // namespace contacts
