#include "tools/sample_data/MailboxWriter.h"

#include "automation/Dates.h"
#include "sandbox/outlook/DatabaseStore.h"

#include <iterator>

namespace tools
{

namespace
{

using automation::Date;
using sandbox::Connection;
using sandbox::Row;

constexpr long kReminderMinutes = 20;

void Put(ItemProperties& properties, const wchar_t* name, const std::wstring& text)
{
    if (!text.empty())
    {
        properties.emplace_back(name, text);
    }
}

void Put(ItemProperties& properties, const wchar_t* name, const OptionalDate& date)
{
    if (date)
    {
        properties.emplace_back(name, *date);
    }
}

void PutDay(ItemProperties& properties, const wchar_t* name, const OptionalDate& date)
{
    if (date)
    {
        properties.emplace_back(name, automation::DayOf(*date));
    }
}

void Put(ItemProperties& properties, const wchar_t* name, long number)
{
    properties.emplace_back(name, number);
}

void PutTruth(ItemProperties& properties, const wchar_t* name, bool truth)
{
    properties.emplace_back(name, truth);
}

// Outlook's pattern for each of the host's repeat rules.
struct Pattern
{
    long type;
    long interval;
    bool hasWeekday;
    bool hasDay;
    bool hasMonth;
};

constexpr Pattern kPatterns[] = {
    {0, 1, false, false, false}, // daily
    {1, 1, true, false, false},  // weekly
    {2, 1, false, true, false},  // monthly
    {2, 3, false, true, false},  // quarterly
    {2, 6, false, true, false},  // half-yearly
    {5, 1, false, true, true},   // yearly
};

void PutPattern(ItemProperties& properties, const SampleEntry& entry)
{
    const Pattern& pattern = kPatterns[entry.repeat - 1];
    const automation::Moment day = automation::MomentOf(entry.day);
    PutTruth(properties, L"IsRecurring", true);
    Put(properties, L"Recurrence.RecurrenceType", pattern.type);
    Put(properties, L"Recurrence.Interval", pattern.interval);
    if (pattern.hasWeekday)
    {
        Put(properties, L"Recurrence.DayOfWeekMask", 1L << (automation::WeekdayOf(entry.day) - 1));
    }
    if (pattern.hasDay)
    {
        Put(properties, L"Recurrence.DayOfMonth", static_cast<long>(day.day));
    }
    if (pattern.hasMonth)
    {
        Put(properties, L"Recurrence.MonthOfYear", static_cast<long>(day.month));
    }
    properties.emplace_back(L"Recurrence.StartTime", entry.start);
    properties.emplace_back(L"Recurrence.EndTime", entry.end);
    properties.emplace_back(L"Recurrence.PatternStartDate", entry.day);
    PutTruth(properties, L"Recurrence.NoEndDate", !entry.lastRepeat);
    Put(properties, L"Recurrence.PatternEndDate", entry.lastRepeat);
}

} // namespace

ItemProperties PropertiesOf(const SampleContact& contact)
{
    ItemProperties properties;
    const std::pair<const wchar_t*, const std::wstring&> texts[] = {
        {L"LastName", contact.surname},
        {L"FirstName", contact.givenName},
        {L"CompanyName", contact.company},
        {L"NickName", contact.nickName},
        {L"Title", contact.title},
        {L"Suffix", contact.suffix},
        {L"Spouse", contact.spouse},
        {L"JobTitle", contact.jobTitle},
        {L"Department", contact.department},
        {L"Email1Address", contact.email},
        {L"BusinessTelephoneNumber", contact.businessPhone},
        {L"BusinessFaxNumber", contact.businessFax},
        {L"MobileTelephoneNumber", contact.mobilePhone},
        {L"HomeTelephoneNumber", contact.homePhone},
        {L"AssistantName", contact.assistant},
        {L"AssistantTelephoneNumber", contact.assistantPhone},
        {L"HomeAddressCountry", contact.home.country},
        {L"HomeAddressState", contact.home.province},
        {L"HomeAddressCity", contact.home.city},
        {L"HomeAddressStreet", contact.home.street},
        {L"HomeAddressPostalCode", contact.home.postalCode},
        {L"BusinessAddressCountry", contact.business.country},
        {L"BusinessAddressState", contact.business.province},
        {L"BusinessAddressCity", contact.business.city},
        {L"BusinessAddressStreet", contact.business.street},
        {L"BusinessAddressPostalCode", contact.business.postalCode},
    };
    for (const auto& [name, text] : texts)
    {
        Put(properties, name, text);
    }
    Put(properties, L"Birthday", contact.birthday);
    Put(properties, L"Anniversary", contact.anniversary);
    return properties;
}

ItemProperties PropertiesOf(const SampleTask& task)
{
    ItemProperties properties;
    Put(properties, L"Subject", task.subject);
    Put(properties, L"Categories", task.category);
    Put(properties, L"Companies", task.company);
    PutDay(properties, L"StartDate", task.start);
    PutDay(properties, L"DueDate", task.due);
    PutDay(properties, L"DateCompleted", task.completed);
    Put(properties, L"CreationTime", task.created);
    Put(properties, L"Status", static_cast<long>(task.status));
    PutTruth(properties, L"Complete", task.status == TaskStatus::Complete);
    Put(properties, L"PercentComplete", task.percent);
    Put(properties, L"Importance", task.importance);
    Put(properties, L"TotalWork", task.totalWork);
    Put(properties, L"ActualWork", task.actualWork);
    PutTruth(properties, L"ReminderSet", task.reminds);
    if (task.reminds && task.start)
    {
        properties.emplace_back(L"ReminderTime", automation::PlusMinutes(*task.start, -kReminderMinutes));
    }
    return properties;
}

ItemProperties PropertiesOf(const SampleEntry& entry)
{
    ItemProperties properties;
    const bool endsNextDay = entry.isAllDay || entry.end < entry.start;
    const Date lastDay{entry.day.days + (endsNextDay ? 1 : 0)};
    Put(properties, L"Subject", entry.subject);
    Put(properties, L"Categories", entry.category);
    properties.emplace_back(L"Start", entry.isAllDay ? entry.day : PlusTime(entry.day, entry.start));
    properties.emplace_back(L"End", entry.isAllDay ? lastDay : PlusTime(lastDay, entry.end));
    PutTruth(properties, L"AllDayEvent", entry.isAllDay);
    PutTruth(properties, L"ReminderSet", entry.reminds);
    Put(properties, L"ReminderMinutesBeforeStart", kReminderMinutes);
    if (entry.repeat != 0)
    {
        PutPattern(properties, entry);
    }
    return properties;
}

MailboxWriter::MailboxWriter(Connection& database) : mDatabase(database)
{
    sandbox::outlook::DatabaseStore::CreateTables(database);
}

void MailboxWriter::AddFolder(const std::wstring& path, sandbox::outlook::ItemKind type)
{
    mDatabase.Execute(L"INSERT INTO Folder(Path,DefaultItemType) VALUES (?,?)",
                      {path, static_cast<long>(type)});
}

long MailboxWriter::Add(const std::wstring& path, const ItemProperties& properties)
{
    const long index = ++mCounts[path];
    std::wstring sql = L"INSERT INTO ItemProperty(FolderPath,ItemIndex,Name,Value) VALUES ";
    Row row;
    for (const auto& [name, value] : properties)
    {
        sql += row.empty() ? L"(?,?,?,?)" : L",(?,?,?,?)";
        row.insert(row.end(), {path, index, name, value});
    }
    mDatabase.Execute(sql, row);
    return index;
}

void MailboxWriter::Link(const std::wstring& path, long index, const std::wstring& contactPath,
                         long contactIndex)
{
    mDatabase.Execute(L"INSERT INTO ItemLink(FolderPath,ItemIndex,LinkedTo) VALUES (?,?,?)",
                      {path, index, contactPath + L"\\" + std::to_wstring(contactIndex)});
}

} // namespace tools
