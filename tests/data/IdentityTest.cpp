// A position is confirmed before anything is written: items and rows change places while a run works.
#include "exchange/Identity.h"

#include "automation/Error.h"
#include "automation/OutlookConstants.h"
#include "automation/Text.h"
#include "exchange/ApplyFromOutlook.h"
#include "exchange/ApplyToOutlook.h"
#include "sandbox/ado/Recordset.h"
#include "tests/support/CallWatch.h"
#include "tests/support/OfficeFixture.h"

namespace
{

using automation::Object;
using automation::TextOf;

constexpr const wchar_t* kFolder = test_support::kContactRecords.folder;

std::vector<std::wstring> gPairs; // item and row

void Note(exchange::Run& run, data::RecordMode mode, const Object& item)
{
    const std::wstring row = mode == data::kNewRecord ? L"" : L" " + TextOf(run.HostRows.ValueOf(L"Id"));
    gPairs.push_back(TextOf(item.Get(L"LastName")) + row);
}

sandbox::Mailbox* gMailbox = nullptr;

// While "b" is written, another program deletes it, and Outlook says so in a way of its own.
void NoteUnlessDeleted(exchange::Run& run, data::RecordMode mode, const Object& item)
{
    if (TextOf(item.Get(L"LastName")) == L"b")
    {
        gMailbox->RemoveItem(kFolder, 2);
        throw automation::Error(E_FAIL, L"Save");
    }
    Note(run, mode, item);
}

void Refuse(exchange::Run& /*run*/, data::RecordMode /*mode*/, const Object& /*item*/)
{
    throw automation::Error(E_FAIL, L"Save");
}

long NoteRow(exchange::Run& run, data::RecordMode mode, const automation::ItemView& item)
{
    Note(run, mode, item.Item());
    return 0;
}

class IdentityOfRecords : public test_support::OfficeFixture
{
  protected:
    IdentityOfRecords()
    {
        gPairs.clear();
        for (const wchar_t* name : {L"a", L"b", L"c"})
        {
            Mailbox->AddItem(kFolder, {{L"LastName", name}});
        }
        TheRun.Folder = state::Shared().gOlNamespace.GetObject(L"GetDefaultFolder", 10L);
        TheRun.Items = TheRun.Folder.GetObject(L"Items");
        TheRun.HostRows =
            automation::Recordset(sandbox::MakeRecordset({{{L"Id"}}, {{L"a"}, {L"b"}, {L"c"}}}));
        TheRun.Identity.KeyColumn = L"Id";
        TheRun.Identity.Matches = [](const automation::ItemView& item, const automation::Recordset& rows) {
            return TextOf(item.Get(L"LastName")) == TextOf(rows.ValueOf(L"Id"));
        };
    }

    std::wstring IdOf(long position)
    {
        return exchange::EntryIdOf(TheRun.Items.GetObject(L"Item", position));
    }

    // The item and the row that were there when they were proposed, at positions that may be others by now.
    void Propose(long item, const std::wstring& entryId, long row, const std::wstring& key, long mark)
    {
        TheRun.Pending.ChangedOutlookItems.Add(std::to_wstring(item), mark).EntryId =
            TheRun.Texts.Keep(entryId);
        TheRun.Pending.ChangedHostRecords.Add(row, mark).Key = TheRun.Texts.Keep(key);
    }

    bool Import()
    {
        return exchange::PassFromOutlook{.RelationStatement = L"SELECT", .Write = NoteRow}(TheRun);
    }
    bool Export()
    {
        return exchange::PassToOutlook{
            .ItemType = automation::kContactItem, .RelationStatement = L"SELECT", .Write = Note}(TheRun);
    }

    exchange::Run TheRun{.Display = Display};
};

using Written = std::vector<std::wstring>;

} // namespace

TEST_F(IdentityOfRecords, AnItemAndARowThatHaveMovedAreFoundAgainInBothDirections)
{
    Propose(1, IdOf(3), 1, L"c", 0);
    EXPECT_FALSE(Import());
    EXPECT_EQ((Written{L"c c"}), gPairs);
    TheRun.Pending = {};
    TheRun.OverwrittenRows.clear();
    Propose(9, IdOf(2), 9, L"b", 1);
    EXPECT_FALSE(Export());
    EXPECT_EQ((Written{L"c c", L"b b"}), gPairs);
    EXPECT_EQ(0, TheRun.Report.Vanished());
}

TEST_F(IdentityOfRecords, ANewItemThatHasMovedIsFoundAgain)
{
    TheRun.Pending.NewOutlookItems.Add(L"2", 0).EntryId = TheRun.Texts.Keep(IdOf(1));
    EXPECT_FALSE(Import());
    EXPECT_EQ((Written{L"a"}), gPairs);
}

