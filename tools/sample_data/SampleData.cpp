#include "tools/sample_data/SampleData.h"

#include "sandbox/database/DatabaseFile.h"
#include "sandbox/host/Schema.h"
#include "tools/sample_data/HostRows.h"
#include "tools/sample_data/MailboxWriter.h"
#include "tools/sample_data/NumberedRecords.h"
#include "tools/sample_data/SampleSets.h"

#include <map>

namespace tools
{

namespace
{

using automation::Value;
using sandbox::Connection;
using sandbox::Edition;
using sandbox::kFirstUser;
using sandbox::kSecondUser;
using sandbox::outlook::ItemKind;

struct FolderRow
{
    const wchar_t* path;
    ItemKind type;
};

constexpr FolderRow kFolders[] = {
    {L"Mailbox", ItemKind::Mail},
    {kContactsFolder, ItemKind::Contact},
    {L"Mailbox\\Contacts\\Partners", ItemKind::Contact},
    {kTasksFolder, ItemKind::Task},
    {L"Mailbox\\Tasks\\Projects", ItemKind::Task},
    {kCalendarFolder, ItemKind::Appointment},
    {L"Mailbox\\Calendar\\Trips", ItemKind::Appointment},
    {L"Mailbox\\Inbox", ItemKind::Mail},
    {L"Mailbox\\Notes", ItemKind::Note},
    {L"Archive", ItemKind::Mail},
    {L"Archive\\Contacts 2002", ItemKind::Contact},
    {L"Archive\\Tasks 2002", ItemKind::Task},
    {L"Archive\\Calendar 2002", ItemKind::Appointment},
    {L"Archive\\客户资料", ItemKind::Contact},
};

// The numbers of the kinds of data in the host's parameter tables.
constexpr long kContactKind = 10;
constexpr long kTaskKind = 20;
constexpr long kCalendarKind = 30;

struct ChosenFolder
{
    const wchar_t* path;
    long kind;
    bool isDefault;
};

constexpr ChosenFolder kChosenFolders[] = {
    {kContactsFolder, kContactKind, true},  {L"Mailbox\\Contacts\\Partners", kContactKind, false},
    {kTasksFolder, kTaskKind, true},        {L"Mailbox\\Tasks\\Projects", kTaskKind, false},
    {kCalendarFolder, kCalendarKind, true}, {L"Mailbox\\Calendar\\Trips", kCalendarKind, false},
};

void WriteHost(const std::wstring& path, Edition edition, const std::function<void(Connection&)>& addRecords)
{
    sandbox::WriteDatabaseFile(path, [&](Connection& database) {
        sandbox::CreateHostSchema(database);
        FillHostCatalogue(database, edition);
        addRecords(database);
        for (const ChosenFolder& folder : kChosenFolders)
        {
            AddRows(database, L"T_POutlookSyncFolder", L"F_UID,TransObjectID,OutlookFolder,IsDefault",
                    {{kFirstUser, folder.kind, folder.path, folder.isDefault}});
        }
    });
}

void WriteMailbox(const std::wstring& path, const std::function<void(MailboxWriter&)>& addItems)
{
    sandbox::WriteDatabaseFile(path, [&](Connection& database) {
        MailboxWriter writer(database);
        for (const FolderRow& folder : kFolders)
        {
            writer.AddFolder(folder.path, folder.type);
        }
        addItems(writer);
    });
}

// The items that Outlook shares with the host; those with a contact are linked to it.
class SharedItems
{
  public:
    SharedItems(MailboxWriter& writer, const SampleRecords& records) : mWriter(writer), mRecords(records) {}

    void Add()
    {
        for (size_t i = 0; i < mRecords.contacts.size(); ++i)
        {
            if (IsContactInOutlook(i))
            {
                const SampleContact contact = AsInOutlook(mRecords.contacts[i], i);
                mContacts.emplace(i, mWriter.Add(kContactsFolder, PropertiesOf(contact)));
            }
        }
        AddLinked(mRecords.tasks, kTasksFolder, IsTaskInOutlook);
        AddLinked(mRecords.entries, kCalendarFolder, IsEntryInOutlook);
    }

