// Fixture of the task tests: a host database with relation rows, a field catalogue and a few host tasks,
// a mailbox with Outlook's default folders, and a run over both.
#pragma once

#include "exchange/Run.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/database/Connection.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/support/DatabaseFile.h"
#include "tests/support/Days.h"
#include "tests/support/FakeHost.h"
#include "tests/support/RecordingDisplay.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace test_support
{

inline constexpr const wchar_t* kTasks = L"Personal Folders\\Tasks";
inline constexpr const wchar_t* kContacts = L"Personal Folders\\Contacts";

class TaskFixture : public testing::Test
{
  protected:
    // Column and literal, or host column and Outlook property.
    using Pairs = std::vector<std::pair<std::wstring, std::wstring>>;

    TaskFixture();
    ~TaskFixture() override;

    void Execute(const std::wstring& sql) const;
    // Makes these the relation rows of tasks, in this order.
    void Relate(const Pairs& rows) const;
    // Adds a host task; columns that are not named are NULL. Values are SQL literals.
    void AddHostTask(const Pairs& columns) const;
    // Adds a task to the mailbox as it is, without what Outlook makes of its properties; its position.
    long AddOutlookTask(const sandbox::Mailbox::NamedValues& properties) const;

    // A run over the host tasks and the task folder as they are now.
    exchange::Run NewRun();
    // Writes host task 1 as a new task, or over the folder's task 1, and returns that task.
    automation::Object WriteNewTask();
    automation::Object WriteExistingTask();
    // Writes the folder's task 1 into the host as a new row, or over host task 1.
    void InsertFirstTask();
    void UpdateFirstTask();

    automation::Object Namespace() const;
    automation::Object TaskAt(long position) const;
    automation::Value TaskProperty(long position, const wchar_t* name) const;
    long CountTasks() const { return mMailbox->ItemCount(kTasks); }
    long CountContacts() const { return mMailbox->ItemCount(kContacts); }

    sandbox::AdoInProcess mAdo;
    sandbox::MailboxRef mMailbox = sandbox::MakeMailbox();
    automation::Object mOutlook = sandbox::MakeOutlook(mMailbox);
    FakeHost& Host() const { return *mHost; }
    RecordingDisplay mDisplay;

  private:
    WithFakeHost mHost;
    DatabaseFile mFile{L"telvix-tasks"};
};

} // namespace test_support
