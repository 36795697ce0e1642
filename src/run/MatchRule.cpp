#include "run/MatchRule.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "automation/Text.h"
#include "state/SharedState.h"

namespace run
{

namespace
{

using automation::Date;
using automation::Object;
using automation::Recordset;
using automation::Value;

std::wstring Comparable(const Value& value)
{
    return automation::UpperCased(automation::Trimmed(automation::TextOrEmpty(value)));
}

// What the host stores for a record without a category stands for no category.
std::wstring ComparableCategory(const Value& value)
{
    const std::wstring text = Comparable(value);
    return text == L"(UNSPECIFIED)" || text == L"(未指定)" ? std::wstring() : text;
}

// Parts that are compared one by one, as one text. The lengths in front keep them apart whatever they hold.
std::wstring Joined(const std::wstring& name, const std::wstring& category, const std::wstring& date)
{
    return std::to_wstring(name.size()) + L' ' + std::to_wstring(category.size()) + L' ' + name + category +
           date;
}

// The date in a pattern; the empty text for no date. One that Outlook cannot hold is none: that is how it is
// written there.
std::wstring ComparableDate(const Value& value, const wchar_t* pattern)
{
    const std::optional<Date> date = automation::OutlookDate(value);
    const bool isNone =
        !date || automation::IsEmptyOrNull(automation::WithoutNoDate(automation::DayOf(*date)));
    return isNone ? std::wstring() : automation::Formatted(*date, pattern);
}

std::wstring ContactNameOfItem(const Object& item)
{
    // Joined without a separator, as the contract has it: Li Ming and Lim Ing are one name.
    const std::wstring lastName = Comparable(item.Get(L"LastName"));
    return lastName + Comparable(item.Get(L"FirstName"));
}

std::wstring ContactNameOfRow(const Recordset& rows)
{
    const Value surname = rows.ValueOf(L"F_SURNAME");
    const Value givenName = rows.ValueOf(L"F_GIVENNAME");
    if (automation::IsEmptyOrNull(surname) || automation::IsEmptyOrNull(givenName))
    {
        return {};
    }
    return Comparable(surname) + Comparable(givenName);
}

std::wstring CompanyOfContact(const Object& item)
{
    return Comparable(item.Get(L"CompanyName"));
}

std::wstring AccountOfRow(const Recordset& rows)
{
    return Comparable(rows.ValueOf(L"ACC_SNAME"));
}

std::wstring KeyOfTaskItem(const Object& item)
{
    const std::wstring subject = Comparable(item.Get(L"Subject"));
    const std::wstring category = ComparableCategory(item.Get(L"Categories"));
    return Joined(subject, category, ComparableDate(item.Get(L"StartDate"), L"yyyy/mm/dd"));
}

std::wstring KeyOfTaskRow(const Recordset& rows)
{
    const std::wstring name = Comparable(rows.ValueOf(L"F_ACTNAME"));
    const std::wstring type = ComparableCategory(rows.ValueOf(L"F_ACTTYPE"));
    return Joined(name, type, ComparableDate(rows.ValueOf(L"F_ACTPSTIME"), L"yyyy/mm/dd"));
}

std::wstring CompaniesOfTask(const Object& item)
{
    return Comparable(item.Get(L"Companies"));
}

// An all-day appointment starts at midnight in Outlook, and is stored in the host with the start of the
// working day; it matches that. Only an appointment that starts at midnight is asked whether it is one.
Value StartOfItem(const Object& item)
{
    const std::optional<Date> start = automation::ReadableDate(item.Get(L"Start"));
    if (!start)
    {
        return Value::Null();
    }
    const bool isMidnight = automation::MinuteOfDay(*start) == Date{};
    return isMidnight && automation::IsTrue(item.Get(L"AllDayEvent"))
               ? automation::PlusTime(*start, state::Shared().gCalendarStartTime)
               : *start;
}

std::wstring KeyOfAppointment(const Object& item)
{
    const std::wstring subject = Comparable(item.Get(L"Subject"));
    const std::wstring category = ComparableCategory(item.Get(L"Categories"));
    return Joined(subject, category, ComparableDate(StartOfItem(item), L"yyyy/mm/dd hh:mm:00"));
}

// The start of a calendar row: its day and its time of day, which stand in columns of their own.
Value StartOfRow(const Recordset& rows)
{
    const std::optional<Date> day = automation::ReadableDate(rows.ValueOf(L"F_ACTESDATE"));
    const std::optional<Date> time = automation::ReadableDate(rows.ValueOf(L"F_ACTESTIME"));
    if (!day)
    {
        return Value::Null();
    }
    return automation::PlusTime(automation::DayOf(*day), automation::MinuteOfDay(time.value_or(Date{})));
}

std::wstring KeyOfCalendarRow(const Recordset& rows)
{
    const std::wstring name = Comparable(rows.ValueOf(L"F_ACTNAME"));
    const std::wstring type = ComparableCategory(rows.ValueOf(L"F_ACTTYPE"));
    return Joined(name, type, ComparableDate(StartOfRow(rows), L"yyyy/mm/dd hh:mm:00"));
}

} // namespace

const MatchRule kMatchContact{ContactNameOfItem, CompanyOfContact, ContactNameOfRow, AccountOfRow};
const MatchRule kMatchTask{KeyOfTaskItem, CompaniesOfTask, KeyOfTaskRow, AccountOfRow};
const MatchRule kMatchAppointment{KeyOfAppointment, nullptr, KeyOfCalendarRow, nullptr};

} // namespace run
