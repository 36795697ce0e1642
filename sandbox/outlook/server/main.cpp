// The fake Outlook as a program: "OutlookServer /register" and "/unregister" enter it in the registry and
// take it out again; started by COM (or by hand) it serves "Outlook.Application" to other processes.
#include "automation/Error.h"
#include "sandbox/outlook/Registration.h"
#include "sandbox/outlook/server/Server.h"

#include <cstdio>
#include <cstring>

#include <windows.h>

#include <objbase.h>

namespace
{

std::wstring OwnPath()
{
    wchar_t path[MAX_PATH * 4];
    return {path, GetModuleFileNameW(nullptr, path, ARRAYSIZE(path))};
}

void Serve()
{
    automation::Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), L"CoInitializeEx");
    // The real Outlook takes its time to start.
    Sleep(static_cast<DWORD>(sandbox::outlook::ChosenStartDelay()));
    {
        sandbox::outlook::Server server;
        server.Run();
    }
    CoUninitialize();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    try
    {
        const char* option = argumentCount > 1 ? arguments[1] : "";
        if (std::strcmp(option, "/register") == 0)
        {
            sandbox::outlook::RegisterServer(OwnPath());
        }
        else if (std::strcmp(option, "/unregister") == 0)
        {
            sandbox::outlook::UnregisterServer();
        }
        else
        {
            Serve();
        }
        return 0;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "OutlookServer: %s\n", error.what());
        return 1;
    }
}
