#include "tests/sandbox_outlook/ServerFixture.h"

namespace sandbox
{

namespace
{

std::wstring ServerProgram()
{
    wchar_t path[MAX_PATH * 4];
    std::wstring program(path, GetModuleFileNameW(nullptr, path, ARRAYSIZE(path)));
    return program.substr(0, program.rfind(L'\\') + 1) + L"OutlookServer.exe";
}

} // namespace

DWORD RunServerProgram(const wchar_t* option)
{
    std::wstring command = L"\"" + ServerProgram() + L"\" " + option;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
    {
        return GetLastError();
    }
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(process.hProcess, kPatience);
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

} // namespace sandbox
