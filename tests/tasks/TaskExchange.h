// Tasks between the fake host and Outlook's, collected and applied as in a run.
#pragma once

#include "run/ChangeCollection.h"
#include "tests/support/Days.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"

namespace test_support
{

class TaskExchange : public OfficeFixture
{
  protected:
    TaskExchange() { SetRule(state::kIgnoreAllConflicting); }

    static void SetRule(state::ConflictOption rule)
    {
        state::Shared().gSynParameter.TransConflictOption = rule;
    }

    // columns and values after the keys of a host task.
    void AddHostTask(const std::wstring& columns, const std::wstring& values)
    {
        Execute(L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_CREATORID,F_ACTPRIORITY," + columns +
                L") SELECT 'ACT' || (COUNT(*)+1),1,1,2," + values + L" FROM TBLACTIVITY");
    }

    void AddOutlookTask(const sandbox::Mailbox::NamedValues& properties) const
    {
        Mailbox->AddItem(kTaskKind.folder, properties);
    }

    exchange::Run NewRun() { return OpenRun(kTaskKind, Display); }

    // Proposes and writes; how many records were proposed.
    long ExchangeToOutlook()
    {
        exchange::Run run = NewRun();
        EXPECT_FALSE(run::ChangeCollection(tasks::kTasks, run).CollectToOutlook());
        EXPECT_FALSE(tasks::kTasks.ToOutlook(run));
        return run.Pending.NewHostRecords.Count() + run.Pending.ChangedHostRecords.Count();
    }

    long ExchangeFromOutlook()
    {
        exchange::Run run = NewRun();
        EXPECT_FALSE(run::ChangeCollection(tasks::kTasks, run).CollectFromOutlook());
        EXPECT_FALSE(tasks::kTasks.FromOutlook(run));
        return run.Pending.NewOutlookItems.Count() + run.Pending.ChangedOutlookItems.Count();
    }

    std::wstring HostValue(const std::wstring& sql)
    {
        return automation::TextOrEmpty(TheHost.Database().QueryValue(sql));
    }

    std::wstring Count(const std::wstring& table) { return HostValue(L"SELECT COUNT(*) FROM " + table); }

    automation::Value TaskProperty(long position, const wchar_t* name) const
    {
        return Mailbox->ItemProperty(kTaskKind.folder, position, name);
    }
};

} // namespace test_support
