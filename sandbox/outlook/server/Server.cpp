#include "sandbox/outlook/server/Server.h"

#include "automation/Error.h"
#include "sandbox/outlook/Application.h"
#include "sandbox/outlook/Registration.h"
#include "sandbox/outlook/server/BusyFilter.h"
#include "sandbox/outlook/server/ControlObject.h"

#include <objbase.h>

namespace sandbox::outlook
{

namespace
{

constexpr UINT kIdleTime = 60'000; // milliseconds

void Quit() noexcept
{
    PostQuitMessage(0);
}

} // namespace

Server::Server() : mCalls(L"OutlookControl"), mFilter(new BusyFilter)
{
    Observe(&mCalls);
    WhenLastObjectGoes(&Quit);
    CoRegisterMessageFilter(mFilter, nullptr);
    mOutlook = std::make_unique<RegisteredClass>(kOutlookClass, CLSCTX_LOCAL_SERVER,
                                                 [this] { return NewApplication(); });
    mControl = std::make_unique<RegisteredClass>(kControlClass, CLSCTX_LOCAL_SERVER,
                                                 [this] { return NewControl(); });
}

Server::~Server()
{
    Leave();
    CoRegisterMessageFilter(nullptr, nullptr);
    mFilter->Release();
    WhenLastObjectGoes(nullptr);
    Observe(nullptr);
}

void Server::Leave() noexcept
{
    mOutlook.reset();
    mControl.reset();
}

void Server::Run()
{
    SetTimer(nullptr, 0, kIdleTime, nullptr);
    // A request that came in while the last object went is served before the program leaves.
    do
    {
        MSG message;
        while (GetMessageW(&message, nullptr, 0, 0) > 0)
        {
            const bool isTimer = message.message == WM_TIMER && message.hwnd == nullptr;
            if (isTimer && LiveObjects() == 0)
            {
                Quit();
            }
            DispatchMessageW(&message);
        }
    } while (LiveObjects() > 0);
    Leave();
}

// A mailbox is read when the first application object is asked for, and again when the setting names another
// one or the file has changed: a client that died may have left its objects, and with them this server,
// behind.
MailboxRef Server::CurrentMailbox()
{
    const std::wstring path = ChosenMailbox();
    MailboxRef mailbox = path == mMailboxPath && LiveApplications() > 0 ? mMailbox.lock() : nullptr;
    if (!mailbox || mailbox->HasChangedElsewhere())
    {
        mailbox = OpenMailbox(path);
        mMailbox = mailbox;
        mMailboxPath = path;
    }
    return mailbox;
}

automation::Object Server::NewApplication()
{
    try
    {
        return MakeOutlook(CurrentMailbox());
    }
    catch (const automation::Error& error)
    {
        if (LiveObjects() == 0)
        {
            Quit();
        }
        // A description does not reach the client that asks for an object; a code that says what it is does.
        const HRESULT unreadable = HRESULT_FROM_WIN32(ERROR_FILE_CORRUPT);
        throw automation::Error(error.Code() == E_FAIL ? unreadable : error.Code(), L"mailbox",
                                error.Description());
    }
}

automation::Object Server::NewControl()
{
    return MakeObject<ControlObject>(*this);
}

void Server::Terminate()
{
    Leave();
    TerminateProcess(GetCurrentProcess(), 0);
    std::abort(); // not reached; tells the compiler so
}

void Server::RejectCallsFor(long milliseconds)
{
    mFilter->RejectFor(static_cast<DWORD>(milliseconds));
}

} // namespace sandbox::outlook
