#include "tools/sample_data/HostRows.h"

#include "sandbox/host/Catalogue.h"

#include <algorithm>
#include <cwchar>
#include <map>

namespace tools
{

namespace
{

using automation::Value;
using sandbox::Connection;
using sandbox::Row;

constexpr long kChineseCurrency = 1;
constexpr long kOtherCurrency = 2;

enum class KeyOf
{
    Account = 1,
    AccountInfo,
    Address,
    Contact,
    Task,
    Entry,
};

// A key in the form of those that the host makes, but the same each time.
std::wstring Key(KeyOf kind, long userId, size_t number)
{
    wchar_t text[40];
    std::swprintf(text, std::size(text), L"5A3D1E00-%04X-4000-8%03X-%012X", static_cast<unsigned>(kind),
                  static_cast<unsigned>(userId), static_cast<unsigned>(number + 1));
    return text;
}

Value OrNull(const std::wstring& text)
{
    return text.empty() ? Value::Null() : Value(text);
}

Value OrNull(const OptionalDate& date)
{
    return date ? Value(*date) : Value::Null();
}

class Writer
{
  public:
    Writer(Connection& database, const SampleRecords& records, long userId)
        : mDatabase(database), mRecords(records), mUserId(userId)
    {
        for (size_t i = 0; i < records.accounts.size(); ++i)
        {
            mAccounts.emplace(records.accounts[i].name, i);
        }
    }

    void AddAccounts();
    void AddContacts();
    void AddTasks();
    void AddEntries();

  private:
    Value AccountKey(const std::wstring& company) const;
    Value AddressKey(const std::wstring& company) const;
    Value ContactKey(const std::optional<size_t>& contact) const;
    // The rows of a table, one for each record.
    template<typename Record, typename MakeRow>
    void Add(const wchar_t* table, const wchar_t* columns, const std::vector<Record>& records,
             MakeRow makeRow);

