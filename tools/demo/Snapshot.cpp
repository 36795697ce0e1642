#include "tools/demo/Snapshot.h"

namespace tools::demo
{

namespace
{

using automation::TextOrEmpty;
using automation::Value;
using sandbox::Connection;
using sandbox::Row;

constexpr const wchar_t* kContacts = L"SELECT F_CNTCTID, COALESCE(F_SURNAME,'')||', "
                                     L"'||COALESCE(F_GIVENNAME,'') AS Label, TBLCONTACT.* FROM TBLCONTACT";
constexpr const wchar_t* kAccounts = L"SELECT F_ACCID, F_ACCSNAME AS Label, TBLACCOUNT.* FROM TBLACCOUNT";
constexpr const wchar_t* kActivities = L"SELECT F_ACTID, F_ACTNAME AS Label, TBLACTIVITY.* FROM TBLACTIVITY";
constexpr const wchar_t* kItems =
    L"SELECT FolderPath, ItemIndex, Name, Value FROM ItemProperty ORDER BY FolderPath, ItemIndex, Name";

std::wstring Joined(const Row& row)
{
    std::wstring text;
    for (const Value& value : row)
    {
        text += TextOrEmpty(value) + L'\x1F';
    }
    return text;
}

// Rows whose first column is the key and whose second one is the label.
Entries ReadTable(Connection& connection, const wchar_t* query)
{
    Entries entries;
    for (const Row& row : connection.Query(query).rows)
    {
        entries[TextOrEmpty(row[0])] = {TextOrEmpty(row[1]), Joined(row)};
    }
    return entries;
}

// Times that the mailbox itself keeps say nothing about what was written.
bool IsBookkeeping(const std::wstring& property)
{
    return property == L"LastModificationTime" || property == L"CreationTime" || property == L"EntryID";
}

void AddToLabel(std::wstring& label, const std::wstring& property, const std::wstring& value)
{
    if (property == L"Subject" || property == L"LastName")
    {
        label = label.empty() ? value : value + L", " + label;
    }
    else if (property == L"FirstName")
    {
        label = label.empty() ? value : label + L", " + value;
    }
}

Entries ReadItems(Connection& mailbox)
{
    Entries entries;
    for (const Row& row : mailbox.Query(kItems).rows)
    {
        const std::wstring property = TextOrEmpty(row[2]);
        const std::wstring value = TextOrEmpty(row[3]);
        Entry& entry = entries[TextOrEmpty(row[0]) + L"\\" + TextOrEmpty(row[1])];
        AddToLabel(entry.label, property, value);
        if (!IsBookkeeping(property))
        {
            entry.content.append(property).append(L"=").append(value).append(L"\x1F");
        }
    }
    return entries;
}

} // namespace

Snapshot TakeSnapshot(Connection& host, Connection& mailbox)
{
    return {ReadTable(host, kContacts), ReadTable(host, kAccounts), ReadTable(host, kActivities),
            ReadItems(mailbox)};
}

Difference Compare(const Entries& before, const Entries& after)
{
    Difference difference;
    for (const auto& [key, entry] : after)
    {
        const auto old = before.find(key);
        if (old == before.end())
        {
            difference.added.push_back(entry.label);
        }
        else if (old->second.content != entry.content)
        {
            difference.changed.push_back(entry.label);
        }
    }
    return difference;
}

} // namespace tools::demo
