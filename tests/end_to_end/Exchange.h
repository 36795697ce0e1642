// A host and a mailbox with half of their records in common, and the registered component between them, used
// by the robot.
#pragma once

#include "sandbox/host/Host.h"
#include "tests/support/RunCodes.h"
#include "tools/demo/Conversation.h"
#include "tools/demo/Snapshot.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace test_support
{

// Records of each kind on either side; half of them are the same on both.
long Records();

class Exchange : public testing::Test
{
  protected:
    Exchange();
    ~Exchange() override;

    // One run of a kind: direction 1 to 3, conflict rule 1 to 5. The outcome is what the user has seen.
    tools::demo::Outcome Run(const std::wstring& category, long direction, long rule, bool decline = false);

    tools::demo::Snapshot Look() { return tools::demo::TakeSnapshot(mHost->Database(), *mMailbox); }
    long Count(const std::wstring& sqlOfHost);
    long CountItems(const std::wstring& sqlOfMailbox);

    // Whether the user opens the report after each run.
    bool LooksAtReport = false;

    sandbox::Host& HostSide() { return *mHost; }
    sandbox::Connection& MailboxSide() { return *mMailbox; }

  private:
    std::wstring mFolder;
    std::unique_ptr<sandbox::Host> mHost;
    std::unique_ptr<sandbox::Connection> mMailbox;
};

} // namespace test_support
