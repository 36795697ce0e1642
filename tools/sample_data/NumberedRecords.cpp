#include "tools/sample_data/NumberedRecords.h"

#include "tools/sample_data/SampleMaker.h"

#include <cwchar>

namespace tools
{

namespace
{

using automation::Date;

constexpr size_t kContactsOfCompany = 10;
constexpr size_t kDaysOfNumbers = 365;

std::wstring Numbered(const wchar_t* word, size_t number)
{
    wchar_t text[40];
    std::swprintf(text, std::size(text), L"%ls %06u", word, static_cast<unsigned>(number));
    return text;
}

std::wstring CompanyOf(size_t number)
{
    return Numbered(L"Company", number / kContactsOfCompany);
}

Date DayOf(size_t number)
{
    return {kSampleToday.days + static_cast<double>(number % kDaysOfNumbers)};
}

SampleContact Contact(size_t number)
{
    SampleContact contact;
    contact.surname = Numbered(L"Surname", number);
    contact.givenName = L"Given";
    contact.company = CompanyOf(number);
    contact.email = L"c" + std::to_wstring(number) + L"@mail.example";
    contact.businessPhone = L"+49 3641 " + std::to_wstring(number);
    contact.birthday = Date{20000.0 + static_cast<double>(number % 10000)};
    return contact;
}

SampleTask Task(size_t number)
{
    SampleTask task;
    task.subject = Numbered(L"Task", number);
    task.category = L"Business";
    task.company = CompanyOf(number);
    task.start = DayOf(number);
    task.due = Date{task.start->days + 3};
    return task;
}

SampleEntry Entry(size_t number)
{
    SampleEntry entry;
    entry.subject = Numbered(L"Entry", number);
    entry.category = L"Business";
    entry.day = DayOf(number);
    entry.start = Date{0.375};
    entry.end = Date{0.4375};
    return entry;
}

} // namespace

SampleRecords NumberedRecords(size_t first, size_t count)
{
    SampleRecords records;
    for (size_t number = first; number < first + count; ++number)
    {
        if (records.accounts.empty() || records.accounts.back().name != CompanyOf(number))
        {
            records.accounts.push_back({CompanyOf(number), std::nullopt, false, L"", L""});
        }
        records.contacts.push_back(Contact(number));
        records.tasks.push_back(Task(number));
        records.entries.push_back(Entry(number));
    }
    return records;
}

} // namespace tools
