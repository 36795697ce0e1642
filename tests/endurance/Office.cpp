#include "tests/endurance/Office.h"

#include "automation/Text.h"
#include "sandbox/database/DatabaseFile.h"
#include "tests/support/RunCodes.h"
#include "tools/demo/Installation.h"
#include "tools/sample_data/SampleData.h"

#include <utility>

namespace test_support
{

using automation::LongOf;
using automation::Object;
using namespace sandbox;
using namespace tools;
using namespace tools::demo;

namespace
{

// All but those that add what is there or ask for each record.
constexpr long kRulesOfRound[] = {kIgnoreAll, kHostWins, kOutlookWins};

std::wstring NewFile(void (*write)(const std::wstring& path, Edition edition, size_t records),
                     Edition edition, size_t records)
{
    std::wstring path = TemporaryDatabasePath();
    write(path, edition, records);
    return path;
}

void WriteMailboxFile(const std::wstring& path, Edition /*edition*/, size_t records)
{
    WriteNumberedMailbox(path, records);
}

std::wstring FolderOf(const RecordKind& kind)
{
    return std::wstring(L"Mailbox\\") + kind.folderName; // as the sample data has it
}

} // namespace

Office::Office(Edition edition, size_t records)
    : mHostFile(NewFile(WriteNumberedHost, edition, records)),
      mMailboxFile(NewFile(WriteMailboxFile, edition, records)),
      mHost(mHostFile),
      mMailbox(OpenMailbox(mMailboxFile)),
      mRecords(static_cast<long>(records + records / 2))
{
    InstallOutlookProfile(Profiles::Modern);
    for (const RecordKind* kind : kRecordKinds)
    {
        Run({kind, kExport}, NewComponent());
        Run({kind, kImport}, NewComponent());
    }
}

Office::~Office()
{
    DeleteFileW(mHostFile.c_str());
    DeleteFileW(mMailboxFile.c_str());
}

Office::Counts Office::CountsOf(const RecordKind& kind)
{
    return {LongOf(mHost.Database().QueryValue(std::wstring(L"SELECT count(*) FROM ") + kind.view)),
            mMailbox->ItemCount(FolderOf(kind))};
}

void Office::LoseOne(const Use& use)
{
    if (use.direction == kExport)
    {
        const auto first = mMailbox->Items(*mMailbox->FindFolder(FolderOf(*use.kind))).front();
        mMailbox->Delete(first);
        return;
    }
    const std::wstring number = use.kind->numberColumn;
    mHost.Database().Execute(std::wstring(L"DELETE FROM ") + use.kind->table + L" WHERE " + number +
                             L"=(SELECT min(" + number + L") FROM " + use.kind->view + L")");
}

Outcome Office::Run(const Use& use, const Object& component)
{
    Options options;
    options.TransType = use.direction;
    options.ConflictOption = use.rule;
    options.Decline = use.decline;
    StoreSettings(mHost.Database(), std::to_wstring(mHost.UserId()), options);
    ++mRuns;
    const OutlookInProcess outlook(mMailbox); // while it is used: another office may be on this thread
    Outcome outcome;
    Robot robot(
        [&](Robot& running) {
            Conversation conversation(running, options);
            if (WhileShown)
            {
                WhileShown(running.WaitForDialog());
            }
            if (use.tour)
            {
                conversation.Tour();
            }
            outcome = conversation.RunCategory(use.kind->option);
            conversation.CloseMainDialog();
        },
        std::chrono::minutes(1));
    Object dtc = mHost.Dtc();
    component.Call(L"SynLoad", automation::ByRef(dtc), mHost.ConnectionString());
    robot.Finish();
    return outcome;
}

std::string Office::Fault(const Use& use, const Outcome& outcome)
{
    const std::wstring what = std::wstring(use.kind->option) + L", direction " +
                              std::to_wstring(use.direction) + L", rule " + std::to_wstring(use.rule) +
                              (use.decline ? L", declined: " : L": ");
    if (!outcome.succeeded)
    {
        return automation::ToUtf8(what + L"the status reads \"" + outcome.status + L"\"");
    }
    const long missing = use.decline ? 1 : 0;
    const bool isOutlookShort = use.direction == kExport;
    const Counts expected = {mRecords - (isOutlookShort ? 0 : missing),
                             mRecords - (isOutlookShort ? missing : 0)};
    const Counts actual = CountsOf(*use.kind);
    return actual == expected
               ? std::string()
               : automation::ToUtf8(what + std::to_wstring(actual.host) + L" in the host and " +
                                    std::to_wstring(actual.outlook) + L" in Outlook");
}

std::string Office::Check(const Use& use, const Object& component)
{
    LoseOne(use);
    std::string fault = Fault(use, Run(use, component));
    if (fault.empty() && use.decline)
    {
        Use accepted = use;
        accepted.decline = false;
        accepted.tour = false;
        fault = Fault(accepted, Run(accepted, component));
    }
    return fault.empty() ? automation::ToUtf8(mHost.LastRejection()) : fault;
}

std::string Office::Check(const Use& use)
{
    return Check(use, NewComponent());
}

Object NewComponent()
{
    return Object::Create(L"TelvixOutlook.ClsSynOutlook");
}

Use UseNumber(size_t k)
{
    const size_t kind = k % kRecordKinds.size();
    const size_t direction = k / kRecordKinds.size() % std::size(kDirections);
    return {kRecordKinds[kind], kDirections[direction],
            kRulesOfRound[(kind + direction) % std::size(kRulesOfRound)], k % kUsesOfRound == 4,
            k % kUsesOfRound == 0};
}

} // namespace test_support
