#include "tests/faults/TwoSides.h"

#include "automation/Text.h"
#include "tests/support/Days.h"
#include "tests/support/TestedKind.h"

#include <algorithm>
#include <array>

namespace test_support
{

namespace
{

using automation::Object;
using automation::TextOrEmpty;

constexpr const wchar_t* kContacts = kContactRecords.folder;
constexpr const wchar_t* kTasks = kTaskRecords.folder;
constexpr const wchar_t* kCalendar = kCalendarRecords.folder;

constexpr const wchar_t* kTables[] = {L"TBLACTIVITY", L"TBLCONTACT", L"TBLADDRESS", L"TBLACCINFO",
                                      L"TBLACCOUNT"};

constexpr const wchar_t* kRows[] = {
    L"INSERT INTO TBLACCOUNT (F_ACCID,F_ACCSNAME,F_ACCCURRIDX) VALUES ('A1','Acme',2)",
    L"INSERT INTO TBLACCINFO (F_AIID,F_AITID,F_ACCID) VALUES ('I1','1','A1')",
    L"INSERT INTO TBLADDRESS (F_ADDRID,F_ACCID,F_ADDRCITY,F_ISPRIMARY) VALUES ('D1','A1','Bonn',1)",
    L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME,F_ACCID,F_CNTADDRID,F_NICKNAME) "
    L"VALUES ('C1',1,'Miller','Ann','A1','D1','Host'), ('C2',1,'Host','Only',NULL,NULL,NULL)",
    L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_CREATORID,F_ACTNAME,F_ACTTYPE,F_ACTPRIORITY,F_ACTPSTIME,"
    L"F_ACTREMIND,F_ACTSTATUS,F_ACTPERCENT,F_ACTCOMPLETED,F_CNTCTID,F_ACCID) VALUES "
    L"('T1',1,1,'Pair','Call',2,'2003-05-06 09:30:00',1,1,0.5,0,NULL,'A1'),"
    L"('T2',1,1,'Host only','Visit',3,'2003-05-07 09:30:00',0,1,0.25,0,'C2',NULL)",
    L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_CREATORID,F_ACTNAME,F_ACTTYPE,F_ACTREMIND,F_ACTESDATE,"
    L"F_ACTESTIME,F_ACTEEDATE,F_ACTEETIME,F_ACTREPTIDX,F_ACTREPTEDATE,F_CNTCTID) VALUES "
    L"('E1',1,1,'Pair','Call',1,'2003-05-06 00:00:00','1899-12-30 09:30:00','2003-05-06 00:00:00',"
    L"'1899-12-30 11:00:00',NULL,NULL,NULL),"
    L"('E2',1,1,'Host only','Visit',0,'2003-05-07 00:00:00','1899-12-30 09:30:00','2003-05-07 00:00:00',"
    L"'1899-12-30 10:00:00',1,'2003-05-20 00:00:00','C2')",
};

// The records as a user sees them, with their dependent rows.
constexpr const wchar_t* kRecords[] = {
    L"SELECT 'contact', * FROM VW_CONTACT",
    L"SELECT 'task', * FROM VW_ACTIVITY",
    L"SELECT 'entry', * FROM VW_CALENDAR",
    L"SELECT 'account', F_ACCSNAME, F_ACCCURRIDX FROM TBLACCOUNT",
    L"SELECT 'address', F_ACCSNAME, d.* FROM TBLADDRESS d LEFT JOIN TBLACCOUNT a ON a.F_ACCID=d.F_ACCID",
};

// Keys differ from run to run.
bool IsKey(const std::wstring& column)
{
    constexpr std::array<const wchar_t*, 8> kKeys = {L"F_CNTCTNO", L"F_CNTCTID", L"F_ACCID",  L"F_CNTADDRID",
                                                     L"F_ACTNO",   L"F_ACTID",   L"F_ADDRID", L"F_CREATORID"};
    return std::ranges::find(kKeys, column) != kKeys.end();
}

std::wstring Described(const sandbox::ResultSet& rows, const sandbox::Row& row)
{
    std::wstring text;
    for (size_t i = 0; i < row.size(); ++i)
    {
        if (!IsKey(rows.columns[i].name) && !automation::IsEmptyOrNull(row[i]))
        {
            text += rows.columns[i].name + L"=" + TextOrEmpty(row[i]) + L"; ";
        }
    }
    return text;
}

bool IsBookkeeping(sandbox::outlook::PropertyId id)
{
    using sandbox::outlook::PropertyId;
    return id == PropertyId::CreationTime || id == PropertyId::LastModificationTime;
}

// A further link to the same contact, which a written task collects each time, makes no difference.
std::wstring Described(sandbox::Mailbox& mailbox, const sandbox::outlook::StoredItem& item)
{
    std::wstring text = item.folder->Name() + L": ";
    for (const auto& [id, value] : item.properties)
    {
        if (!IsBookkeeping(id) && !TextOrEmpty(value).empty())
        {
            text += std::to_wstring(static_cast<int>(id)) + L"=" + TextOrEmpty(value) + L"; ";
        }
    }
    const std::set<std::wstring> links(item.links.begin(), item.links.end());
    for (const std::wstring& link : links)
    {
        text += mailbox.Follow(link) ? L"linked; " : L"linked to nothing; ";
    }
    return text;
}

} // namespace

