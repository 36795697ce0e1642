#include "tests/awkward/NumberedKind.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "automation/Text.h"

#include <cwchar>
#include <cwctype>
#include <iterator>

namespace test_support
{

namespace
{

using automation::Date;
using automation::Value;
using enum Bears;

constexpr NumberedField kContactFields[] = {
    {L"F_SURNAME", L"LastName", Label},
    {L"F_GIVENNAME", L"FirstName", Label},
    {L"ACC_SNAME", L"CompanyName", Label},
    {L"F_NICKNAME", L"NickName", Text},
    {L"F_JOBTITLE", L"JobTitle", Text},
    {L"F_EMAIL", L"Email1Address", Text, true},
    {L"ADDR_CITY", L"BusinessAddressCity", Names},
    {L"F_BIRTHDAY", L"Birthday", Day},
};

constexpr NumberedField kTaskFields[] = {
    {L"F_ACTNAME", L"Subject", Label},          {L"F_ACTTYPE", L"Categories", Label},
    {L"F_ACTPSTIME", L"StartDate", Day},        {L"ACC_SNAME", L"Companies", Label},
    {L"F_ACTTOTALWORK", L"TotalWork", Work},    {L"F_ACTACTUALWORK", L"ActualWork", Work},
    {L"F_ACTREMIND", L"ReminderSet", Reminder}, {L"CONTACT_SURNAME", L"ContactNames", Names},
};

constexpr NumberedField kEntryFields[] = {
    {L"F_ACTNAME", L"Subject", Label},
    {L"F_ACTTYPE", L"Categories", Label},
    {L"F_ACTESDATE", L"Start", Day},
    {L"F_ACTEETIME", L"End", End},
    {L"F_ACTREMIND", L"ReminderSet", Reminder},
    {L"ACC_SNAME", L"Companies", Names},
};

// This record of the calendar is a series that is the same on both sides.
constexpr int kSeries = 2;

std::wstring Text4(wchar_t letter, int number)
{
    wchar_t text[8];
    std::swprintf(text, std::size(text), L"%c%03d", letter, number);
    return text;
}

std::wstring Quoted(wchar_t letter, int number)
{
    return L"'" + Text4(letter, number) + L"'";
}

Date Moment(int day, int hour, int minute = 0)
{
    return automation::DateOf(automation::Moment{2003, 5, day, hour, minute, 0});
}

std::wstring Keyed(wchar_t letter, int number)
{
    wchar_t text[40];
    std::swprintf(text, std::size(text), L"%c000000%d-5BD7-4C1B-9B0B-0B8F5A3C2E11", letter, number);
    return text;
}

std::wstring SqlKey(wchar_t letter, int number)
{
    return L"'" + Keyed(letter, number) + L"'";
}

constexpr wchar_t kContactLetter = L'C';
constexpr wchar_t kAccountLetter = L'A';
constexpr wchar_t kAddressLetter = L'D';

bool IsContacts(const NumberedKind& kind)
{
    return kind.itemKind == sandbox::ItemKind::Contact;
}

std::wstring ContactRow(int number, const std::wstring& day)
{
    return L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME,F_ACCID,F_CNTADDRID,"
           L"F_NICKNAME,F_JOBTITLE,F_EMAIL,F_BIRTHDAY) VALUES (" +
           SqlKey(kNumberedContacts.keyLetter, number) + L",1," + Quoted(L'N', number) + L"," +
           Quoted(L'G', number) + L"," + SqlKey(kAccountLetter, number) + L"," +
           SqlKey(kAddressLetter, number) + L"," + Quoted(kHost, number) + L"," + Quoted(kHost, number) +
           L"," + Quoted(kHost, number) + L"," + day + L")";
}

std::wstring TaskRow(int number, const std::wstring& day)
{
    const std::wstring work = std::to_wstring(100 + number);
    return L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_CREATORID,F_CNTCTID,F_ACCID,F_ACTNAME,F_ACTTYPE,"
           L"F_ACTPRIORITY,F_ACTPSTIME,F_ACTTOTALWORK,F_ACTACTUALWORK,F_ACTREMIND) VALUES (" +
           SqlKey(kNumberedTasks.keyLetter, number) + L",1,1," + SqlKey(kContactLetter, number) + L"," +
           SqlKey(kAccountLetter, number) + L"," + Quoted(L'N', number) + L"," + Quoted(L'T', number) +
           L",2," + day + L"," + work + L"," + work + L"," + std::to_wstring(number % 2) + L")";
}

std::wstring EntryRow(int number, const std::wstring& day)
{
    const std::wstring hour = number == kSeries ? L"12" : L"10";
    const std::wstring repeats = number == kSeries ? L"1,'2003-05-20 00:00:00'" : L"NULL,NULL";
    return L"INSERT INTO TBLACTIVITY "
           L"(F_ACTID,F_ACTORID,F_CREATORID,F_CNTCTID,F_ACTNAME,F_ACTTYPE,F_ACTREMIND,"
           L"F_ACTESDATE,F_ACTESTIME,F_ACTEEDATE,F_ACTEETIME,F_ACTREPTIDX,F_ACTREPTEDATE) VALUES (" +
           SqlKey(kNumberedEntries.keyLetter, number) + L",1,1," + SqlKey(kContactLetter, number) + L"," +
           Quoted(L'N', number) + L"," + Quoted(L'T', number) + L"," + std::to_wstring(number % 2) + L"," +
           day + L",'1899-12-30 09:00:00'," + day + L",'1899-12-30 " + hour + L":0" +
           std::to_wstring(number) + L":00'," + repeats + L")";
}

sandbox::Mailbox::NamedValues ContactValues(int number)
{
    return {{L"LastName", Text4(L'N', number)},
            {L"FirstName", Text4(L'G', number)},
            {L"CompanyName", Text4(L'C', number)},
            {L"NickName", Text4(kOutlook, number)},
            {L"JobTitle", Text4(kOutlook, number)},
            {L"Email1Address", Text4(kOutlook, number)},
            {L"BusinessAddressCity", Text4(kOutlook, number)},
            {L"Birthday", Moment(number, 0)}};
}

sandbox::Mailbox::NamedValues TaskValues(int number)
{
    return {{L"Subject", Text4(L'N', number)},   {L"Categories", Text4(L'T', number)},
            {L"StartDate", Moment(number, 0)},   {L"Companies", Text4(L'C', number)},
            {L"TotalWork", 200L + number},       {L"ActualWork", 200L + number},
            {L"ReminderSet", number % 2 == 0},   {L"ContactNames", Text4(L'S', number) + Text4(L'F', number)},
            {L"CreationTime", Moment(number, 0)}};
}

sandbox::Mailbox::NamedValues EntryValues(int number)
{
    return {{L"Subject", Text4(L'N', number)},
            {L"Categories", Text4(L'T', number)},
            {L"Companies", Text4(L'C', number)},
            {L"Start", Moment(number, 9)},
            {L"End", Moment(number, number == kSeries ? 12 : 11, number)},
            {L"ReminderSet", number % 2 == 0}};
}

// A series has its pattern by Outlook's own rules.
void MakeSeries(const sandbox::MailboxRef& mailbox, const std::wstring& path)
{
    const size_t separator = path.find(L'\\');
    const automation::Object items = sandbox::MakeOutlook(mailbox)
                                         .GetObject(L"GetNamespace", L"MAPI")
                                         .GetObject(L"Folders", path.substr(0, separator))
                                         .GetObject(L"Folders", path.substr(separator + 1))
                                         .GetObject(L"Items");
    const automation::Object series = items.GetObject(L"Item", items.Get(L"Count"));
    const automation::Object pattern = series.GetObject(L"GetRecurrencePattern");
    pattern.Put(L"RecurrenceType", 0L);
    pattern.Put(L"PatternEndDate", Moment(20, 0));
    series.Call(L"Save");
}

int NumberIn(const std::wstring& text, size_t from)
{
    int number = 0;
    size_t at = from;
    for (; at < text.size() && std::iswdigit(text[at]) != 0; ++at)
    {
        number = number * 10 + (text[at] - L'0');
    }
    return at == from ? -1 : number;
}

Mark MarkOfText(Bears bears, const std::wstring& text)
{
    const bool isWhole = text.size() == 4 && (bears == Label || text[0] == kHost || text[0] == kOutlook);
    return text.empty() ? Mark{}
           : isWhole    ? Mark{NumberIn(text, 1), bears == Text ? text[0] : L'\0'}
                        : Mark{-1};
}

// Of several numbers one that is not the record's.
Mark MarkOfNames(const std::wstring& text, int numberOfRecord)
{
    Mark mark;
    for (size_t at = 0; at < text.size(); ++at)
    {
        const bool isStart = std::iswdigit(text[at]) != 0 && (at == 0 || std::iswdigit(text[at - 1]) == 0);
        const int number = isStart ? NumberIn(text, at) : 0;
        mark.number = mark.number == 0 || (number != 0 && number != numberOfRecord) ? number : mark.number;
    }
    return mark;
}

Mark MarkOfDate(Bears bears, const Value& value)
{
    const auto date = automation::OutlookDate(value);
    if (!date)
    {
        return {};
    }
    const automation::Moment moment = automation::MomentOf(*date);
    if (bears == Day)
    {
        return {moment.day};
    }
    return {moment.minute, moment.hour == 10 ? kHost : moment.hour == 11 ? kOutlook : L'\0'};
}

} // namespace

const NumberedKind kNumberedContacts{kContactKind, L'B', kContactFields};
const NumberedKind kNumberedTasks{kTaskKind, L'E', kTaskFields};
const NumberedKind kNumberedEntries{kCalendarKind, L'F', kEntryFields};

Mark MarkOf(Bears bears, const Value& value, int numberOfRecord)
{
    const std::wstring text = automation::Trimmed(automation::TextOrEmpty(value));
    switch (bears)
    {
    case Day:
    case End: return MarkOfDate(bears, value);
    case Names: return MarkOfNames(text, numberOfRecord);
    case Work: {
        const auto work = static_cast<int>(automation::ReadableNumber(value).value_or(0));
        return work == 0 ? Mark{} : Mark{work % 100, work / 100 == 1 ? kHost : kOutlook};
    }
    case Reminder: {
        const bool isOfHost = automation::IsTrue(value) == (numberOfRecord % 2 == 1);
        return {numberOfRecord, isOfHost ? kHost : kOutlook};
    }
    default: return MarkOfText(bears, text);
    }
}

std::wstring KeyOf(const NumberedKind& kind, int number)
{
    return Keyed(kind.keyLetter, number);
}

void AddRow(sandbox::Connection& database, const NumberedKind& kind, int number)
{
    const std::wstring day = L"'2003-05-0" + std::to_wstring(number) + L" 00:00:00'";
    database.Execute(IsContacts(kind)                           ? ContactRow(number, day)
                     : kind.itemKind == sandbox::ItemKind::Task ? TaskRow(number, day)
                                                                : EntryRow(number, day));
}

void DeleteRow(sandbox::Connection& database, const NumberedKind& kind, int number)
{
    database.Execute(L"DELETE FROM " + std::wstring(kind.table) + L" WHERE " + kind.keyColumn + L"=" +
                     SqlKey(kind.keyLetter, number));
}

void AddCompany(sandbox::Connection& database, const NumberedKind& kind, int number)
{
    const std::wstring account = SqlKey(kAccountLetter, number);
    database.Execute(L"INSERT INTO TBLACCOUNT (F_ACCID,F_ACCSNAME,F_ACCCURRIDX) VALUES (" + account + L"," +
                     Quoted(L'C', number) + L",2)");
    database.Execute(L"INSERT INTO TBLADDRESS (F_ADDRID,F_ACCID,F_ADDRCITY,F_ISPRIMARY) VALUES (" +
                     SqlKey(kAddressLetter, number) + L"," + account + L"," + Quoted(kHost, number) + L",1)");
    if (!IsContacts(kind))
    {
        database.Execute(L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) VALUES (" +
                         SqlKey(kContactLetter, number) + L",1," + Quoted(L'S', number) + L"," +
                         Quoted(L'F', number) + L")");
    }
}

void AddItem(const sandbox::MailboxRef& mailbox, const NumberedKind& kind, const std::wstring& path,
             int number)
{
    const bool isTask = kind.itemKind == sandbox::ItemKind::Task;
    mailbox->AddItem(path, IsContacts(kind) ? ContactValues(number)
                           : isTask         ? TaskValues(number)
                                            : EntryValues(number));
    if (kind.itemKind == sandbox::ItemKind::Appointment && number == kSeries)
    {
        MakeSeries(mailbox, path);
    }
}

} // namespace test_support
