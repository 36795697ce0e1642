// Outlook in a process of its own, serving a site's mailbox, and the ways to disturb it. Belongs to the main
// thread; the script of a robot disturbs through the same object, on that thread.
#pragma once

#include "automation/Object.h"
#include "tests/boundary/Site.h"
#include "tests/support/Drive.h"

namespace boundary_tests
{

// Outlook's server, whenever COM starts it, serves the site's mailbox.
class Serves
{
  public:
    explicit Serves(const Site& site);
    Serves(const Serves&) = delete;
    Serves& operator=(const Serves&) = delete;
    ~Serves();
};

class Server
{
  public:
    // Starts the program. It is kept alive until this goes.
    explicit Server(const Site& site);
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    // Ends a server that still runs because objects were not released.
    ~Server();

    // On the main thread, whichever loop of messages it is in.
    void Disturb(const wchar_t* how, long amount = 0);
    // Whether the program ends by itself when this object, its last client, lets it go.
    bool EndsWhenLetGo();
    // Objects that clients hold, without the control object.
    long ObjectCount();

  private:
    Serves mServes;
    automation::Object mControl;
    HANDLE mProcess = nullptr;
    test_support::MainThread mMainThread;
    DWORD mThreadId = GetCurrentThreadId();
};

} // namespace boundary_tests
