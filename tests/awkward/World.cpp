#include "tests/awkward/World.h"

#include "sandbox/ado/Recordset.h"
#include "sandbox/dispatch/DispatchObject.h"
#include "sandbox/outlook/Paths.h"
#include "state/SharedState.h"
#include "tests/awkward/AnsweredMessages.h"

namespace test_support
{

namespace
{

constexpr int kItems[] = {6, 1, 2, 7, 3};
constexpr int kRows[] = {4, 1, 5, 2, 3};
constexpr int kCompanies[] = {1, 2, 3, 4, 5, kArrivingNumber};

constexpr const wchar_t* kTables[] = {L"TBLACTIVITY", L"TBLCONTACT", L"TBLADDRESS", L"TBLACCINFO",
                                      L"TBLACCOUNT"};

constexpr const wchar_t* kDefaultStore = L"Personal Folders";

std::wstring PathOf(const std::wstring& store, const NumberedKind& kind)
{
    return store + sandbox::outlook::kPathSeparator + kind.folderName;
}

} // namespace

World::World()
{
    // Many short transactions, none of value.
    Execute(L"PRAGMA synchronous=OFF");
    TheHost.Database().Query(L"PRAGMA journal_mode=MEMORY");
    CloseOutlook();
}

void World::Reset(const NumberedKind& kind, const std::wstring& store)
{
    TheHost.Recordsets() = {};
    sandbox::RecordsetsOfProcess() = {};
    UsesTypedDtc = false;
    mGone.clear();
    mItemHasArrived = mRowHasArrived = false;
    Where = {&kind, PathOf(store, kind)};
    Mailbox = sandbox::MakeMailbox();
    Mailbox->AddFolder(Where.folderPath, kind.itemKind);
    sandbox::Connection& database = TheHost.Database();
    database.Begin();
    for (const wchar_t* table : kTables)
    {
        database.Execute(L"DELETE FROM " + std::wstring(table));
    }
    for (const int number : kCompanies)
    {
        AddCompany(database, kind, number);
    }
    for (const int number : kRows)
    {
        AddRow(database, kind, number);
    }
    for (const int number : kItems)
    {
        AddItem(Mailbox, kind, Where.folderPath, number);
    }
    for (const NumberedKind* other : kNumberedKinds)
    {
        if (other != &kind)
        {
            AddRow(database, *other, 1);
            AddItem(Mailbox, *other, PathOf(kDefaultStore, *other), 1);
        }
    }
    database.Commit();
}

States World::Look()
{
    return test_support::Look(TheHost.Database(), *Mailbox, Where);
}

World::Outcome World::Run(long direction, long rule, const std::function<void()>& whileConfirmed)
{
    const long objects = sandbox::LiveObjects();
    const long recordsets = sandbox::OpenRecordsets();
    Outcome outcome;
    {
        OpenOutlook();
        state::SharedState& shared = state::Shared();
        shared.gDTC = UsesTypedDtc ? TheHost.TypedDtc() : TheHost.Dtc();
        shared.gSynParameter = {};
        shared.gSynParameter.TransType = direction;
        shared.gSynParameter.TransConflictOption = rule;
        shared.gSynParameter.CurrentFolder = sandbox::outlook::ShownPath(Where.folderPath);
        Display.Ask = [&](const exchange::Kind&, exchange::Run&, const std::wstring&) {
            whileConfirmed();
            shared.gChangesAccepted = true;
        };
        const AnsweredMessages messages;
        outcome.failed = Where.kind->run(Display);
        outcome.messages = messages.Texts();
        shared.gDTC = {};
        CloseOutlook();
    }
    outcome.left += TheHost.Database().InTransaction() ? "a transaction is open; " : "";
    outcome.left += Display.IsShown ? "the progress bar is shown; " : "";
    outcome.left += sandbox::LiveObjects() != objects ? "objects are held; " : "";
    outcome.left += sandbox::OpenRecordsets() != recordsets ? "a recordset is open; " : "";
    return outcome;
}

void World::ItemArrives()
{
    AddItem(Mailbox, *Where.kind, Where.folderPath, kArrivingNumber);
    mItemHasArrived = true;
}

void World::ItemVanishes(size_t place)
{
    const auto& seen = Mailbox->Seen(Folder());
    if (place < seen.size())
    {
        const sandbox::outlook::StoredItemRef item = seen[place];
        mGone.insert(sandbox::Mailbox::EntryIdOf(*item));
        Mailbox->Delete(item);
    }
}

void World::RowArrives()
{
    AddRow(TheHost.Database(), *Where.kind, kArrivingNumber);
    mRowHasArrived = true;
}

void World::RowVanishes(int number)
{
    DeleteRow(TheHost.Database(), *Where.kind, number);
    mGone.insert(KeyOf(*Where.kind, number));
}

} // namespace test_support
