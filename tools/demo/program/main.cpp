// The demo: a host program that creates the registered component from outside and lets it exchange records
// between a real database and the sandbox's Outlook. Started by the script of the same name.
#include "automation/Error.h"
#include "automation/Text.h"
#include "resources/Strings.h"
#include "sandbox/host/Host.h"
#include "sandbox/outlook/Classes.h"
#include "sandbox/outlook/Registration.h"
#include "tools/demo/Conversation.h"
#include "tools/demo/Installation.h"
#include "tools/demo/MessageTour.h"
#include "tools/demo/Report.h"
#include "tools/sample_data/SampleData.h"

#include <cstdio>
#include <stdexcept>

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

using namespace sandbox;
using namespace tools;
using namespace tools::demo;
using automation::ByRef;
using automation::Object;

namespace
{

constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;

std::vector<std::wstring> Arguments()
{
    int count = 0;
    wchar_t** texts = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(texts + 1, texts + count);
    LocalFree(texts);
    return arguments;
}

bool Exists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

Edition EditionOfInterface()
{
    return resources::InterfaceLanguage() == resources::Language::Chinese ? Edition::Chinese
                                                                          : Edition::English;
}

void PrepareData(const Options& options)
{
    if (!Exists(options.HostFile))
    {
        WriteSampleHost(options.HostFile, EditionOfInterface());
    }
    if (!Exists(options.MailboxFile))
    {
        WriteSampleMailbox(options.MailboxFile);
    }
}

class ComApartment
{
  public:
    ComApartment()
    {
        automation::Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), L"CoInitializeEx");
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment() { CoUninitialize(); }
};

// The part of the demo that runs beside the dialogs: plays the user and prints what came of it. True when
// every run ended with the success text.
bool Converse(Robot& robot, const Options& options)
{
    const ComApartment com;
    const Object control = Object::Create(outlook::kControlProgId);
    Connection host(ConnectionStringOf(options.HostFile));
    Connection mailbox(ConnectionStringOf(options.MailboxFile));
    Conversation conversation(robot, options);
    bool allSucceeded = true;
    if (options.Tour)
    {
        conversation.Tour();
    }
    Snapshot before = TakeSnapshot(host, mailbox);
    for (const std::wstring& category : options.Categories)
    {
        control.Call(L"Reset");
        for (const wchar_t* const refusal : {L"Guard", L"LinksRaise", L"ForeignItems"})
        {
            control.Call(L"Switch", refusal, options.Details);
        }
        const Outcome outcome = conversation.RunCategory(category);
        const long calls = automation::LongOf(control.Get(L"CallCount"));
        Snapshot after = TakeSnapshot(host, mailbox);
        PrintRun(category, outcome, before, after, calls);
        before = std::move(after);
        allSucceeded = allSucceeded && outcome.succeeded;
    }
    conversation.CloseMainDialog();
    return allSucceeded;
}

void CallSynLoad(Host& host)
{
    const Object component = Object::Create(L"TelvixOutlook.ClsSynOutlook");
    Object dtc = host.Dtc();
    if (automation::TruthOf(component.Call(L"SynLoad", ByRef(dtc), host.ConnectionString())))
    {
        throw std::runtime_error("the component refused the call");
    }
}

bool RunByRobot(Host& host, const Options& options)
{
    if (options.Tour)
    {
        TourMessages(options);
    }
    bool allSucceeded = false;
    Robot robot([&](Robot& running) { allSucceeded = Converse(running, options); }, std::chrono::minutes(10));
    CallSynLoad(host);
    robot.Finish();
    return allSucceeded;
}

void RunByUser(Host& host, const Options& options)
{
    Connection mailbox(ConnectionStringOf(options.MailboxFile));
    const Snapshot before = TakeSnapshot(host.Database(), mailbox);
    CallSynLoad(host);
    PrintChanges(before, TakeSnapshot(host.Database(), mailbox));
}

bool Run(const Options& options)
{
    PrepareData(options);
    if (options.Prepare)
    {
        return true;
    }
    Host host(options.HostFile);
    UseEdition(host.Database(), EditionOfInterface());
    StoreSettings(host.Database(), std::to_wstring(host.UserId()), options);
    InstallOutlookProfile(Profiles::Modern);
    outlook::ChooseMailbox(options.MailboxFile);
    // Keeps the Outlook server from starting anew for every object.
    const Object control = Object::Create(outlook::kControlProgId);
    if (options.Interactive)
    {
        RunByUser(host, options);
        return true;
    }
    return RunByRobot(host, options);
}

int Fail(int status, const std::string& text)
{
    std::fprintf(stderr, "demo: %s\n", text.c_str());
    return status;
}

} // namespace

int main()
{
    GetDesktopWindow(); // before a second thread starts
    SetConsoleOutputCP(CP_UTF8);
    try
    {
        const Options options = ParseOptions(Arguments());
        const ComApartment com;
        return Run(options) ? EXIT_SUCCESS : kExitFailed;
    }
    catch (const automation::Error& error)
    {
        return Fail(kExitFailed, automation::ToUtf8(error.Description()) + " (" +
                                     automation::ToUtf8(error.Member()) + ")");
    }
    catch (const std::invalid_argument& error)
    {
        return Fail(kExitUsage, error.what());
    }
    catch (const std::exception& error)
    {
        return Fail(kExitFailed, error.what());
    }
}
