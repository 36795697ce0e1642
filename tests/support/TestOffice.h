// An office for tests: the fake host with its catalogue and no rows of its own, an empty mailbox, ADO, the
// thread's shared state over them (working hours 6:00 to 17:30, reminders 20 minutes ahead), and the English
// interface. Everything is restored at the end.
// Header only; for test programs that link sandbox_host and sandbox_outlook.
#pragma once

#include "sandbox/ado/Ado.h"
#include "sandbox/ado/Recordset.h"
#include "sandbox/ado/SessionPool.h"
#include "sandbox/host/Host.h"
#include "sandbox/outlook/Outlook.h"
#include "state/SharedState.h"
#include "tests/support/Kinds.h"
#include "tests/support/RecordingDisplay.h"
#include "tests/support/WithLanguage.h"

#include <string>
#include <utility>
#include <vector>

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
        OpenOutlook();
    }
    // The application over the mailbox, and its release by everything that the office holds.
    void OpenOutlook()
    {
        Outlook = sandbox::MakeOutlook(Mailbox);
        state::Shared().gOlApplication = Outlook;
        state::Shared().gOlNamespace = Outlook.GetObject(L"GetNamespace", L"MAPI");
    }
    void CloseOutlook()
    {
        state::Shared().gOlNamespace = {};
        state::Shared().gOlApplication = {};
        Outlook = {};
    }

    void Execute(const std::wstring& sql, const sandbox::Row& values = {})
    {
        TheHost.Database().Execute(sql, values);
    }

    using Pairs = std::vector<std::pair<std::wstring, std::wstring>>;

    // Makes these the relation rows of a kind, in this order: host column and Outlook property.
    void Relate(const RecordKind& kind, const Pairs& rows)
    {
        Execute(L"DELETE FROM SynRelation WHERE QuenlarTblName=?", {kind.relationTable});
        for (const auto& [column, property] : rows)
        {
            Execute(L"INSERT INTO SynRelation (QuenlarTblName,EnglishName,OutlookName) VALUES (?,?,?)",
                    {kind.relationTable, column, property});
        }
    }

    sandbox::AdoInProcess Ado;
    sandbox::Host TheHost;
    sandbox::SessionPool Sessions; // of the host's database, which is closed before it is deleted
    sandbox::MailboxRef Mailbox;
    automation::Object Outlook;
    RecordingDisplay Display;

  private:
    WithLanguage mEnglish{resources::Language::English};
};

} // namespace test_support
