// Fixture of an office: the fake host with its catalogue and no rows of its own, an empty mailbox, ADO, the
// thread's shared state over them, and the English interface. Everything is restored at the end of a test.
// Header only; for test programs that link sandbox_host and sandbox_outlook.
#pragma once

#include "sandbox/ado/Ado.h"
#include "sandbox/host/Host.h"
#include "sandbox/outlook/Outlook.h"
#include "state/SharedState.h"
#include "tests/support/RecordingDisplay.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

#include <string>

namespace test_support
{

class OfficeFixture : public testing::Test
{
  protected:
    OfficeFixture()
    {
        state::Shared().gDTC = TheHost.Dtc();
        state::Shared().gCnnString = TheHost.ConnectionString();
        UseNewMailbox();
    }
    ~OfficeFixture() override { state::Shared() = {}; }

    void UseNewMailbox()
    {
        Mailbox = sandbox::MakeMailbox();
        Outlook = sandbox::MakeOutlook(Mailbox);
        state::Shared().gOlApplication = Outlook;
        state::Shared().gOlNamespace = Outlook.GetObject(L"GetNamespace", L"MAPI");
    }

    void Execute(const std::wstring& sql) { TheHost.Database().Execute(sql); }

    sandbox::AdoInProcess Ado;
    sandbox::Host TheHost;
    sandbox::MailboxRef Mailbox;
    automation::Object Outlook;
    RecordingDisplay Display;

  private:
    WithLanguage mEnglish{resources::Language::English};
};

} // namespace test_support