TwoSides::TwoSides(sandbox::Creator makeRecordset) : TestOffice(std::move(makeRecordset))
{
    Execute(L"PRAGMA synchronous=OFF"); // thousands of short transactions, none of value
    Reset();
}

void TwoSides::Reset()
{
    sandbox::Connection& database = TheHost.Database();
    database.Begin();
    for (const wchar_t* table : kTables)
    {
        database.Execute(L"DELETE FROM " + std::wstring(table));
    }
    for (const wchar_t* row : kRows)
    {
        database.Execute(row);
    }
    database.Commit();
    UseNewMailbox();
    AddItems();
}

void TwoSides::AddItems()
{
    Mailbox->AddItem(kContacts, {{L"LastName", L"Miller"},
                                 {L"FirstName", L"Ann"},
                                 {L"CompanyName", L"Acme"},
                                 {L"NickName", L"Outlook"},
                                 {L"BusinessAddressCity", L"Paris"}});
    Mailbox->AddItem(kContacts, {{L"LastName", L"Outlook"},
                                 {L"FirstName", L"Only"},
                                 {L"CompanyName", L"New Inc."},
                                 {L"BusinessAddressCity", L"Rome"},
                                 {L"Birthday", Day(2003, 5, 3)}});
    Mailbox->AddItem(kTasks, {{L"Subject", L"Pair"},
                              {L"Categories", L"Call"},
                              {L"Companies", L"Acme"},
                              {L"StartDate", Day(2003, 5, 6)},
                              {L"CreationTime", Day(2003, 5, 1)}});
    Mailbox->AddItem(kTasks, {{L"Subject", L"Outlook only"},
                              {L"Companies", L"Newer Inc."},
                              {L"ContactNames", L"MillerAnn"},
                              {L"DueDate", Day(2003, 5, 9)},
                              {L"CreationTime", Day(2003, 5, 1)}});
    Mailbox->AddItem(kCalendar, {{L"Subject", L"Pair"},
                                 {L"Categories", L"Call"},
                                 {L"Start", Day(2003, 5, 6, 9, 30)},
                                 {L"End", Day(2003, 5, 6, 11)}});
    Mailbox->AddItem(kCalendar, {{L"Subject", L"Outlook only"},
                                 {L"Companies", L"Newest Inc."},
                                 {L"Start", Day(2003, 5, 8, 9)},
                                 {L"End", Day(2003, 5, 8, 10)}});
    const Object items = DefaultFolder(kCalendarKind).GetObject(L"Items");
    const Object repeating = items.GetObject(L"Add");
    repeating.Put(L"Subject", L"Every day");
    repeating.Put(L"Start", Day(2003, 5, 12, 9));
    repeating.Put(L"End", Day(2003, 5, 12, 10));
    const Object pattern = repeating.GetObject(L"GetRecurrencePattern");
    pattern.Put(L"RecurrenceType", 0L);
    pattern.Put(L"PatternEndDate", Day(2003, 5, 20));
    repeating.Call(L"Save");
}

TwoStates TwoSides::Look()
{
    TwoStates states;
    for (const wchar_t* query : kRecords)
    {
        const sandbox::ResultSet rows = TheHost.Database().Query(query);
        for (const sandbox::Row& row : rows.rows)
        {
            states.Host.insert(Described(rows, row));
        }
    }
    for (const wchar_t* path : {kContacts, kTasks, kCalendar})
    {
        for (const sandbox::outlook::StoredItemRef& item : Mailbox->Items(*Mailbox->FindFolder(path)))
        {
            states.Outlook.insert(Described(*Mailbox, *item));
        }
    }
    return states;
}

long TwoSides::PartsWithoutAWhole()
{
    return automation::LongOf(TheHost.Database().QueryValue(
        L"SELECT (SELECT COUNT(*) FROM TBLACCOUNT WHERE F_ACCID NOT IN (SELECT F_ACCID FROM TBLACCINFO)) + "
        L"(SELECT COUNT(*) FROM TBLACCINFO WHERE F_ACCID NOT IN (SELECT F_ACCID FROM TBLACCOUNT)) + "
        L"(SELECT COUNT(*) FROM TBLADDRESS WHERE F_ACCID NOT IN (SELECT F_ACCID FROM TBLACCOUNT))"));
}

} // namespace test_support
