#include "tests/end_to_end/Exchange.h"

#include "automation/Object.h"
#include "resources/Strings.h"
#include "sandbox/outlook/Registration.h"
#include "tests/support/Thoroughness.h"
#include "tools/demo/Installation.h"
#include "tools/sample_data/SampleData.h"

namespace test_support
{

using automation::ByRef;
using automation::LongOf;
using automation::Object;
using namespace sandbox;
using namespace tools;
using namespace tools::demo;

namespace
{

std::wstring NewFolder()
{
    static int number = 0;
    wchar_t temporary[MAX_PATH];
    GetTempPathW(ARRAYSIZE(temporary), temporary);
    std::wstring folder = std::wstring(temporary) + L"telvix-exchange-" +
                          std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++number);
    CreateDirectoryW(folder.c_str(), nullptr);
    DeleteFileW((folder + L"\\host.db").c_str());
    DeleteFileW((folder + L"\\outlook.db").c_str());
    return folder;
}

} // namespace

long Records()
{
    return ByThoroughness(8, 20, 40);
}

Exchange::Exchange() : mFolder(NewFolder())
{
    const std::wstring hostFile = mFolder + L"\\host.db";
    const std::wstring mailboxFile = mFolder + L"\\outlook.db";
    WriteNumberedHost(hostFile, resources::IsChinese() ? Edition::Chinese : Edition::English,
                      static_cast<size_t>(Records()));
    WriteNumberedMailbox(mailboxFile, static_cast<size_t>(Records()));
    mHost = std::make_unique<Host>(hostFile);
    mMailbox = std::make_unique<Connection>(ConnectionStringOf(mailboxFile));
    InstallOutlookProfile(Profiles::Modern);
    outlook::ChooseMailbox(mailboxFile);
}

Exchange::~Exchange()
{
    mHost.reset();
    mMailbox.reset();
    DeleteFileW((mFolder + L"\\host.db").c_str());
    DeleteFileW((mFolder + L"\\outlook.db").c_str());
    RemoveDirectoryW(mFolder.c_str());
}

Outcome Exchange::Run(const std::wstring& category, long direction, long rule, bool decline)
{
    Options options;
    options.TransType = direction;
    options.ConflictOption = rule;
    options.Decline = decline;
    options.Details = LooksAtReport;
    StoreSettings(mHost->Database(), std::to_wstring(mHost->UserId()), options);
    Outcome outcome;
    Robot robot(
        [&](Robot& running) {
            Conversation conversation(running, options);
            outcome = conversation.RunCategory(category);
            conversation.CloseMainDialog();
        },
        std::chrono::minutes(1));
    const Object component = Object::Create(L"TelvixOutlook.ClsSynOutlook");
    Object dtc = mHost->Dtc();
    EXPECT_FALSE(automation::TruthOf(component.Call(L"SynLoad", ByRef(dtc), mHost->ConnectionString())));
    robot.Finish();
    return outcome;
}

long Exchange::Count(const std::wstring& sqlOfHost)
{
    return LongOf(mHost->Database().QueryValue(L"SELECT count(*) FROM " + sqlOfHost));
}

long Exchange::CountItems(const std::wstring& sqlOfMailbox)
{
    return LongOf(mMailbox->QueryValue(L"SELECT count(*) FROM " + sqlOfMailbox));
}

} // namespace test_support
