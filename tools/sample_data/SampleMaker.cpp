#include "tools/sample_data/SampleMaker.h"

#include "automation/Dates.h"
#include "automation/Text.h"

#include <algorithm>
#include <iterator>

namespace tools
{

namespace
{

using automation::Date;
using automation::PlusTime;

constexpr size_t kWithoutCompany = 12; // every so many contacts
constexpr int kDaysOfEveryMonth = 28;
constexpr long kDays = 90; // that the sample data reaches before and after its day

const Words& WordsOf(bool isChinese)
{
    return isChinese ? ChineseWords() : EnglishWords();
}

Date TimeOfDay(size_t hour, size_t minute)
{
    return {static_cast<double>(hour * 60 + minute) / 1440};
}

// Past events lie before the day of the sample data.
Date NotAfterToday(Date day)
{
    return {std::min(day.days, kSampleToday.days - 1)};
}

std::wstring DayText(Date day)
{
    return automation::Formatted(day, L"yyyy-mm-dd");
}

bool IsChineseRecord(const SampleRecords& records, const std::optional<size_t>& contact, bool otherwise)
{
    return contact ? records.contacts[*contact].surname.front() >= 0x4E00 : otherwise;
}

} // namespace

std::wstring SampleMaker::Number(size_t digits)
{
    std::wstring text(1, static_cast<wchar_t>(L'1' + Below(9)));
    while (text.size() < digits)
    {
        text += static_cast<wchar_t>(L'0' + Below(10));
    }
    return text;
}

std::wstring SampleMaker::Phone(const std::wstring& dialCode, unsigned percent)
{
    return Chance(percent) ? dialCode + L" " + Number(7) : L"";
}

SampleAddress SampleMaker::AddressIn(const Place& place)
{
    return {place.country, place.province, place.city,
            automation::Replaced(place.street, L"%", std::to_wstring(1 + Below(180))), place.postalCode};
}

Date SampleMaker::DayAround(long days)
{
    return {kSampleToday.days - static_cast<double>(days) +
            static_cast<double>(Below(2 * static_cast<size_t>(days) + 1))};
}

OptionalDate SampleMaker::DayInYears(int first, int last, unsigned percent)
{
    if (!Chance(percent))
    {
        return std::nullopt;
    }
    const int year =
        first + static_cast<int>(Below(1 + static_cast<size_t>(last) - static_cast<size_t>(first)));
    const int month = 1 + static_cast<int>(Below(12));
    return automation::DateOf(automation::Moment{year, month, 1 + static_cast<int>(Below(28))});
}

std::optional<size_t> SampleMaker::LinkedContact(const SampleRecords& records, unsigned percent)
{
    if (records.contacts.empty() || !Chance(percent))
    {
        return std::nullopt;
    }
    return Below((records.contacts.size() + kEveryContactInOutlook - 1) / kEveryContactInOutlook) *
           kEveryContactInOutlook;
}

std::vector<SampleAccount> SampleMaker::Accounts(size_t first, size_t count,
                                                 const std::wstring& englishSuffix,
                                                 const std::wstring& chineseSuffix)
{
    std::vector<SampleAccount> accounts;
    for (size_t i = first; i < first + count; ++i)
    {
        const bool isChinese = i % 2 != 0;
        const Words& words = WordsOf(isChinese);
        const Place& place = words.places[Below(words.places.size())];
        const Company& company = words.companies[i / 2 % words.companies.size()];
        SampleAccount account{company.name + (isChinese ? chineseSuffix : englishSuffix), AddressIn(place),
                              isChinese, company.mailDomain, place.dialCode};
        if (!Chance(85))
        {
            account.address.reset();
        }
        accounts.push_back(std::move(account));
    }
    return accounts;
}

void SampleMaker::Name(SampleContact& contact, const SampleAccount* account, bool isChinese)
{
    const Words& words = WordsOf(isChinese);
    const PersonName* surname = nullptr;
    const GivenName* givenName = nullptr;
    do
    {
        surname = &words.surnames[Below(words.surnames.size())];
        givenName = &words.givenNames[Below(words.givenNames.size())];
    } while (!IsNew(std::wstring(surname->text) + L"/" + givenName->name.text));
    contact.surname = surname->text;
    contact.givenName = givenName->name.text;
    (isChinese ? contact.suffix : contact.title) = Chance(80) ? givenName->address : L"";
    if (Chance(80))
    {
        const std::wstring domain = account != nullptr ? account->mailDomain : L"post.example";
        contact.email = std::wstring(givenName->name.latin) + L"." + surname->latin + L"@" + domain;
    }
}

SampleContact SampleMaker::Contact(const SampleAccount* account)
{
    const bool isChinese = account != nullptr ? account->isChinese : Chance(50);
    const Words& words = WordsOf(isChinese);
    const Place& place = words.places[Below(words.places.size())];
    const auto someone = [&] { return words.givenNames[Below(words.givenNames.size())].name.text; };
    const std::wstring officeCode = account != nullptr ? account->dialCode : place.dialCode;
    SampleContact contact;
    Name(contact, account, isChinese);
    contact.company = account != nullptr ? account->name : L"";
    contact.business = account != nullptr ? account->address.value_or(SampleAddress{}) : SampleAddress{};
    contact.nickName = Chance(15) ? contact.givenName.substr(0, 1) + contact.givenName.substr(0, 1) : L"";
    contact.spouse = Chance(20) ? someone() : L"";
    contact.birthday = DayInYears(1940, 1982, 60);
    contact.anniversary = DayInYears(1965, 2002, 20);
    contact.jobTitle = Pick(words.jobTitles);
    contact.department = Pick(words.departments);
    contact.businessPhone = Phone(officeCode, 85);
    contact.businessFax = Phone(officeCode, 50);
    contact.mobilePhone = Phone(isChinese ? L"+86 139" : L"+49 170", 60);
    contact.homePhone = Phone(place.dialCode, 30);
    contact.assistant = Chance(15) ? someone() : L"";
    contact.assistantPhone = contact.assistant.empty() ? L"" : Phone(officeCode, 100);
    contact.home = Chance(40) ? AddressIn(place) : SampleAddress{};
    return contact;
}

std::vector<SampleContact> SampleMaker::Contacts(const std::vector<SampleAccount>& accounts, size_t count)
{
    std::vector<SampleContact> contacts;
    for (size_t i = 0; i < count; ++i)
    {
        const bool hasCompany = !accounts.empty() && i % kWithoutCompany != kWithoutCompany - 1;
        contacts.push_back(Contact(hasCompany ? &accounts[i % accounts.size()] : nullptr));
    }
    return contacts;
}

Date SampleMaker::WorkingDay()
{
    for (;;)
    {
        const Date day = DayAround(kDays);
        const int weekday = automation::WeekdayOf(day);
        if (weekday != 1 && weekday != 7 && automation::MomentOf(day).day <= kDaysOfEveryMonth)
        {
            return day;
        }
    }
}

// When it is to be done: mostly planned to start and to end, sometimes only to be done by a day, or at all.
void SampleMaker::PlanTask(SampleTask& task)
{
    const Date day = WorkingDay();
    task.created = PlusTime(NotAfterToday({day.days - 7}), TimeOfDay(8 + Below(9), Below(60)));
    if (Chance(80))
    {
        task.start = PlusTime(day, TimeOfDay(8 + Below(9), 15 * Below(4)));
    }
    if (task.start || Chance(60))
    {
        task.due = PlusTime(Date{day.days + static_cast<double>(1 + Below(14))}, TimeOfDay(17, 0));
    }
    task.reminds = task.start && Chance(40);
}

void SampleMaker::ProgressTask(SampleTask& task)
{
    constexpr TaskStatus kStatuses[] = {
        TaskStatus::NotStarted, TaskStatus::NotStarted, TaskStatus::InProgress,
        TaskStatus::InProgress, TaskStatus::Complete,   TaskStatus::Complete,
        TaskStatus::Complete,   TaskStatus::Waiting,    TaskStatus::Deferred};
    task.status = kStatuses[Below(std::size(kStatuses))];
    task.totalWork = Chance(50) ? static_cast<long>(60 * (1 + Below(16))) : 0;
    switch (task.status)
    {
    case TaskStatus::NotStarted: break;
    case TaskStatus::Complete:
        task.percent = 100;
        task.completed = NotAfterToday(automation::DayOf(task.due.value_or(*task.created)));
        task.actualWork = task.totalWork;
        break;
    default:
        task.percent = static_cast<long>(25 * (1 + Below(3)));
        task.actualWork = task.totalWork * task.percent / 100;
        break;
    }
}

SampleTask SampleMaker::Task(const SampleRecords& records)
{
    SampleTask task;
    task.contact = LinkedContact(records, 60);
    const Words& words = WordsOf(IsChineseRecord(records, task.contact, Chance(50)));
    if (task.contact && Chance(90))
    {
        task.company = records.contacts[*task.contact].company;
    }
    task.importance = static_cast<long>(Below(3));
    task.category = Chance(85) ? Pick(words.categories) : L"";
    do
    {
        task.subject = Pick(words.taskSubjects);
        task.start.reset();
        task.due.reset();
        PlanTask(task);
    } while (!IsNew(task.subject + L"/" + task.category + L"/" + (task.start ? DayText(*task.start) : L"") +
                    L"/" + task.company));
    ProgressTask(task);
    return task;
}

SampleEntry SampleMaker::Entry(const SampleRecords& records, long repeat)
{
    SampleEntry entry;
    entry.contact = LinkedContact(records, 50);
    const Words& words = WordsOf(IsChineseRecord(records, entry.contact, Chance(50)));
    entry.category = Chance(85) ? Pick(words.categories) : L"";
    entry.reminds = Chance(50);
    entry.repeat = repeat;
    do
    {
        entry.subject =
            repeat != 0 ? words.repeatedSubjects[static_cast<size_t>(repeat - 1)] : Pick(words.entrySubjects);
        entry.day = WorkingDay();
        const size_t hour = 8 + Below(9);
        const size_t minute = 30 * Below(2);
        entry.start = TimeOfDay(hour, minute);
        entry.end = TimeOfDay(hour + 1 + Below(2), 15 * Below(4));
    } while (!IsNew(entry.subject + L"/" + entry.category + L"/" + DayText(entry.day) + L"/" +
                    automation::Formatted(entry.start, L"hh:mm")));
    if (repeat != 0)
    {
        constexpr long kDaysOfRule[] = {60, 180, 365, 730, 1096, 3653};
        entry.lastRepeat = Date{entry.day.days + static_cast<double>(kDaysOfRule[repeat - 1])};
    }
    return entry;
}

} // namespace tools
