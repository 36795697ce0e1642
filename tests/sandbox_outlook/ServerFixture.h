// Fixtures of the registered fake Outlook, in a process of its own.
#pragma once

#include "sandbox/outlook/Registration.h"
#include "tests/sandbox_outlook/MailboxFileFixture.h"

namespace sandbox
{

inline constexpr DWORD kPatience = 20'000; // milliseconds

// Runs the program with an option; its exit code.
DWORD RunServerProgram(const wchar_t* option);

// The process is one that each test starts.
class OutlookServerLife : public MailboxFileTest
{
  protected:
    static void SetUpTestSuite() { ASSERT_EQ(0u, RunServerProgram(L"/register")); }

    static automation::Object Outlook() { return automation::Object::Create(L"Outlook.Application"); }
    static automation::Object Control()
    {
        return automation::Object::Create(L"TelvixSandbox.OutlookControl");
    }

    // The handle of the server's process, which must be running.
    static HANDLE ServerProcess()
    {
        return OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(Number(Control(), L"ProcessId")));
    }

    static bool Ends(HANDLE process)
    {
        const bool ended = WaitForSingleObject(process, kPatience) == WAIT_OBJECT_0;
        CloseHandle(process);
        return ended;
    }

    OutlookServerLife() { outlook::ChooseMailbox(mPath); }
    ~OutlookServerLife() override { outlook::ChooseMailbox({}); }
};

// One process for all tests, kept alive by a control object, since starting it takes a second.
class OutlookServer : public OutlookServerLife
{
  protected:
    static void SetUpTestSuite()
    {
        OutlookServerLife::SetUpTestSuite();
        kept = Control();
    }

    static void TearDownTestSuite() { kept = {}; }

    static inline automation::Object kept;
};

} // namespace sandbox
