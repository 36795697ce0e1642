#include "data/FieldFormat.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Text.h"
#include "data/Literals.h"
#include "resources/Strings.h"
#include "state/Remarks.h"
#include "ui/ShowMessageBox.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace data
{

using automation::Date;
using automation::LongOf;
using automation::Moment;
using automation::Value;

namespace
{

// The range of the host's date columns. Its end is the 30th of December, as the host contract has it.
constexpr Moment kFirstMoment{1753, 1, 1};
constexpr Moment kLastDay{9999, 12, 30};
constexpr Moment kLastMoment{9999, 12, 30, 23, 59};

Date Clamped(Date date, const Moment& last)
{
    const Date first = automation::DateOf(kFirstMoment);
    const Date end = automation::DateOf(last);
    return automation::IsEarlier(date, first) ? first : automation::IsEarlier(end, date) ? end : date;
}

bool IsNumber(const Value& value)
{
    constexpr VARTYPE kNumbers[] = {VT_I1,  VT_I2,  VT_I4, VT_I8, VT_INT, VT_UI1,     VT_UI2,
                                    VT_UI4, VT_UI8, VT_R4, VT_R8, VT_CY,  VT_DECIMAL, VT_UINT};
    return std::find(std::begin(kNumbers), std::end(kNumbers), value.Type()) != std::end(kNumbers);
}

Value AsItIs(const Value& held)
{
    return held;
}

Value InQuotes(const Value& held)
{
    return QuotedText(automation::TextOf(held));
}

// A number stands for itself, and so does a text that is one. Automation would read other texts as numbers as
// well, but as other ones than SQL ("1,5", "(12)", "&H10"): no text is interpreted. What automation calls a
// number and SQL does not (infinity) is a word there, not a literal.
Value HeldNumber(const Value& value, const FieldDescription& /*field*/)
{
    if (value.Type() == VT_BSTR)
    {
        if (!IsPlainNumber(automation::TextOf(value)))
        {
            throw automation::Error(DISP_E_TYPEMISMATCH, L"number");
        }
        return value;
    }
    const double number = automation::DoubleOf(value);
    if (!std::isfinite(number))
    {
        throw automation::Error(DISP_E_OVERFLOW, L"number");
    }
    return IsNumber(value) ? value : Value(number);
}

// What is left of a text whose doubled form is cut to a size. The cut may fall between the two halves of an
// apostrophe. A lone half would quote the closing quote: it goes as well.
std::wstring CutAsDoubled(const std::wstring& text, long size)
{
    const std::wstring doubled = automation::Replaced(text, L"'", L"''");
    std::wstring cut = TruncateToFieldSize(doubled, size);
    const size_t lastOther = cut.find_last_not_of(L'\'');
    const size_t quotesAtEnd = cut.size() - (lastOther == std::wstring::npos ? 0 : lastOther + 1);
    if (quotesAtEnd % 2 != 0)
    {
        cut.pop_back();
    }
    return automation::Replaced(cut, L"''", L"'");
}

Value HeldText(const Value& value, const FieldDescription& field)
{
    return CutAsDoubled(automation::TextOf(value), LongOf(field.FieldSize));
}

// What has no truth value does not equal False either.
Value HeldFlag(const Value& value, const FieldDescription& /*field*/)
{
    try
    {
        return automation::TruthOf(value);
    }
    catch (const automation::Error&)
    {
        return true;
    }
}

Value FlagLiteral(const Value& held)
{
    return automation::TruthOf(held) ? L"1" : L"0";
}

Value HeldDate(const Value& value, const FieldDescription& /*field*/)
{
    return automation::DayOf(Clamped(automation::DateOf(value), kLastDay));
}

Value HeldTime(const Value& value, const FieldDescription& /*field*/)
{
    return automation::MinuteOfDay(automation::DateOf(value));
}

Value HeldDateTime(const Value& value, const FieldDescription& /*field*/)
{
    return automation::ToTheMinute(Clamped(automation::DateOf(value), kLastMoment));
}

template<const wchar_t* pattern>
Value DateLiteral(const Value& held)
{
    return QuotedText(automation::Formatted(automation::DateOf(held), pattern));
}

constexpr wchar_t kDatePattern[] = L"mm/dd/yyyy";
constexpr wchar_t kTimePattern[] = L"hh:mm:00";
constexpr wchar_t kDateTimePattern[] = L"mm/dd/yyyy hh:mm:00";

struct Formatter
{
    // The value as the column holds it once it has been written.
    Value (*Held)(const Value& value, const FieldDescription& field);
    // That value as a literal.
    Value (*Literal)(const Value& held);
};

constexpr Formatter kAsNumber{HeldNumber, AsItIs};
constexpr Formatter kAsText{HeldText, InQuotes};

// By FieldType, from 1 on.
constexpr Formatter kFormatters[] = {
    kAsNumber,
    kAsText,
    {HeldFlag, FlagLiteral},
    {HeldDate, DateLiteral<kDatePattern>},
    {HeldTime, DateLiteral<kTimePattern>},
    {HeldDateTime, DateLiteral<kDateTimePattern>},
    kAsNumber,
    kAsText,
};

// Null for a type that is none.
const Formatter* FormatterOf(const FieldDescription& field)
{
    const long type = LongOf(field.FieldType);
    const bool isKnown = type >= 1 && type <= static_cast<long>(std::size(kFormatters));
    return isKnown ? &kFormatters[type - 1] : nullptr;
}

bool IsText(const FieldDescription& field)
{
    constexpr long kText = 2;
    constexpr long kLongText = 8;
    const long type = LongOf(field.FieldType);
    return type == kText || type == kLongText;
}

automation::Error UnknownColumn(const std::wstring& column)
{
    return {DISP_E_UNKNOWNNAME, column,
            resources::Choose(L"SynFields 中没有该字段", L"SynFields has no such column")};
}

[[noreturn]] void ReportUnknownColumn(const std::wstring& column)
{
    ui::ShowMessageBox(L"Don't find " + column + L"field in table 'SynFields', can't format ", MB_ICONERROR,
                       L"GetFieldType");
    throw UnknownColumn(column);
}

void TellIfCut(const std::wstring& column, const std::wstring& text, const std::wstring& kept)
{
    if (kept.size() < text.size())
    {
        state::Tell({.Why = state::Cause::TextCut,
                     .Field = column,
                     .Length = static_cast<long>(text.size()),
                     .Kept = static_cast<long>(kept.size())});
    }
}

Value HeldBy(const Formatter& formatter, const std::wstring& column, const FieldDescription& field,
             const Value& value)
{
    Value held = formatter.Held(value, field);
    if (IsText(field))
    {
        TellIfCut(column, automation::TextOf(value), automation::TextOf(held));
    }
    return held;
}

bool IsPair(wchar_t first, wchar_t second)
{
    return IS_HIGH_SURROGATE(first) && IS_LOW_SURROGATE(second);
}

} // namespace

std::optional<Value> Formatted(FieldCatalogue& catalogue, const std::wstring& column, const Value& value)
{
    const FieldDescription* const field = catalogue.Find(column);
    if (field == nullptr)
    {
        ReportUnknownColumn(column);
    }
    const Formatter* const formatter = FormatterOf(*field);
    if (formatter == nullptr)
    {
        ui::ShowMessageBox(L"Don't format:" + column, MB_OK, L"FormatFieldlValue");
        return std::nullopt;
    }
    return formatter->Literal(HeldBy(*formatter, column, *field, value));
}

std::wstring LiteralOf(FieldCatalogue& catalogue, const std::wstring& column, const Value& value)
{
    if (automation::IsAbsent(value))
    {
        return L"NULL";
    }
    try
    {
        const auto formatted = Formatted(catalogue, column, value);
        return formatted ? automation::TextOf(*formatted) : NumberOrQuotedText(automation::TextOf(value));
    }
    catch (const automation::Error& error)
    {
        throw automation::Error(error.Code(), column,
                                column + resources::Choose(L" 无法格式化: ", L" cannot be formatted: ") +
                                    error.Description());
    }
}

Value HeldValueOf(FieldCatalogue& catalogue, const std::wstring& column, const Value& value)
{
    if (automation::IsAbsent(value))
    {
        return Value::Null();
    }
    const FieldDescription* const field = catalogue.Find(column);
    if (field == nullptr)
    {
        throw UnknownColumn(column);
    }
    const Formatter* const formatter = FormatterOf(*field);
    return formatter == nullptr ? value : HeldBy(*formatter, column, *field, value);
}

std::wstring TextAsHeld(FieldCatalogue& catalogue, const std::wstring& column, const std::wstring& text)
{
    const FieldDescription* const field = catalogue.Find(column);
    // A description that cannot be read describes no text either.
    return field == nullptr ? text : state::Trapped(text, [&] {
        return IsText(*field) ? CutAsDoubled(text, LongOf(field->FieldSize)) : text;
    });
}

std::wstring TruncateToFieldSize(const std::wstring& text, long size)
{
    constexpr wchar_t kLastSingleByte = 0xFF;
    size_t end = 0;
    long used = 0;
    while (end < text.size())
    {
        used += text[end] > kLastSingleByte ? 2 : 1;
        if (used > size)
        {
            break;
        }
        end += end + 1 < text.size() && IsPair(text[end], text[end + 1]) ? 2 : 1;
    }
    return text.substr(0, end);
}

} // namespace data
