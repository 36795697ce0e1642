// Fixture of the tests of the task passes.
#pragma once

#include "tests/support/Days.h"
#include "tests/support/PassFixture.h"

namespace test_support
{

// Without relation rows, until a test has its own.
class TaskFixture : public PassFixture
{
  protected:
    TaskFixture() : PassFixture(kTaskKind)
    {
        Host->KeyStem = L"KEY";
        Host->Unlogged = {L"MyInfo", L"UID", L"NewGuid", L"InTransaction", L"PermissionOn"};
        Relate({});
    }

    // Adds a task to the mailbox as it is, without what Outlook makes of its properties.
    void AddOutlookTask(const sandbox::Mailbox::NamedValues& properties)
    {
        Mailbox->AddItem(kTaskKind.folder, properties);
    }
};

} // namespace test_support
