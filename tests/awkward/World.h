// A host and a mailbox of numbered records, and whole runs between them: the confirmation is accepted, and
// what other programs do meanwhile happens while it is shown or at a chosen call.
#pragma once

#include "tests/awkward/States.h"
#include "tests/support/TestOffice.h"

#include <functional>
#include <set>

namespace test_support
{

inline constexpr int kArrivingNumber = 8; // of an item or a row that arrives meanwhile

class World : public TestOffice
{
  public:
    World();

    // Records 1 to 3 on both sides, 4 and 5 in the host, 6 and 7 in Outlook; a record of each other kind.
    // store: where the folder of the run is.
    void Reset(const NumberedKind& kind, const std::wstring& store);
    States Look();

    struct Outcome
    {
        bool failed = false;
        std::vector<std::wstring> messages; // boxes and dialogs
        std::string left;                   // what is open or alive, empty for nothing
    };
    // One run of the kind. whileConfirmed happens before the confirmation is accepted.
    Outcome Run(
        long direction, long rule, const std::function<void()>& whileConfirmed = [] {});

    // What other programs do. They remember what has come and gone.
    void ItemArrives();
    void ItemVanishes(size_t place); // in the order in which clients see them, from 0
    void RowArrives();
    void RowVanishes(int number);
    const std::set<std::wstring>& Gone() const noexcept { return mGone; }
    bool ItemHasArrived() const noexcept { return mItemHasArrived; }
    bool RowHasArrived() const noexcept { return mRowHasArrived; }

    Place Where;
    bool UsesTypedDtc = false;

  private:
    sandbox::outlook::MailFolder& Folder() { return *Mailbox->FindFolder(Where.folderPath); }

    std::set<std::wstring> mGone; // EntryIDs and keys
    bool mItemHasArrived = false;
    bool mRowHasArrived = false;
};

} // namespace test_support
