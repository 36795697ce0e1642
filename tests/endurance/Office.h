// A user's machine on one thread: a host and an Outlook that have the same records, both in this process and
// served to the component on the thread that made the office, and a user (the robot) of the registered
// component. Several offices may be on a thread. Every use is checked by what it leaves on both sides, so
// that any number of them can follow.
#pragma once

#include "automation/Object.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/host/Host.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/support/Kinds.h"
#include "tools/demo/Conversation.h"

#include <functional>
#include <string>

namespace test_support
{

struct Use
{
    const RecordKind* kind = nullptr;
    long direction = 1; // 1 from Outlook, 2 to Outlook, 3 both
    long rule = 2;      // of conflicts
    bool decline = false;
    bool tour = false; // of the configuration dialogs, first
};

class Office
{
  public:
    // records: of each kind on either side, half of them common; then exchanged until both sides have all.
    Office(sandbox::Edition edition, size_t records);
    Office(const Office&) = delete;
    Office& operator=(const Office&) = delete;
    ~Office();

    // One record is missing where the use will write to; the component is created, shown and used. Empty when
    // afterwards everything is as it must be, else what was wrong, as a sentence.
    std::string Check(const Use& use);
    // The same with a component of the caller's.
    std::string Check(const Use& use, const automation::Object& component);

    // Called on the robot's thread while the main dialog is shown.
    std::function<void(const tools::ShownDialog& main)> WhileShown;

    // How often SynLoad has been called so far.
    long Runs() const noexcept { return mRuns; }

  private:
    struct Counts
    {
        long host;
        long outlook;
        bool operator==(const Counts&) const = default;
    };

    Counts CountsOf(const RecordKind& kind);
    void LoseOne(const Use& use);
    tools::demo::Outcome Run(const Use& use, const automation::Object& component);
    std::string Fault(const Use& use, const tools::demo::Outcome& outcome);

    std::wstring mHostFile;
    std::wstring mMailboxFile;
    sandbox::Host mHost;
    sandbox::MailboxRef mMailbox;
    sandbox::AdoInProcess mAdo;
    long mRecords; // of each kind, on either side
    long mRuns = 0;
};

// The component as a client creates it.
automation::Object NewComponent();

// The k-th of a round of uses: every kind and direction in turn, with changing rules, some of them declined,
// some after a tour of the configuration.
Use UseNumber(size_t k);
inline constexpr size_t kUsesOfRound = 9;

} // namespace test_support
