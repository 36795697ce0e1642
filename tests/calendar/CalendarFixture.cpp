#include "tests/calendar/CalendarFixture.h"

#include "calendar/Calendar.h"
#include "tests/support/InsertStatement.h"

#include <algorithm>
#include <iterator>

namespace test_support
{

namespace
{

constexpr const wchar_t* kTables[] = {
    L"CREATE TABLE SynRelation (QuenlarTblName VARCHAR(50), EnglishName VARCHAR(50), OutlookName "
    L"VARCHAR(50))",
    L"CREATE TABLE SynFields (FieldName VARCHAR(50), FieldType INTEGER, FieldSize INTEGER)",
    L"CREATE TABLE Entries (F_ACTID VARCHAR(40), F_ACTNAME VARCHAR(100), F_ACTTYPE VARCHAR(50), F_ACTREMIND "
    L"BOOLEAN, F_ACTREPEATS BOOLEAN, F_ACTESDATE DATETIME, F_ACTESTIME DATETIME, F_ACTEEDATE DATETIME, "
    L"F_ACTEETIME DATETIME, F_ACTREPTEDATE DATETIME, ACT_DURATION DATETIME, FR_NAME VARCHAR(20), "
    L"CONTACT_SURNAME VARCHAR(50), CONTACT_GIVENNAME VARCHAR(50))",
    L"INSERT INTO SynFields VALUES ('F_ACTNAME',2,100),('F_ACTTYPE',2,50),('F_ACTREMIND',3,1),"
    L"('F_ACTREPEATS',3,1),('F_ACTESDATE',4,8),('F_ACTESTIME',5,8),('F_ACTEEDATE',4,8),('F_ACTEETIME',5,8),"
    L"('F_ACTREPTIDX',1,4),('F_ACTREPTEDATE',4,8),('F_ACCSNAME',2,100),('F_ACCCURRIDX',1,4)",
};

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

CalendarFixture::CalendarFixture()
{
    state::SharedState& shared = state::Shared();
    shared.gCnnString = mFile.ConnectionString();
    shared.gOlNamespace = mOutlook.GetObject(L"GetNamespace", L"MAPI");
    shared.gCalendarStartTime = {6.0 / 24};
    shared.gCalendarEndTime = {17.5 / 24};
    shared.gCalendarPreviewAlarmTime = 20;
    for (const wchar_t* statement : kTables)
    {
        Execute(statement);
    }
    Relate({{L"F_ACTNAME", L"Subject"},
            {L"F_ACTTYPE", L"Categories"},
            {L"F_ACTESDATE", L"Start"},
            {L"CONTACT_SURNAME", L"Recipients"},
            {L"F_ACTREMIND", L"ReminderSet"},
            {L"F_ACTREPEATS", L"IsRecurring"}});
}

CalendarFixture::~CalendarFixture()
{
    state::SharedState& shared = state::Shared();
    shared.gCnnString.clear();
    shared.gOlNamespace = {};
    shared.gCalendarStartTime = {};
    shared.gCalendarEndTime = {};
    shared.gCalendarPreviewAlarmTime = 0;
}

void CalendarFixture::Execute(const std::wstring& sql) const
{
    sandbox::Connection(state::Shared().gCnnString).Execute(sql);
}

void CalendarFixture::Relate(const Pairs& rows) const
{
    Execute(L"DELETE FROM SynRelation");
    for (const auto& [column, property] : rows)
    {
        Execute(L"INSERT INTO SynRelation VALUES ('VW_CALENDAR','" + column + L"','" + property + L"')");
    }
}

void CalendarFixture::AddEntry(const Pairs& columns) const
{
    Columns entry{{L"F_ACTID", L"'ACT' || (SELECT COUNT(*) + 1 FROM Entries)"},
                  {L"F_ACTNAME", L"'Meeting'"},
                  {L"F_ACTESDATE", L"'2003-05-06 00:00:00'"},
                  {L"F_ACTESTIME", L"'1899-12-30 09:30:00'"},
                  {L"F_ACTEETIME", L"'1899-12-30 11:00:00'"},
                  {L"ACT_DURATION", L"'1899-12-30 01:30:00'"}};
    for (const auto& [name, literal] : columns)
    {
        entry[name] = literal;
    }
    Execute(InsertStatement(L"Entries", entry));
}

exchange::Run CalendarFixture::NewRun()
{
    exchange::Run run{.Display = mDisplay};
    run.HostRows = automation::OpenRecordset(L"SELECT * FROM Entries", state::Shared().gCnnString,
                                             {.cursorLocation = automation::kCursorClient});
    run.Folder = Calendar();
    run.Items = run.Folder.GetObject(L"Items");
    return run;
}

Object CalendarFixture::WriteNewAppointment()
{
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(1L, 0);
    EXPECT_FALSE(calendar::SynCalendarToOutlook(run));
    return AppointmentAt(CountAppointments());
}

Object CalendarFixture::WriteExistingAppointment()
{
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 1);
    run.Pending.ChangedOutlookItems.Add(L"1", 1);
    EXPECT_FALSE(calendar::SynCalendarToOutlook(run));
    return AppointmentAt(1);
}

bool CalendarFixture::WriteAllEntries()
{
    exchange::Run run = NewRun();
    const long count = run.HostRows.RecordCount();
    for (long row = 1; row <= count; ++row)
    {
        run.Pending.NewHostRecords.Add(row, 0);
    }
    return calendar::SynCalendarToOutlook(run);
}

CalendarFixture::Columns CalendarFixture::InsertFirstAppointment()
{
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    EXPECT_FALSE(calendar::SynCalendarFromOutlook(run));
    return Written();
}

CalendarFixture::Columns CalendarFixture::UpdateFirstAppointment()
{
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 0);
    run.Pending.ChangedOutlookItems.Add(L"1", 0);
    EXPECT_FALSE(calendar::SynCalendarFromOutlook(run));
    return Written();
}

CalendarFixture::Columns CalendarFixture::Written() const
{
    const auto isWrite = [](const std::wstring& call) {
        return call.starts_with(L"Insert(TBLACTIVITY") || call.starts_with(L"Update(TBLACTIVITY");
    };
    const auto last = std::find_if(mHost->Calls.rbegin(), mHost->Calls.rend(), isWrite);
    Columns columns;
    if (last == mHost->Calls.rend())
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
