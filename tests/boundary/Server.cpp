#include "tests/boundary/Server.h"

#include "automation/Error.h"
#include "sandbox/outlook/Classes.h"
#include "sandbox/outlook/Registration.h"

namespace boundary_tests
{

namespace
{

constexpr DWORD kPatience = 30'000; // milliseconds

} // namespace

Serves::Serves(const Site& site)
{
    sandbox::outlook::ChooseMailbox(site.MailboxFile());
}

Serves::~Serves()
{
    sandbox::outlook::ChooseMailbox({});
}

Server::Server(const Site& site)
    : mServes(site), mControl(automation::Object::Create(sandbox::outlook::kControlProgId))
{
    const long id = automation::LongOf(mControl.Get(L"ProcessId"));
    mProcess = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(id));
}

Server::~Server()
{
    if (mControl && WaitForSingleObject(mProcess, 0) == WAIT_TIMEOUT && ObjectCount() > 0)
    {
        Disturb(L"Terminate");
    }
    mControl = {};
    CloseHandle(mProcess);
}

void Server::Disturb(const wchar_t* how, long amount)
{
    const auto disturb = [&] {
        try
        {
            if (amount == 0)
            {
                mControl.Call(how);
            }
            else
            {
                mControl.Call(how, amount);
            }
        }
        catch (const automation::Error&)
        {
            // The call in which the server ends itself does not come back.
        }
    };
    GetCurrentThreadId() == mThreadId ? disturb() : mMainThread.Invoke(disturb);
}

bool Server::EndsWhenLetGo()
{
    mControl = {};
    return WaitForSingleObject(mProcess, kPatience) == WAIT_OBJECT_0;
}

long Server::ObjectCount()
{
    return automation::LongOf(mControl.Get(L"ObjectCount"));
}

} // namespace boundary_tests
