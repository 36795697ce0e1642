#include "exchange/MatchKeys.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "automation/Text.h"

namespace exchange
{

using automation::Date;
using automation::Recordset;
using automation::Value;

std::wstring Comparable(const Value& value)
{
    return automation::UpperCased(automation::Trimmed(automation::TextOrEmpty(value)));
}

std::wstring ComparableCategory(const Value& value)
{
    const std::wstring text = Comparable(value);
    return text == L"(UNSPECIFIED)" || text == L"(未指定)" ? std::wstring() : text;
}

std::wstring ComparableDate(const Value& value, const wchar_t* pattern)
{
    const std::optional<Date> date = automation::OutlookDate(value);
    const bool isNone =
        !date || automation::IsEmptyOrNull(automation::WithoutNoDate(automation::DayOf(*date)));
    return isNone ? std::wstring() : automation::Formatted(*date, pattern);
}

std::wstring JoinedKey(const KeyParts& parts, const wchar_t* datePattern)
{
    const std::wstring name = Comparable(parts.Name);
    const std::wstring category = ComparableCategory(parts.Category);
    const auto length = [](const std::wstring& text) {
        return automation::DecimalText(static_cast<long long>(text.size()));
    };
    return length(name) + L' ' + length(category) + L' ' + name + category +
           ComparableDate(parts.Date, datePattern);
}

std::wstring SubjectOfItem(const automation::Object& item)
{
    return automation::TextOrEmpty(item.Get(L"Subject"));
}

std::wstring SubjectOfRow(const Recordset& rows)
{
    return automation::TextOrEmpty(rows.ValueOf(L"F_ACTNAME"));
}

std::wstring AccountOfRow(const Recordset& rows)
{
    return Comparable(rows.ValueOf(L"ACC_SNAME"));
}

} // namespace exchange
