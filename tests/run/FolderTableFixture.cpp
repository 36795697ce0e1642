#include "tests/run/FolderTableFixture.h"

#include "automation/Dates.h"
#include "calendar/Calendar.h"
#include "contacts/Contacts.h"
#include "run/ChangeCollection.h"
#include "state/SharedState.h"
#include "tasks/Tasks.h"

namespace test_support
{

using automation::Date;
using automation::Object;
using automation::Value;
using state::Shared;

namespace
{

constexpr Date kStart{37747.375}; // 2003-05-06 09:00

NamedValues Task(const std::wstring& name)
{
    return {{L"Subject", name},
            {L"Categories", L"Phone"},
            {L"StartDate", Date{automation::DayOf(kStart)}},
            {L"Companies", L"Harbour"}};
}

Record TaskRow(const std::wstring& name)
{
    return {{L"F_ACTNAME", name},
            {L"F_ACTTYPE", L"Phone"},
            {L"F_ACTPSTIME", Date{automation::DayOf(kStart)}},
            {L"ACC_SNAME", L"Harbour"}};
}

NamedValues Appointment(const std::wstring& name)
{
    return {{L"Subject", name},
            {L"Categories", L"Meeting"},
            {L"Start", kStart},
            {L"End", automation::PlusMinutes(kStart, 60)}};
}

Record Entry(const std::wstring& name)
{
    return {{L"F_ACTNAME", name},
            {L"F_ACTTYPE", L"Meeting"},
            {L"F_ACTESDATE", Date{automation::DayOf(kStart)}},
            {L"F_ACTESTIME", Date{0.375}},
            {L"F_ACTEETIME", Value::Null()},
            {L"FR_NAME", Value::Null()}};
}

} // namespace

NamedValues Contact(const std::wstring& name)
{
    return {{L"LastName", name}, {L"FirstName", L"Ann"}, {L"CompanyName", L"Harbour"}};
}

Record ContactRow(const std::wstring& name)
{
    return {{L"F_SURNAME", name}, {L"F_GIVENNAME", L"Ann"}, {L"ACC_SNAME", L"Harbour"}};
}

const TableKind kContactTable{contacts::kContacts, L"Personal Folders\\Contacts", 10, Contact, ContactRow};
const TableKind kTaskTable{tasks::kTasks, L"Personal Folders\\Tasks", 13, Task, TaskRow};
const TableKind kCalendarTable{calendar::kCalendar, L"Personal Folders\\Calendar", 9, Appointment, Entry};
const std::array<std::reference_wrapper<const TableKind>, 3> kTables = {kContactTable, kTaskTable,
                                                                        kCalendarTable};

TableOfFolder::TableOfFolder()
{
    Host->UserId = L"1";
    Shared().gSynParameter = {};
    Shared().gSynParameter.TransConflictOption = state::kNotifyMe;
    Shared().gSynParameter.TransType = state::kBothWays;
    StartAgain();
}
TableOfFolder::~TableOfFolder()
{
    Shared() = {};
}

void TableOfFolder::StartAgain()
{
    Mailbox = sandbox::MakeMailbox();
    Mailbox->Switch(L"TableTextUnit", static_cast<long>(GetParam()));
    Shared().gOlApplication = sandbox::MakeOutlook(Mailbox);
    Shared().gOlNamespace = Shared().gOlApplication.GetObject(L"GetNamespace", L"MAPI");
}

void TableOfFolder::Fill(const TableKind& kind, long count)
{
    Rows->clear();
    for (long i = 1; i <= count; ++i)
    {
        const std::wstring name = L"Record with number " + std::to_wstring(i);
        Mailbox->AddItem(kind.folder, kind.item(name));
        Rows->push_back(kind.row(i % 2 == 0 ? name : name + L" of the host"));
    }
}

Object TableOfFolder::Folder(const TableKind& kind)
{
    return Shared().gOlNamespace.GetObject(L"GetDefaultFolder", kind.number);
}

std::wstring TableOfFolder::Collect(const TableKind& kind)
{
    exchange::Run run{.Display = Display, .Folder = Folder(kind)};
    run.Items = run.Folder.GetObject(L"Items");
    run.HostRows = MakeRows(Rows);
    run::ChangeCollection collection(kind.kind, run);
    EXPECT_FALSE(collection.CollectToOutlook() || collection.CollectFromOutlook());
    std::wstring text;
    const auto add = [&](const std::wstring& word) { text += word + L" "; };
    for (const auto& row : run.Pending.NewHostRecords)
    {
        add(L"+" + std::to_wstring(row.RecordBookmark) + L"=" + row.Key);
    }
    for (const auto& row : run.Pending.ChangedHostRecords)
    {
        add(std::to_wstring(row.RecordBookmark) + L"=" + row.Key);
    }
    for (const auto& item : run.Pending.ChangedOutlookItems)
    {
        add(item.ItemIndex + L"=" + item.EntryId);
    }
    for (const auto& item : run.Pending.NewOutlookItems)
    {
        add(L"+" + item.ItemIndex + L"=" + item.EntryId);
    }
    return text;
}

std::wstring TableOfFolder::CollectByItems(const TableKind& kind)
{
    Mailbox->Switch(L"NoTable", true);
    const std::wstring proposed = Collect(kind);
    Mailbox->Switch(L"NoTable", false);
    return proposed;
}

} // namespace test_support
