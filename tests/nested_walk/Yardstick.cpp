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

bool IsAbsent(const Value& value)
{
    return value.Type() == VT_EMPTY || value.Type() == VT_NULL;
}

// False where the platform cannot make the type of the value.
bool Change(const Value& value, VARTYPE type, Value& changed)
{
    const LCID english = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    return SUCCEEDED(VariantChangeTypeEx(changed.Receive(), &value.Raw(), english,
                                         VARIANT_ALPHABOOL | VARIANT_NOUSEROVERRIDE, type));
}

std::wstring PlainText(const Value& value)
{
    Value text;
    if (IsAbsent(value))
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

// A date as its parts; nothing for what is no date.
std::optional<SYSTEMTIME> PartsOf(const Value& value)
{
    Value date;
    SYSTEMTIME parts{};
    const bool isDate = !IsAbsent(value) && Change(value, VT_DATE, date) && std::isfinite(date.Raw().date) &&
                        VariantTimeToSystemTime(date.Raw().date, &parts) != 0;
    return isDate ? std::optional(parts) : std::nullopt;
}

// Whether the value is a day that both sides know: none that stands for "no date", none beyond Outlook's.
bool IsKnownDay(const Value& value)
{
    constexpr double kFirst = -109204; // 1601-01-02
    constexpr double kNone = 949998;   // 4501-01-01
    Value date;
    if (IsAbsent(value) || !Change(value, VT_DATE, date))
    {
        return false;
    }
    const double day = std::trunc(date.Raw().date);
    return day >= kFirst && day < kNone && day != 0;
}

std::wstring TextOfDay(const SYSTEMTIME& parts)
{
    return std::to_wstring(parts.wYear) + L"/" + std::to_wstring(parts.wMonth) + L"/" +
           std::to_wstring(parts.wDay);
}

std::wstring DayIn(const Value& value)
{
    const auto parts = PartsOf(value);
    return parts && IsKnownDay(value) ? TextOfDay(*parts) : std::wstring();
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
        const bool starts = !IsAbsent(given) && Change(given, VT_BOOL, isAllDay) && workingDay;
        minute = starts && isAllDay.Raw().boolVal != VARIANT_FALSE ? MinuteIn(*workingDay) : 0;
    }
    return IsKnownDay(start) ? TextOfMinute(*parts, minute) : std::wstring();
}

std::wstring StartOf(const Recordset& rows)
{
    const Value day = rows.ValueOf(L"F_ACTESDATE");
    const auto parts = PartsOf(day);
    const auto time = PartsOf(rows.ValueOf(L"F_ACTESTIME"));
    return parts && IsKnownDay(day) ? TextOfMinute(*parts, time ? MinuteIn(*time) : 0) : std::wstring();
}

} // namespace

bool IsSameContact(const Object& item, const Recordset& rows)
{
    const std::wstring lastName = WithoutBlanksAtEnds(PlainText(item.Get(L"LastName")));
    const std::wstring itemName = lastName + WithoutBlanksAtEnds(PlainText(item.Get(L"FirstName")));
    const Value surname = rows.ValueOf(L"F_SURNAME");
    const Value givenName = rows.ValueOf(L"F_GIVENNAME");
    const std::wstring rowName =
        IsAbsent(surname) || IsAbsent(givenName)
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