    Connection& mDatabase;
    const SampleRecords& mRecords;
    long mUserId;
    std::map<std::wstring, size_t> mAccounts;
};

template<typename Record, typename MakeRow>
void Writer::Add(const wchar_t* table, const wchar_t* columns, const std::vector<Record>& records,
                 MakeRow makeRow)
{
    std::vector<Row> rows;
    for (size_t i = 0; i < records.size(); ++i)
    {
        rows.push_back(makeRow(i, records[i]));
    }
    AddRows(mDatabase, table, columns, rows);
}

Value Writer::AccountKey(const std::wstring& company) const
{
    const auto found = mAccounts.find(company);
    return found == mAccounts.end() ? Value::Null() : Value(Key(KeyOf::Account, mUserId, found->second));
}

Value Writer::AddressKey(const std::wstring& company) const
{
    const auto found = mAccounts.find(company);
    const bool hasAddress = found != mAccounts.end() && mRecords.accounts[found->second].address.has_value();
    return hasAddress ? Value(Key(KeyOf::Address, mUserId, found->second)) : Value::Null();
}

Value Writer::ContactKey(const std::optional<size_t>& contact) const
{
    return contact ? Value(Key(KeyOf::Contact, mUserId, *contact)) : Value::Null();
}

void Writer::AddAccounts()
{
    const Value type = mDatabase.QueryValue(L"SELECT F_AITID FROM TBLSYSINFO");
    Add(L"TBLACCOUNT", L"F_ACCID,F_CREATORID,F_ACCSNAME,F_ACCCURRIDX", mRecords.accounts,
        [&](size_t i, const SampleAccount& account) -> Row {
            return {Key(KeyOf::Account, mUserId, i), mUserId, account.name,
                    account.isChinese ? kChineseCurrency : kOtherCurrency};
        });
    Add(L"TBLACCINFO", L"F_AIID,F_AITID,F_ACCID", mRecords.accounts,
        [&](size_t i, const SampleAccount&) -> Row {
            return {Key(KeyOf::AccountInfo, mUserId, i), type, Key(KeyOf::Account, mUserId, i)};
        });
    for (size_t i = 0; i < mRecords.accounts.size(); ++i)
    {
        if (const auto& address = mRecords.accounts[i].address)
        {
            AddRows(mDatabase, L"TBLADDRESS",
                    L"F_ADDRID,F_ACCID,F_ADDRCOUNTRY,F_ADDRPROVINCE,F_ADDRCITY,F_ADDRDETAIL,F_POSTALCODE,"
                    L"F_ISPRIMARY",
                    {{Key(KeyOf::Address, mUserId, i), Key(KeyOf::Account, mUserId, i),
                      OrNull(address->country), OrNull(address->province), OrNull(address->city),
                      OrNull(address->street), OrNull(address->postalCode), true}});
        }
    }
}

void Writer::AddContacts()
{
    Add(L"TBLCONTACT",
        L"F_CNTCTID,F_CREATORID,F_ACCID,F_CNTADDRID,F_SURNAME,F_GIVENNAME,F_NICKNAME,F_TITLE,F_SUFFIX,"
        L"F_SPOUSE,F_BIRTHDAY,F_ANNIVERSARY,F_JOBTITLE,F_DEPARTMENT,F_EMAIL,F_BUSINESSPHONE,F_BUSINESSFAX,"
        L"F_MOBILEPHONE,F_HOMEPHONE,F_ASSISTANT,F_ASSISTANTPHONE,F_HOMECOUNTRY,F_HOMEPROVINCE,F_HOMECITY,"
        L"F_HOMESTREET,F_HOMEPOSTALCODE",
        mRecords.contacts, [&](size_t i, const SampleContact& contact) -> Row {
            const SampleAddress& home = contact.home;
            return {Key(KeyOf::Contact, mUserId, i),
                    mUserId,
                    AccountKey(contact.company),
                    AddressKey(contact.company),
                    contact.surname,
                    contact.givenName,
                    OrNull(contact.nickName),
                    OrNull(contact.title),
                    OrNull(contact.suffix),
                    OrNull(contact.spouse),
                    OrNull(contact.birthday),
                    OrNull(contact.anniversary),
                    OrNull(contact.jobTitle),
                    OrNull(contact.department),
                    OrNull(contact.email),
                    OrNull(contact.businessPhone),
                    OrNull(contact.businessFax),
                    OrNull(contact.mobilePhone),
                    OrNull(contact.homePhone),
                    OrNull(contact.assistant),
                    OrNull(contact.assistantPhone),
                    OrNull(home.country),
                    OrNull(home.province),
                    OrNull(home.city),
                    OrNull(home.street),
                    OrNull(home.postalCode)};
        });
}

void Writer::AddTasks()
{
    Add(L"TBLACTIVITY",
        L"F_ACTID,F_ACTORID,F_CREATORID,F_CNTCTID,F_ACCID,F_ACTNAME,F_ACTTYPE,F_ACTREMIND,F_ACTPSTIME,"
        L"F_ACTPETIME,F_ACTCTIME,F_ACTCREATETIME,F_ACTSTATUS,F_ACTPERCENT,F_ACTCOMPLETED,F_ACTPRIORITY,"
        L"F_ACTTOTALWORK,F_ACTACTUALWORK",
        mRecords.tasks, [&](size_t i, const SampleTask& task) -> Row {
            return {Key(KeyOf::Task, mUserId, i),
                    mUserId,
                    mUserId,
                    ContactKey(task.contact),
                    AccountKey(task.company),
                    task.subject,
                    OrNull(task.category),
                    task.reminds,
                    OrNull(task.start),
                    OrNull(task.due),
                    OrNull(task.completed),
                    OrNull(task.created),
                    static_cast<long>(task.status),
                    static_cast<double>(task.percent) / 100,
                    task.status == TaskStatus::Complete,
                    task.importance + 1, // the host counts from 1
                    task.totalWork,
                    task.actualWork};
        });
}

void Writer::AddEntries()
{
    Add(L"TBLACTIVITY",
        L"F_ACTID,F_ACTORID,F_CREATORID,F_CNTCTID,F_ACTNAME,F_ACTTYPE,F_ACTREMIND,F_ACTESDATE,F_ACTESTIME,"
        L"F_ACTEEDATE,F_ACTEETIME,F_ACTREPTIDX,F_ACTREPTEDATE",
        mRecords.entries, [&](size_t i, const SampleEntry& entry) -> Row {
            return {Key(KeyOf::Entry, mUserId, i),
                    mUserId,
                    mUserId,
                    ContactKey(entry.contact),
                    entry.subject,
                    OrNull(entry.category),
                    entry.reminds,
                    entry.day,
                    entry.start,
                    entry.day,
                    entry.end,
                    entry.repeat != 0 ? Value(entry.repeat) : Value::Null(),
                    OrNull(entry.lastRepeat)};
        });
}

} // namespace

void AddHostRows(Connection& database, const SampleRecords& records, long userId)
{
    Writer writer(database, records, userId);
    writer.AddAccounts();
    writer.AddContacts();
    writer.AddTasks();
    writer.AddEntries();
}

} // namespace tools