TEST_F(IdentityOfRecords, ADeletedRecordIsSkippedAndCounted)
{
    const std::wstring gone = IdOf(1);
    Mailbox->RemoveItem(kFolder, 1);
    TheRun.Pending.NewOutlookItems.Add(L"1", 0).EntryId = TheRun.Texts.Keep(gone);
    Propose(1, gone, 1, L"a", 0);
    Propose(1, IdOf(1), 1, L"x", 0);
    EXPECT_FALSE(Import());
    TheRun.Pending.NewHostRecords.Add(1, 0).Key = TheRun.Texts.Keep(L"x");
    EXPECT_FALSE(Export());
    EXPECT_EQ(Written{}, gPairs);
    EXPECT_EQ(4, TheRun.Report.Vanished());
}

TEST_F(IdentityOfRecords, APairThatIsOneNoLongerIsNotWritten)
{
    Propose(1, IdOf(1), 2, L"b", 0);
    EXPECT_FALSE(Import());
    TheRun.Pending = {};
    Propose(1, IdOf(1), 2, L"b", 1);
    EXPECT_FALSE(Export());
    EXPECT_EQ(Written{}, gPairs);
    EXPECT_EQ(2, TheRun.Report.Vanished());
}

TEST_F(IdentityOfRecords, TheFolderIsAskedForItsOwnIdentityOnce)
{
    for (const long position : {1L, 2L, 3L})
    {
        TheRun.Pending.NewOutlookItems.Add(std::to_wstring(position), 0).EntryId =
            TheRun.Texts.Keep(IdOf(position % 3 + 1));
    }
    const test_support::CallWatch calls;
    EXPECT_FALSE(Import());
    EXPECT_EQ((Written{L"b", L"c", L"a"}), gPairs);
    EXPECT_EQ(3, calls.Of(L"NameSpace.GetItemFromID"));
    EXPECT_EQ(1, calls.Of(L"MAPIFolder.StoreID"));
    EXPECT_EQ(1 + 3, calls.Of(L"MAPIFolder.EntryID")); // its own, and those of the items' parents
}

TEST_F(IdentityOfRecords, AnItemWithoutAnEntryIdIsIdentifiedByItsKey)
{
    TheRun.Identity.FirstKeyOf = [](const automation::ItemView& item) {
        return TextOf(item.Get(L"LastName"));
    };
    TheRun.Pending.NewOutlookItems.Add(L"1", 0).FirstKey = TheRun.Texts.Keep(L"a");
    TheRun.Pending.NewOutlookItems.Add(L"2", 0).FirstKey = TheRun.Texts.Keep(L"a");
    EXPECT_FALSE(Import());
    EXPECT_EQ((Written{L"a"}), gPairs);
    EXPECT_EQ(1, TheRun.Report.Vanished());
}

TEST_F(IdentityOfRecords, AnItemThatWasMovedToAnotherFolderIsGone)
{
    Mailbox->AddItem(test_support::kTaskRecords.folder, {{L"Subject", L"elsewhere"}});
    const Object tasks = state::Shared().gOlNamespace.GetObject(L"GetDefaultFolder", 13L);
    TheRun.Pending.NewOutlookItems.Add(L"1", 0).EntryId =
        TheRun.Texts.Keep(exchange::EntryIdOf(tasks.GetObject(L"Items").GetObject(L"Item", 1L)));
    EXPECT_FALSE(Import());
    EXPECT_EQ(Written{}, gPairs);
    EXPECT_EQ(1, TheRun.Report.Vanished());
}

TEST_F(IdentityOfRecords, AnItemThatVanishesWhileItIsWrittenIsSkippedAndThePassGoesOn)
{
    gMailbox = Mailbox.get();
    Propose(1, IdOf(1), 1, L"a", 1);
    Propose(2, IdOf(2), 2, L"b", 1);
    Propose(3, IdOf(3), 3, L"c", 1);
    EXPECT_FALSE((exchange::PassToOutlook{.ItemType = automation::kContactItem,
                                          .RelationStatement = L"SELECT",
                                          .Write = NoteUnlessDeleted}(TheRun)));
    EXPECT_EQ((Written{L"a a", L"c c"}), gPairs);
    EXPECT_EQ(1, TheRun.Report.Vanished());
}

TEST_F(IdentityOfRecords, AnItemThatIsRefusedAndStillThereEndsThePass)
{
    Propose(1, IdOf(1), 1, L"a", 1);
    EXPECT_TRUE((exchange::PassToOutlook{
        .ItemType = automation::kContactItem, .RelationStatement = L"SELECT", .Write = Refuse}(TheRun)));
    EXPECT_EQ(0, TheRun.Report.Vanished());
}

TEST_F(IdentityOfRecords, AnItemOfAnotherStoreIsFoundAgainInThatStore)
{
    Mailbox->AddFolder(L"Archive\\People", sandbox::ItemKind::Contact);
    Mailbox->AddItem(L"Archive\\People", {{L"LastName", L"a"}});
    TheRun.Folder =
        state::Shared().gOlNamespace.GetObject(L"Folders", L"Archive").GetObject(L"Folders", L"People");
    TheRun.Items = TheRun.Folder.GetObject(L"Items");
    TheRun.Pending.NewOutlookItems.Add(L"9", 0).EntryId = TheRun.Texts.Keep(IdOf(1));
    EXPECT_FALSE(Import());
    EXPECT_EQ((Written{L"a"}), gPairs);
}
