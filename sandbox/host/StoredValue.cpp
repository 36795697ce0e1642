#include "sandbox/host/StoredValue.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "sandbox/host/Rejection.h"

#include <cwchar>

namespace sandbox
{

namespace
{

using automation::Moment;

[[noreturn]] void DoesNotFit(const HostColumn& column, const std::wstring& text, const wchar_t* why)
{
    throw Rejection(Refusal::ValueDoesNotFit, L"\"" + text + L"\" " + why + L" " + column.name);
}

// One written form of a moment: the pattern to scan, and where the numbers found belong.
struct DateForm
{
    const wchar_t* pattern;
    std::vector<int Moment::*> parts;
};

const std::vector<DateForm>& DateForms()
{
    using M = Moment;
    static const std::vector<DateForm> forms{
        {L"%2d/%2d/%4d%n", {&M::month, &M::day, &M::year}},
        {L"%2d/%2d/%4d %2d:%2d:%2d%n", {&M::month, &M::day, &M::year, &M::hour, &M::minute, &M::second}},
        {L"%2d:%2d:%2d%n", {&M::hour, &M::minute, &M::second}},
        {L"%4d-%2d-%2d%n", {&M::year, &M::month, &M::day}},
        {L"%4d-%2d-%2d %2d:%2d:%2d%n", {&M::year, &M::month, &M::day, &M::hour, &M::minute, &M::second}},
    };
    return forms;
}

// The moment that the whole of a text writes in this form; nothing where it does not.
std::optional<Moment> Scan(const DateForm& form, const std::wstring& text)
{
    int numbers[7] = {};
    int* n = numbers;
    std::swscanf(text.c_str(), form.pattern, n, n + 1, n + 2, n + 3, n + 4, n + 5, n + 6);
    const size_t count = form.parts.size();
    if (static_cast<size_t>(numbers[count]) != text.size() || text.empty())
    {
        return std::nullopt; // the number behind the last part is how far the scan came
    }
    Moment moment;
    for (size_t i = 0; i < count; ++i)
    {
        moment.*form.parts[i] = numbers[i];
    }
    return moment;
}

// Nothing for a moment that does not exist, such as the 30th of February.
std::optional<std::wstring> InStoredForm(const Moment& moment)
{
    try
    {
        return automation::Formatted(automation::DateOf(moment), L"yyyy-mm-dd hh:mm:ss");
    }
    catch (const automation::Error&)
    {
        return std::nullopt;
    }
}

// A quoted number is one: the user's id is written with quotes into contacts.
Value StoredNumber(const HostColumn& column, const Literal& literal)
{
    if (!IsNumber(literal.text))
    {
        DoesNotFit(column, literal.text, L"is no number for");
    }
    return literal.text;
}

Value StoredDateTime(const HostColumn& column, const Literal& literal)
{
    const std::optional<std::wstring> date =
        literal.kind == Literal::Kind::Text ? StoredDate(literal.text) : std::nullopt;
    if (!date)
    {
        DoesNotFit(column, literal.text, L"is no date for");
    }
    return *date;
}

Value StoredText(const HostColumn& column, const Literal& literal)
{
    if (column.size != 0 && literal.text.size() > column.size)
    {
        DoesNotFit(column, literal.text, L"is too long for");
    }
    return literal.text;
}

} // namespace

std::optional<std::wstring> StoredDate(const std::wstring& text)
{
    for (const DateForm& form : DateForms())
    {
        if (const std::optional<Moment> moment = Scan(form, text))
        {
            return InStoredForm(*moment);
        }
    }
    return std::nullopt;
}

Value StoredValue(const HostColumn& column, const Literal& literal)
{
    if (literal.kind == Literal::Kind::Null)
    {
        return Value::Null();
    }
    switch (column.type)
    {
    case ColumnType::Date: return StoredDateTime(column, literal);
    case ColumnType::Text: return StoredText(column, literal);
    default: return StoredNumber(column, literal);
    }
}

} // namespace sandbox
