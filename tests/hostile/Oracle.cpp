#include "tests/hostile/Oracle.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <cmath>
#include <cwchar>

namespace test_support
{

namespace
{

using automation::ToUtf8;
using automation::Value;
using sandbox::Literal;

constexpr double kSecondsOfDay = 86400;
constexpr double kFirstDay = -53688; // 1753-01-01
constexpr double kLastDay = 2958464; // 9999-12-30
constexpr double kLastMinute = 1439 * 60.0;

// Of a day, counted from 1899-12-30, as "mm/dd/yyyy" (the calendar of 400 years, without the system's help).
std::wstring WrittenDay(double day)
{
    const auto era = static_cast<long long>(std::floor((day + 693899) / 146097)); // from 0000-03-01 on
    const auto dayOfEra = static_cast<long long>(day) + 693899 - era * 146097;
    const long long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long long month = (5 * dayOfYear + 2) / 153;
    const long long dayOfMonth = dayOfYear - (153 * month + 2) / 5 + 1;
    const long long civilMonth = month < 10 ? month + 3 : month - 9;
    const long long year = yearOfEra + era * 400 + (civilMonth <= 2 ? 1 : 0);
    wchar_t text[32];
    std::swprintf(text, 32, L"%02d/%02d/%04d", static_cast<int>(civilMonth), static_cast<int>(dayOfMonth),
                  static_cast<int>(year));
    return text;
}

std::wstring WrittenTime(double secondOfDay)
{
    const int minutes = static_cast<int>(secondOfDay) / 60;
    wchar_t text[16];
    std::swprintf(text, 16, L"%02d:%02d:00", minutes / 60, minutes % 60);
    return text;
}

// The seconds since 1899-12-30; the fraction of a date counts away from zero.
double SecondsOf(double date)
{
    const double day = std::trunc(date);
    return day * kSecondsOfDay + std::abs(date - day) * kSecondsOfDay;
}

std::wstring Written(double seconds, long type)
{
    const double first = kFirstDay * kSecondsOfDay;
    const double last = kLastDay * kSecondsOfDay + (type == 6 ? kLastMinute : 0);
    if (type != 5)
    {
        seconds = seconds < first ? first : seconds > last ? last : seconds;
    }
    const double day = std::floor(seconds / kSecondsOfDay);
    const std::wstring time = WrittenTime(seconds - day * kSecondsOfDay);
    return type == 4 ? WrittenDay(day) : type == 5 ? time : WrittenDay(day) + L" " + time;
}

std::string Differs(const std::wstring& expected, const std::wstring& found)
{
    return expected == found ? "" : "expected \"" + ToUtf8(expected) + "\", found \"" + ToUtf8(found) + "\"";
}

// The system reads the same text now as a date, now as none ("12:30a" after control characters, under Wine).
std::optional<double> SecondsIfReadable(const Value& value)
{
    try
    {
        return SecondsOf(automation::DateOf(value).days);
    }
    catch (const automation::Error&)
    {
        return std::nullopt;
    }
}

// A date is rounded to the second, either way: both are right.
std::string DateComplaint(const Literal& literal, const Value& value, long type)
{
    const std::optional<double> read = SecondsIfReadable(value);
    if (!read)
    {
        return value.Type() == VT_BSTR ? "" : "what is no date was written";
    }
    const double seconds = *read;
    if (!std::isfinite(seconds))
    {
        return std::isnan(seconds) ? "a date that is no number was written" : "";
    }
    const std::string complaint = Differs(Written(std::floor(seconds), type), literal.text);
    return complaint.empty() || literal.text == Written(std::ceil(seconds), type) ? "" : complaint;
}

std::string NumberComplaint(const Literal& literal, const Value& value)
{
    if (value.Type() == VT_BSTR) // goes on unchanged where it is a number
    {
        return Differs(automation::TextOf(value), literal.text);
    }
    const double expected = automation::DoubleOf(value);
    const double found = std::wcstod(literal.text.c_str(), nullptr);
    const bool isClose = std::abs(found - expected) <= std::abs(expected) * 1e-6;
    return isClose ? "" : "expected " + std::to_string(expected) + ", found " + ToUtf8(literal.text);
}

bool EqualsFalse(const Value& value)
{
    try
    {
        return !automation::TruthOf(value);
    }
    catch (const automation::Error&)
    {
        return false;
    }
}

} // namespace

std::wstring KeptText(const std::wstring& text, long size)
{
    size_t end = 0;
    for (long used = 0; end < text.size();)
    {
        const bool isPair = end + 1 < text.size() && IS_SURROGATE_PAIR(text[end], text[end + 1]);
        used += text[end] == L'\'' || text[end] > 0xFF ? 2 : 1;
        if (used > size)
        {
            break;
        }
        end += isPair ? 2 : 1;
    }
    return text.substr(0, end);
}

std::string Complaint(const Literal& literal, const Value& value, long type, long size)
{
    const bool isText = type == 2 || type == 8;
    const bool isDate = type >= 4 && type <= 6;
    const auto expectedKind = isText || isDate ? Literal::Kind::Text : Literal::Kind::Number;
    if (literal.kind != expectedKind)
    {
        return "a literal of another kind: " + ToUtf8(literal.text);
    }
    if (isText)
    {
        return Differs(KeptText(automation::TextOf(value), size), literal.text);
    }
    if (isDate)
    {
        return DateComplaint(literal, value, type);
    }
    return type == 3 ? Differs(EqualsFalse(value) ? L"0" : L"1", literal.text)
                     : NumberComplaint(literal, value);
}

} // namespace test_support
