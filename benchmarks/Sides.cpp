#include "benchmarks/Sides.h"

#include "automation/Error.h"
#include "data/Host.h"
#include "sandbox/database/DatabaseFile.h"
#include "sandbox/outlook/Classes.h"
#include "sandbox/outlook/Outlook.h"
#include "sandbox/outlook/Registration.h"
#include "state/SharedState.h"
#include "tools/sample_data/MailboxWriter.h"
#include "tools/sample_data/NumberedRecords.h"
#include "tools/sample_data/SampleData.h"

namespace benchmarks
{

using automation::Object;

namespace
{

constexpr long kPreviewAlarm = 20; // minutes, the host's usual setting

std::wstring CopyOf(const std::wstring& file)
{
    std::wstring copy = sandbox::TemporaryDatabasePath();
    if (!CopyFileW(file.c_str(), copy.c_str(), FALSE))
    {
        throw automation::Error(HRESULT_FROM_WIN32(GetLastError()), file);
    }
    return copy;
}

void Remove(const std::wstring& file)
{
    if (!file.empty())
    {
        DeleteFileW(file.c_str());
    }
}

template<typename Record>
void AddAll(sandbox::Mailbox& mailbox, const wchar_t* folder, const std::vector<Record>& records)
{
    for (const Record& record : records)
    {
        mailbox.AddItem(folder, tools::PropertiesOf(record));
    }
}

// The items that the mailbox file of this size has, in memory.
sandbox::MailboxRef MailboxInMemory(size_t count)
{
    const tools::SampleRecords records = tools::NumberedRecords(count / 2, count);
    sandbox::MailboxRef mailbox = sandbox::MakeMailbox();
    AddAll(*mailbox, L"Personal Folders\\Contacts", records.contacts);
    AddAll(*mailbox, L"Personal Folders\\Tasks", records.tasks);
    AddAll(*mailbox, L"Personal Folders\\Calendar", records.entries);
    return mailbox;
}

} // namespace

DataFiles::DataFiles(size_t count) : mCount(count), mHost(sandbox::TemporaryDatabasePath())
{
    tools::WriteNumberedHost(mHost, sandbox::Edition::English, count);
}

const std::wstring& DataFiles::Mailbox() const
{
    if (mMailbox.empty())
    {
        mMailbox = sandbox::TemporaryDatabasePath();
        tools::WriteNumberedMailbox(mMailbox, mCount);
    }
    return mMailbox;
}

DataFiles::~DataFiles()
{
    Remove(mHost);
    Remove(mMailbox);
}

Sides::Sides(const DataFiles& files, const Kind& kind, Place place)
    : mFiles(files),
      mKind(kind),
      mPlace(place),
      mHostCopy(CopyOf(files.Host())),
      mMailboxCopy(place == Place::OutOfProcess ? CopyOf(files.Mailbox()) : std::wstring()),
      mHost(std::make_unique<sandbox::Host>(mHostCopy))
{
    state::SharedState& shared = state::Shared();
    shared.gDTC = mHost->Dtc();
    shared.gCnnString = mHost->ConnectionString();
    shared.gCalendarPreviewAlarmTime = kPreviewAlarm;
    shared.gSynParameter = {};
    shared.gSynParameter.TransConflictOption = state::kNotifyMe;
    OpenOutlook();
}

void Sides::OpenOutlook()
{
    Object application;
    if (Where() == Place::OutOfProcess)
    {
        mControl = Object::Create(sandbox::outlook::kControlProgId);
        sandbox::outlook::ChooseMailbox(mMailboxCopy);
        application = Object::Create(sandbox::outlook::kOutlookProgId);
    }
    else
    {
        application = sandbox::MakeOutlook(MailboxInMemory(Count()));
    }
    state::Shared().gOlNamespace = application.GetObject(L"GetNamespace", L"MAPI");
}

Sides::~Sides()
{
    state::SharedState& shared = state::Shared();
    shared.gDTC = {};
    shared.gOlNamespace = {};
    shared.gCnnString.clear();
    shared.gSynParameter = {};
    mRows = {};
    mHost.reset();
    Remove(mHostCopy);
    Remove(mMailboxCopy);
}

exchange::Run Sides::NewRun()
{
    mRows = {};
    return AnotherRun();
}

exchange::Run Sides::AnotherRun()
{
    const Object folder = state::Shared().gOlNamespace.GetObject(L"GetDefaultFolder", mKind.DefaultFolder);
    exchange::Run run{.Display = mDisplay, .Folder = folder, .Items = folder.GetObject(L"Items")};
    run.Items.Get(L"Count"); // the fake reads the folder's items when they are first asked for
    if (!mRows)
    {
        const data::Host host;
        const exchange::Kind& category = mKind.Category;
        const std::wstring filter =
            category.SourceFilter == nullptr ? std::wstring() : category.SourceFilter(host);
        data::ThrowUnless(host.OpenRecordset(run.HostRows, category.RecordSource, filter) >= 0,
                          L"OpenRecordset");
        mRows = run.HostRows.AsObject();
    }
    run.HostRows = automation::Recordset(mRows);
    return run;
}

} // namespace benchmarks
