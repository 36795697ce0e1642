#include "tests/nested_walk/Yardstick.h"

#include "state/SharedState.h"

#include <cmath>
#include <optional>
#include <stdexcept>

#include <oleauto.h>

namespace test_support
{

namespace
{

using automation::Object;
using automation::Recordset;
using automation::Value;

bool IsNothing(const Value& value)
{
    return value.Type() == VT_EMPTY || value.Type() == VT_NULL;
}

// False where the platform cannot make the type of the value.
bool Change(const Value& value, VARTYPE type, Value& changed)
{
    const LCID english = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    return SUCCEEDED(VariantChangeTypeEx(changed.Receive(), const_cast<VARIANT*>(&value.Raw()), english,
                                         VARIANT_ALPHABOOL | VARIANT_NOUSEROVERRIDE, type));
}

std::wstring PlainText(const Value& value)
{
    Value text;
    if (IsNothing(value))
    {
        return {};
    }
    if (!Change(value, VT_BSTR, text))
    {
        throw std::runtime_error("no text");
    }
    return {text.Raw().bstrVal, SysStringLen(text.Raw().bstrVal)};
}

std::wstring WithoutBlanksAtEnds(std::wstring text)
{
    while (!text.empty() && text.back() == L' ')
    {
        text.pop_back();
    }
    while (!text.empty() && text.front() == L' ')
    {
        text.erase(text.begin());
    }
    return text;
}

std::wstring InUpperCase(std::wstring text)
{
    const int length = static_cast<int>(text.size());
    std::wstring upper(text.size(), L'\0');
    if (length > 0)
    {
        LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, text.data(), length, upper.data(), length,
                      nullptr, nullptr, 0);
    }
    return upper;
}

bool AreEqual(const std::wstring& one, const std::wstring& other)
{
    return InUpperCase(WithoutBlanksAtEnds(one)) == InUpperCase(WithoutBlanksAtEnds(other));
}

// The host stores a type of its own for a record without a category.
std::wstring CategoryIn(const Value& value)
{
    std::wstring text = PlainText(value);
    return AreEqual(text, L"(Unspecified)") || AreEqual(text, L"(未指定)") ? std::wstring() : text;
}

// Nothing for what is no date at all.
std::optional<SYSTEMTIME> PartsOf(const Value& value)
{
    Value date;
    SYSTEMTIME parts{};
    const bool isDate = !IsNothing(value) && Change(value, VT_DATE, date) && std::isfinite(date.Raw().date) &&
                        VariantTimeToSystemTime(date.Raw().date, &parts) != 0;
    return isDate ? std::optional(parts) : std::nullopt;
}

// A date as its parts; nothing for what is no date on both sides: the ones that stand for "no date", and
// those that Outlook cannot hold.
std::optional<SYSTEMTIME> KnownDateIn(const Value& value)
{
    constexpr long kFirst = 16010102;
    constexpr long kZero = 18991230;
    constexpr long kNone = 45010101;
    const auto parts = PartsOf(value);
    const long day = parts ? parts->wYear * 10000L + parts->wMonth * 100L + parts->wDay : kNone;
    return day >= kFirst && day < kNone && day != kZero ? parts : std::nullopt;
}

std::wstring TextOfDay(const SYSTEMTIME& parts)
{
    return std::to_wstring(parts.wYear) + L"/" + std::to_wstring(parts.wMonth) + L"/" +
           std::to_wstring(parts.wDay);
}

std::wstring DayIn(const Value& value)
{
    const auto parts = KnownDateIn(value);
    return parts ? TextOfDay(*parts) : std::wstring();
}

// Day, hour and minute; the minute is counted from midnight.
std::wstring TextOfMinute(const SYSTEMTIME& day, long minute)
{
    return TextOfDay(day) + L" " + std::to_wstring(minute);
}

long MinuteIn(const SYSTEMTIME& parts)
{
    return parts.wHour * 60L + parts.wMinute;
}

// An all-day appointment starts with the working day.
std::wstring StartOf(const Object& item)
{
    const Value start = item.Get(L"Start");
    const auto parts = PartsOf(start);
    if (!parts)
    {
        return {};
    }
    long minute = MinuteIn(*parts);
    if (minute == 0)
    {
        Value isAllDay;
        const Value given = item.Get(L"AllDayEvent");
        const auto workingDay = PartsOf(state::Shared().gCalendarStartTime);
        const bool starts = !IsNothing(given) && Change(given, VT_BOOL, isAllDay) && workingDay;
        minute = starts && isAllDay.Raw().boolVal != VARIANT_FALSE ? MinuteIn(*workingDay) : 0;
    }
    return KnownDateIn(start) ? TextOfMinute(*parts, minute) : std::wstring();
}

std::wstring StartOf(const Recordset& rows)
{
    const auto day = KnownDateIn(rows.ValueOf(L"F_ACTESDATE"));
    const auto time = PartsOf(rows.ValueOf(L"F_ACTESTIME"));
    return day ? TextOfMinute(*day, time ? MinuteIn(*time) : 0) : std::wstring();
}

} // namespace

bool IsSameContact(const Object& item, const Recordset& rows)
{
    const std::wstring lastName = WithoutBlanksAtEnds(PlainText(item.Get(L"LastName")));
    const std::wstring itemName = lastName + WithoutBlanksAtEnds(PlainText(item.Get(L"FirstName")));
    const Value surname = rows.ValueOf(L"F_SURNAME");
    const Value givenName = rows.ValueOf(L"F_GIVENNAME");
    const std::wstring rowName =
        IsNothing(surname) || IsNothing(givenName)
            ? std::wstring()
            : WithoutBlanksAtEnds(PlainText(surname)) + WithoutBlanksAtEnds(PlainText(givenName));
    return InUpperCase(itemName) == InUpperCase(rowName) &&
           AreEqual(PlainText(item.Get(L"CompanyName")), PlainText(rows.ValueOf(L"ACC_SNAME")));
}

bool IsSameTask(const Object& item, const Recordset& rows)
{
    const std::wstring subject = PlainText(item.Get(L"Subject"));
    const std::wstring category = CategoryIn(item.Get(L"Categories"));
    const std::wstring day = DayIn(item.Get(L"StartDate"));
    const std::wstring name = PlainText(rows.ValueOf(L"F_ACTNAME"));
    const std::wstring type = CategoryIn(rows.ValueOf(L"F_ACTTYPE"));
    const std::wstring plannedDay = DayIn(rows.ValueOf(L"F_ACTPSTIME"));
    return AreEqual(subject, name) && AreEqual(category, type) && day == plannedDay &&
           AreEqual(PlainText(item.Get(L"Companies")), PlainText(rows.ValueOf(L"ACC_SNAME")));
}

bool IsSameAppointment(const Object& item, const Recordset& rows)
{
    const std::wstring subject = PlainText(item.Get(L"Subject"));
    const std::wstring category = CategoryIn(item.Get(L"Categories"));
    const std::wstring start = StartOf(item);
    const std::wstring name = PlainText(rows.ValueOf(L"F_ACTNAME"));
    const std::wstring type = CategoryIn(rows.ValueOf(L"F_ACTTYPE"));
    const std::wstring plannedStart = StartOf(rows);
    return AreEqual(subject, name) && AreEqual(category, type) && start == plannedStart;
}

} // namespace test_support
