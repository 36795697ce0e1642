// An office for tests: the fake host with its catalogue and no rows of its own, an empty mailbox, ADO, the
// thread's shared state over them (working hours 6:00 to 17:30, reminders 20 minutes ahead), and the English
// interface. Everything is restored at the end.
// Header only; for test programs that link sandbox_host and sandbox_outlook.
#pragma once

#include "sandbox/ado/Ado.h"
#include "sandbox/ado/Recordset.h"
#include "sandbox/host/Host.h"
#include "sandbox/outlook/Outlook.h"
#include "state/SharedState.h"
#include "tests/support/RecordingDisplay.h"
#include "tests/support/WithLanguage.h"

#include <string>
#include <utility>

namespace test_support
{

class TestOffice
{
  public:
    TestOffice() : TestOffice([] { return sandbox::MakeRecordset(); }) {}
    // With recordsets of the component's own that are made like this.
    explicit TestOffice(sandbox::Creator makeRecordset) : Ado(std::move(makeRecordset))
    {
        state::SharedState& shared = state::Shared();
        shared.gDTC = TheHost.Dtc();
        shared.gCnnString = TheHost.ConnectionString();
        shared.gFontName = L"Arial";
        shared.gFontSize = 8;
        shared.gCalendarStartTime = {6.0 / 24};
        shared.gCalendarEndTime = {17.5 / 24};
        shared.gCalendarPreviewAlarmTime = 20;
        UseNewMailbox();
    }
    TestOffice(const TestOffice&) = delete;
    TestOffice& operator=(const TestOffice&) = delete;
    ~TestOffice() { state::Shared() = {}; }

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