  private:
    template<typename Record>
    void AddLinked(const std::vector<Record>& records, const wchar_t* folder, bool (*isInOutlook)(size_t))
    {
        for (size_t i = 0; i < records.size(); ++i)
        {
            if (!isInOutlook(i))
            {
                continue;
            }
            const long index = mWriter.Add(folder, PropertiesOf(AsInOutlook(records[i], i)));
            if (const std::optional<size_t> contact = records[i].contact)
            {
                mWriter.Link(folder, index, kContactsFolder, mContacts.at(*contact));
            }
        }
    }

    MailboxWriter& mWriter;
    const SampleRecords& mRecords;
    std::map<size_t, long> mContacts; // by their number in the records
};

template<typename Record>
void AddAll(MailboxWriter& writer, const wchar_t* folder, const std::vector<Record>& records)
{
    for (const Record& record : records)
    {
        writer.Add(folder, PropertiesOf(record));
    }
}

// The records in turn to several folders.
template<typename Record>
void Spread(MailboxWriter& writer, std::initializer_list<const wchar_t*> folders,
            const std::vector<Record>& records)
{
    for (size_t i = 0; i < records.size(); ++i)
    {
        writer.Add(folders.begin()[i % folders.size()], PropertiesOf(records[i]));
    }
}

void AddMailAndNotes(MailboxWriter& writer)
{
    const Value received = Value(automation::Date{kSampleToday.days + 0.375});
    writer.Add(L"Mailbox\\Inbox", {{L"Subject", L"Welcome"}, {L"ReceivedTime", received}});
    writer.Add(L"Mailbox\\Inbox", {{L"Subject", L"回复：报价单"}, {L"ReceivedTime", received}});
    writer.Add(L"Mailbox\\Notes",
               {{L"Body", L"Ask Anna for the key"}, {L"Subject", L"Ask Anna for the key"}});
    // A company without a person: it has no name that the host could take.
    writer.Add(L"Mailbox\\Contacts\\Partners",
               {{L"CompanyName", L"City Taxi"}, {L"BusinessTelephoneNumber", L"+49 3641 19410"}});
    // As made by the oldest Outlook that there is.
    writer.Add(L"Mailbox\\Tasks\\Projects",
               {{L"Subject", L"Move the old files"}, {L"OutlookVersion", L"8.5"}});
}

} // namespace

void WriteSampleHost(const std::wstring& path, Edition edition)
{
    WriteHost(path, edition, [](Connection& database) {
        AddHostRows(database, Samples().mine, kFirstUser);
        AddHostRows(database, Samples().theirs, kSecondUser);
    });
}

void WriteSampleMailbox(const std::wstring& path)
{
    WriteMailbox(path, [](MailboxWriter& writer) {
        const SampleSets& sets = Samples();
        SharedItems(writer, sets.mine).Add();
        AddAll(writer, kContactsFolder, sets.outlookOnly.contacts);
        AddAll(writer, kTasksFolder, sets.outlookOnly.tasks);
        AddAll(writer, kCalendarFolder, sets.outlookOnly.entries);
        Spread(writer, {L"Mailbox\\Contacts\\Partners", L"Archive\\Contacts 2002", L"Archive\\客户资料"},
               sets.elsewhere.contacts);
        Spread(writer, {L"Mailbox\\Tasks\\Projects", L"Archive\\Tasks 2002"}, sets.elsewhere.tasks);
        Spread(writer, {L"Mailbox\\Calendar\\Trips", L"Archive\\Calendar 2002"}, sets.elsewhere.entries);
        AddMailAndNotes(writer);
    });
}

void WriteNumberedHost(const std::wstring& path, Edition edition, size_t count)
{
    WriteHost(path, edition, [count](Connection& database) {
        AddHostRows(database, NumberedRecords(0, count), kFirstUser);
    });
}

void WriteNumberedMailbox(const std::wstring& path, size_t count)
{
    WriteMailbox(path, [count](MailboxWriter& writer) {
        const SampleRecords records = NumberedRecords(count / 2, count);
        AddAll(writer, kContactsFolder, records.contacts);
        AddAll(writer, kTasksFolder, records.tasks);
        AddAll(writer, kCalendarFolder, records.entries);
    });
}

} // namespace tools
