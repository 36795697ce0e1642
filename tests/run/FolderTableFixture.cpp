#include "tests/run/FolderTableFixture.h"

#include "run/ChangeCollection.h"

namespace test_support
{

namespace
{

using automation::Date;
using NamedValues = sandbox::Mailbox::NamedValues;

constexpr Date kStart{37747.375}; // 2003-05-06 09:00

NamedValues Contact(const std::wstring& name)
{
    return {{L"LastName", name}, {L"FirstName", L"Ann"}, {L"CompanyName", L"Harbour"}};
}

Record ContactRow(const std::wstring& name)
{
    return {{L"F_SURNAME", name}, {L"F_GIVENNAME", L"Ann"}, {L"ACC_SNAME", L"Harbour"}};
}

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

const TableKind kContactTable{kContactKind, Contact, ContactRow};
const TableKind kTaskTable{kTaskKind, Task, TaskRow};
const TableKind kCalendarTable{kCalendarKind, Appointment, Entry};
const std::array<std::reference_wrapper<const TableKind>, 3> kTables = {kContactTable, kTaskTable,
                                                                        kCalendarTable};

FolderTableFixture::FolderTableFixture()
{
    TheHost.SetSysDateTime(Date{37747.5}); // later on that day
    state::Shared().gSynParameter.TransConflictOption = state::kNotifyMe;
    state::Shared().gSynParameter.TransType = state::kBothWays;
}

void FolderTableFixture::Fill(const TableKind& kind, long count)
{
    Rows->clear();
    for (long i = 1; i <= count; ++i)
    {
        const std::wstring name = L"Record with number " + std::to_wstring(i);
        Mailbox->AddItem(kind.folder, kind.item(name));
        Rows->push_back(kind.row(i % 2 == 0 ? name : name + L" of the host"));
    }
}

std::wstring FolderTableFixture::Collect(const TableKind& kind)
{
    exchange::Run run = RunOverFolder(kind, Display);
    run.HostRows = MakeRows(Rows);
    run::ChangeCollection collection(kind.tested, run);
    EXPECT_FALSE(collection.CollectToOutlook() || collection.CollectFromOutlook());
    std::wstring text;
    const auto add = [&](const std::wstring& word) { text += word + L" "; };
    for (const auto& row : run.Pending.NewHostRecords)
    {
        add(L"+" + std::to_wstring(row.RecordBookmark) + L"=" + row.Key.Text());
    }
    for (const auto& row : run.Pending.ChangedHostRecords)
    {
        add(std::to_wstring(row.RecordBookmark) + L"=" + row.Key.Text());
    }
    for (const auto& item : run.Pending.ChangedOutlookItems)
    {
        add(item.ItemIndex + L"=" + item.EntryId.Text());
    }
    for (const auto& item : run.Pending.NewOutlookItems)
    {
        add(L"+" + item.ItemIndex + L"=" + item.EntryId.Text());
    }
    return text;
}

std::wstring FolderTableFixture::CollectByItems(const TableKind& kind)
{
    Mailbox->Switch(L"NoTable", true);
    std::wstring proposed = Collect(kind);
    Mailbox->Switch(L"NoTable", false);
    return proposed;
}

} // namespace test_support
