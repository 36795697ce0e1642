#include "tests/calendar/CalendarFixture.h"

#include <algorithm>

namespace test_support
{

namespace
{

std::vector<std::wstring> Split(const std::wstring& text, wchar_t separator)
{
    std::vector<std::wstring> parts{L""};
    for (const wchar_t c : text)
    {
        if (c == separator)
        {
            parts.emplace_back();
        }
        else
        {
            parts.back() += c;
        }
    }
    return parts;
}

} // namespace

std::wstring TimeOf(const Object& object, const wchar_t* member)
{
    return automation::Formatted(automation::DateOf(object.Get(member)), L"hh:mm");
}

std::wstring DayOf(const Object& object, const wchar_t* member)
{
    return automation::Formatted(automation::DateOf(object.Get(member)), L"yyyy-mm-dd");
}

CalendarFixture::CalendarFixture() : PassFixture(kCalendarKind)
{
    Relate({{L"F_ACTNAME", L"Subject"},
            {L"F_ACTTYPE", L"Categories"},
            {L"F_ACTESDATE", L"Start"},
            {L"CONTACT_SURNAME", L"Recipients"},
            {L"F_ACTREMIND", L"ReminderSet"},
            {L"F_ACTCOMPLETED", L"IsRecurring"}});
}

void CalendarFixture::AddEntry(const Pairs& columns)
{
    Columns entry{{L"F_ACTNAME", L"'Meeting'"},
                  {L"F_ACTESDATE", L"'2003-05-06 00:00:00'"},
                  {L"F_ACTESTIME", L"'1899-12-30 09:30:00'"},
                  {L"F_ACTEETIME", L"'1899-12-30 11:00:00'"},
                  {L"ACT_DURATION", L"'1899-12-30 01:30:00'"}};
    for (const auto& [name, literal] : columns)
    {
        entry[name] = literal;
    }
    AddRow({entry.begin(), entry.end()});
}

CalendarFixture::Columns CalendarFixture::InsertFirstAppointment()
{
    InsertFirstItem();
    return Written();
}

CalendarFixture::Columns CalendarFixture::UpdateFirstAppointment()
{
    UpdateFirstItem();
    return Written();
}

CalendarFixture::Columns CalendarFixture::Written() const
{
    const auto isWrite = [](const std::wstring& call) {
        return call.starts_with(L"Insert(TBLACTIVITY") || call.starts_with(L"Update(TBLACTIVITY");
    };
    const auto last = std::find_if(Host->Calls.rbegin(), Host->Calls.rend(), isWrite);
    Columns columns;
    if (last == Host->Calls.rend())
    {
        return columns;
    }
    const std::vector<std::wstring> arguments = Split(*last, L'|');
    const std::vector<std::wstring> first = Split(arguments.at(1), L',');
    const std::vector<std::wstring> second = Split(arguments.at(2), L',');
    for (size_t i = 0; i < first.size(); ++i)
    {
        const size_t sign = first[i].find(L'=');
        if (sign == std::wstring::npos)
        {
            columns[first[i]] = second.at(i);
        }
        else
        {
            columns[first[i].substr(0, sign)] = first[i].substr(sign + 1);
        }
    }
    return columns;
}

} // namespace test_support
