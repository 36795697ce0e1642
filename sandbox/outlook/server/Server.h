// The server program at work: its class objects, the mailbox it serves and the ways to disturb it. There is
// one, on the main thread, from the first request to the last reference.
#pragma once

#include "sandbox/outlook/CallCounter.h"
#include "sandbox/outlook/Outlook.h"

#include <memory>

namespace sandbox::outlook
{

class BusyFilter;

class Server
{
  public:
    // Registers the classes for other processes. Throws automation::Error.
    Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server();

    // Serves until the last object is gone, or until a minute has passed without a request.
    void Run();

    CallCounter& Calls() noexcept { return mCalls; }
    // Ends the process in the middle of the call, as a crash does; no new client finds it.
    [[noreturn]] void Terminate();
    // Refuses every call for so many milliseconds, as an Outlook that shows a dialog does.
    void RejectCallsFor(long milliseconds);

    // The mailbox that applications are served. Throws automation::Error where there is none.
    MailboxRef CurrentMailbox();

  private:
    automation::Object NewApplication();
    automation::Object NewControl();
    void Leave() noexcept;

    CallCounter mCalls;
    std::wstring mMailboxPath;
    std::weak_ptr<Mailbox> mMailbox;
    std::unique_ptr<RegisteredClass> mOutlook;
    std::unique_ptr<RegisteredClass> mControl;
    BusyFilter* mFilter;
};

} // namespace sandbox::outlook
