#include "tests/contacts/ContactsFixture.h"

#include "tests/support/InsertStatement.h"

namespace test_support
{

long ContactsFixture::AddNamedItem(Properties properties)
{
    properties.emplace_back(L"LastName", L"Miller");
    properties.emplace_back(L"FirstName", L"Ann");
    return AddItem(properties);
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

long ContactsFixture::AddRow(Pairs columns)
{
    columns.emplace_back(L"F_CNTCTID", L"lower(hex(randomblob(16)))");
    columns.emplace_back(L"F_CREATORID", std::to_wstring(TheHost.UserId()));
    Execute(InsertStatement(L"TBLCONTACT", columns));
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

std::wstring ContactsFixture::TextIn(long position, const std::wstring& property)
{
    return automation::TextOf(PropertyOf(position, property));
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
