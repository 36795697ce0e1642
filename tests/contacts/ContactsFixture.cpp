#include "tests/contacts/ContactsFixture.h"

#include "data/Host.h"
#include "state/SharedState.h"

namespace test_support
{

using automation::Object;

namespace
{

constexpr const wchar_t* kFolder = L"Personal Folders\\Contacts";
constexpr long kContactsFolder = 10; // olFolderContacts

} // namespace

long ContactsFixture::AddItem(const Properties& properties)
{
    return Mailbox->AddItem(kFolder, properties);
}

long ContactsFixture::AddNamedItem(Properties properties)
{
    properties.emplace_back(L"LastName", L"Miller");
    properties.emplace_back(L"FirstName", L"Ann");
    return AddItem(properties);
}

exchange::Run ContactsFixture::NewRun()
{
    const Object folder =
        Outlook.GetObject(L"GetNamespace", L"MAPI").GetObject(L"GetDefaultFolder", kContactsFolder);
    automation::Recordset rows;
    data::Host().OpenRecordset(rows, L"ContactMyContact");
    return {Display, rows, folder, folder.GetObject(L"Items"), {}, {}, {}};
}

bool ContactsFixture::Import(const std::vector<long>& positions)
{
    exchange::Run run = NewRun();
    for (const long position : positions)
    {
        run.Pending.NewOutlookItems.Add(std::to_wstring(position), 0);
    }
    return contacts::SynContactFromOutlook(run);
}

bool ContactsFixture::Overwrite(const std::vector<std::pair<long, long>>& pairs)
{
    exchange::Run run = NewRun();
    for (const auto& [item, row] : pairs)
    {
        run.Pending.ChangedOutlookItems.Add(std::to_wstring(item), 0);
        run.Pending.ChangedHostRecords.Add(row, 0);
    }
    return contacts::SynContactFromOutlook(run);
}

long ContactsFixture::Write(long mode, long position)
{
    exchange::Run run = NewRun();
    run.Relations.Use(L"Select * from SynRelation where QuenlarTblName='TBLCONTACT'", {});
    return contacts::SynOlContactToSynContact(run, data::RecordMode{mode},
                                              run.Items.GetObject(L"Item", position));
}

long ContactsFixture::AddRow(const std::vector<std::pair<std::wstring, std::wstring>>& columns)
{
    std::wstring names = L"F_CNTCTID,F_CREATORID";
    std::wstring values = L"lower(hex(randomblob(16)))," + std::to_wstring(TheHost.UserId());
    for (const auto& [name, value] : columns)
    {
        names += L"," + name;
        values += L"," + value;
    }
    Execute(L"INSERT INTO TBLCONTACT (" + names + L") VALUES (" + values + L")");
    return Count(L"TBLCONTACT");
}

bool ContactsFixture::Export(const std::vector<long>& rows)
{
    exchange::Run run = NewRun();
    for (const long row : rows)
    {
        run.Pending.NewHostRecords.Add(row, 0);
    }
    return contacts::SynContactToOutlook(run);
}

bool ContactsFixture::OverwriteItems(const std::vector<std::pair<long, long>>& pairs)
{
    exchange::Run run = NewRun();
    for (const auto& [row, item] : pairs)
    {
        run.Pending.ChangedHostRecords.Add(row, 1);
        run.Pending.ChangedOutlookItems.Add(std::to_wstring(item), 1);
    }
    return contacts::SynContactToOutlook(run);
}

long ContactsFixture::CountItems()
{
    return Mailbox->ItemCount(kFolder);
}

automation::Value ContactsFixture::PropertyOf(long position, const std::wstring& property)
{
    return Mailbox->ItemProperty(kFolder, position, property);
}

std::wstring ContactsFixture::TextIn(long position, const std::wstring& property)
{
    return automation::TextOf(PropertyOf(position, property));
}

void ContactsFixture::Relate(const std::vector<std::pair<std::wstring, std::wstring>>& rows)
{
    Execute(L"DELETE FROM SynRelation WHERE QuenlarTblName='TBLCONTACT'");
    for (const auto& [column, property] : rows)
    {
        std::wstring values = L"'TBLCONTACT','";
        values.append(column).append(L"','").append(property).append(L"'");
        Execute(L"INSERT INTO SynRelation (QuenlarTblName, EnglishName, OutlookName) VALUES (" + values +
                L")");
    }
}

std::wstring ContactsFixture::Found(const std::wstring& sql)
{
    const automation::Value value = TheHost.Database().QueryValue(sql);
    return automation::IsEmptyOrNull(value) ? L"NULL"
           : value.Type() == VT_DATE
               ? automation::Formatted(automation::DateOf(value), L"yyyy/mm/dd hh:mm:ss")
               : automation::TextOf(value);
}

bool ContactsFixture::NothingWritten()
{
    return !TheHost.Database().InTransaction() && Count(L"TBLCONTACT") == 0 && Count(L"TBLACCOUNT") == 0 &&
           Count(L"TBLACCINFO") == 0 && Count(L"TBLADDRESS") == 0;
}

} // namespace test_support
