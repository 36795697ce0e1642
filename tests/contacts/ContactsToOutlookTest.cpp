// The apply pass of contacts towards Outlook: which records it writes, in which order, at what cost, and what
// is left when it cannot go on.
#include "tests/contacts/ContactsFixture.h"

#include "tests/support/OpenedRecordsets.h"

namespace
{

using resources::Language;
using test_support::CallWatch;
using test_support::WithLanguage;

class ContactsToOutlook : public test_support::ContactsFixture
{
  protected:
    // Three host contacts with these nicknames.
    void AddThreeRows()
    {
        for (const wchar_t* name : {L"'one'", L"'two'", L"'three'"})
        {
            AddRow({{L"F_NICKNAME", name}});
        }
    }

    void AddThreeItems()
    {
        for (long i = 1; i <= 3; ++i)
        {
            AddItem({{L"NickName", L"old"}});
        }
    }

    std::wstring NickNames()
    {
        std::wstring names;
        for (long i = 1; i <= CountItems(); ++i)
        {
            names += (names.empty() ? L"" : L" ") + TextIn(i, L"NickName");
        }
        return names;
    }
};

TEST_F(ContactsToOutlook, NewHostContactsBecomeItemsInTheOrderInWhichTheyWereCollected)
{
    AddThreeRows();
    EXPECT_FALSE(Export({3, 1, 2}));
    EXPECT_EQ(NickNames(), L"three one two");
    EXPECT_EQ(TextIn(1, L"MessageClass"), L"IPM.Contact");
}

TEST_F(ContactsToOutlook, TheRelationRowsAreOpenedAsTheContractHasThem)
{
    AddThreeRows();
    const test_support::OpenedRecordsets opened;
    EXPECT_FALSE(Export({1}));
    EXPECT_EQ(opened.Texts,
              std::vector<std::wstring>{L"Select * From SynRelation Where "
                                        L"QuenlarTblName='TBLCONTACT' (cursor 1, lock 1, options "
                                        L"1)"});
}

TEST_F(ContactsToOutlook, AChangedContactOverwritesTheItemOfItsPairAndNoOther)
{
    AddThreeRows();
    AddThreeItems();
    EXPECT_FALSE(OverwriteItems({{1, 3}, {3, 1}}));
    EXPECT_EQ(NickNames(), L"three old one");
}

TEST_F(ContactsToOutlook, AdditionsAreWrittenBeforeModifications)
{
    AddThreeRows();
    AddItem({{L"NickName", L"old"}});
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(3L, 1);
    run.Pending.ChangedOutlookItems.Add(L"2", 1); // the item that the addition makes
    run.Pending.NewHostRecords.Add(1L, 0);
    EXPECT_FALSE(contacts::SynContactToOutlook(run));
    EXPECT_EQ(NickNames(), L"old three");
}

TEST_F(ContactsToOutlook, OnlyModificationsMarkedForOutlookAreWrittenButEachAdvancesTheProgress)
{
    AddThreeRows();
    AddThreeItems();
    for (const long state : {0L, 2L, -1L})
    {
        exchange::Run run = NewRun();
        run.Pending.ChangedHostRecords.Add(1L, state);
        run.Pending.ChangedOutlookItems.Add(L"1", 1);
        run.Pending.ChangedHostRecords.Add(2L, 1);
        run.Pending.ChangedOutlookItems.Add(L"2", state); // the mark of the host record decides
        Display.Progress.clear();
        EXPECT_FALSE(contacts::SynContactToOutlook(run));
        EXPECT_EQ(NickNames(), L"old two old");
        EXPECT_EQ(Display.Progress, (std::vector<double>{0, 0, 0, 0.5, 1}));
    }
}

TEST_F(ContactsToOutlook, TheMarkOfAnAdditionMakesNoDifference)
{
    AddThreeRows();
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(1L, 0);
    run.Pending.NewHostRecords.Add(2L, 1);
    run.Pending.NewHostRecords.Add(3L, 2);
    EXPECT_FALSE(contacts::SynContactToOutlook(run));
    EXPECT_EQ(NickNames(), L"one two three");
}

TEST_F(ContactsToOutlook, ZeroAdditionsAndModificationsWriteNothingReadNothingAndSucceed)
{
    AddThreeRows();
    AddThreeItems();
    exchange::Run run = NewRun();
    const CallWatch calls;
    EXPECT_FALSE(contacts::SynContactToOutlook(run));
    EXPECT_EQ(calls.Total(), 0);
    EXPECT_EQ(Display.Progress, (std::vector<double>{0, 0, 0}));
    EXPECT_EQ(NickNames(), L"old old old");
}

TEST_F(ContactsToOutlook, TheStatusLineNamesTheWorkInTheInterfaceLanguage)
{
    Export({});
    EXPECT_EQ(Display.Status, L"Begin Synchronize...");
    const WithLanguage chinese(Language::Chinese);
    Export({});
    EXPECT_EQ(Display.Status, L"正在进行数据传输，请稍候...");
}

TEST_F(ContactsToOutlook, TheProgressIsShownFromZeroOnceAndHiddenAtTheEnd)
{
    AddThreeRows();
    Export({1, 2, 3, 1});
    EXPECT_EQ(Display.Progress, (std::vector<double>{0, 0, 0.25, 0.5, 0.75, 1, 0}));
    EXPECT_EQ(Display.TimesShown, 1);
    EXPECT_FALSE(Display.IsShown);
}

TEST_F(ContactsToOutlook, AnItemIndexIsReadAsANumberAsFarAsItIsOne)
{
    AddThreeRows();
    AddThreeItems();
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 1);
    run.Pending.ChangedOutlookItems.Add(L" 2nd", 1);
    EXPECT_FALSE(contacts::SynContactToOutlook(run));
    EXPECT_EQ(NickNames(), L"old one old");
}

TEST_F(ContactsToOutlook, TheHostRowsStayOnTheLastWrittenRow)
{
    AddThreeRows();
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(3L, 0);
    run.Pending.NewHostRecords.Add(2L, 0);
    EXPECT_FALSE(contacts::SynContactToOutlook(run));
    EXPECT_EQ(run.HostRows.AbsolutePosition(), 2);
}

TEST_F(ContactsToOutlook, AnErrorInTheMiddleOfTheAdditionsStopsThemFailsAndLeavesTheWrittenOnes)
{
    AddThreeRows();
    CallWatch watch;
    watch.FailNth(2, L"NickName"); // Outlook refuses it
    EXPECT_TRUE(Export({1, 2, 3}));
    EXPECT_EQ(NickNames(), L"one");
    EXPECT_EQ(Display.Progress.back(), 1.0 / 3);
    EXPECT_FALSE(Display.IsShown);
}

TEST_F(ContactsToOutlook, AnErrorInTheMiddleOfTheModificationsStopsThemFailsAndLeavesTheWrittenOnes)
{
    AddThreeRows();
    AddThreeItems();
    CallWatch watch;
    watch.FailNth(2, L"NickName"); // Outlook refuses it
    EXPECT_TRUE(OverwriteItems({{1, 1}, {2, 2}, {3, 3}}));
    EXPECT_EQ(NickNames(), L"one old old");
}

TEST_F(ContactsToOutlook, AnErrorInTheAdditionsKeepsTheModificationsFromStarting)
{
    AddThreeRows();
    AddItem({{L"NickName", L"old"}});
    CallWatch watch;
    watch.FailNth(1, L"NickName"); // Outlook refuses it
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(2L, 0);
    run.Pending.ChangedHostRecords.Add(1L, 1);
    run.Pending.ChangedOutlookItems.Add(L"1", 1);
    EXPECT_TRUE(contacts::SynContactToOutlook(run));
    EXPECT_EQ(NickNames(), L"old");
}

TEST_F(ContactsToOutlook, ARowOrAPositionThatIsNoneFailsAndAnItemThatIsGoneIsLeftOut)
{
    AddThreeRows();
    AddThreeItems();
    EXPECT_TRUE(Export({4}));
    EXPECT_FALSE(OverwriteItems({{1, 4}}));
    EXPECT_TRUE(OverwriteItems({{1, 0}}));
    EXPECT_EQ(NickNames(), L"old old old");
}

TEST_F(ContactsToOutlook, ARelationToAColumnThatTheHostDoesNotHaveFails)
{
    AddThreeRows();
    Relate({{L"F_NICKNAME", L"NickName"}, {L"F_NOWHERE", L"Spouse"}});
    EXPECT_TRUE(Export({1}));
    EXPECT_EQ(CountItems(), 0);
}

TEST_F(ContactsToOutlook, ARelationTableThatCannotBeReadFailsAndTheNextPassReadsItAgain)
{
    AddThreeRows();
    Execute(L"ALTER TABLE SynRelation RENAME TO Elsewhere");
    EXPECT_TRUE(Export({1, 2}));
    EXPECT_EQ(CountItems(), 0);
    Execute(L"ALTER TABLE Elsewhere RENAME TO SynRelation");
    EXPECT_FALSE(Export({1, 2}));
    EXPECT_EQ(NickNames(), L"one two");
}

TEST_F(ContactsToOutlook, EachPassReadsTheRelationsAnewSoThatADeletedOneIsSwitchedOff)
{
    AddRow({{L"F_NICKNAME", L"'Ann'"}, {L"F_SPOUSE", L"'Bob'"}});
    Export({1});
    Execute(L"DELETE FROM SynRelation WHERE OutlookName='Spouse'");
    Export({1});
    EXPECT_EQ(NickNames(), L"Ann Ann");
    EXPECT_EQ(TextIn(1, L"Spouse"), L"Bob");
    EXPECT_EQ(TextIn(2, L"Spouse"), L"");
}

TEST_F(ContactsToOutlook, TheRelationsAreReadOncePerPassHoweverManyRecordsItWrites)
{
    AddThreeRows();
    AddThreeItems();
    exchange::Run run = NewRun();
    for (long row = 1; row <= 3; ++row)
    {
        run.Pending.NewHostRecords.Add(row, 0);
        run.Pending.ChangedHostRecords.Add(row, 1);
        run.Pending.ChangedOutlookItems.Add(std::to_wstring(row), 1);
    }
    const CallWatch calls;
    EXPECT_FALSE(contacts::SynContactToOutlook(run));
    EXPECT_EQ(calls.Of(L"Recordset.Open"), 1);
    EXPECT_EQ(calls.Of(L"Recordset.Close"), 1);
    EXPECT_EQ(calls.Of(L"Items.Add"), 3);
    EXPECT_EQ(calls.Of(L"Items.Item"), 3);
    EXPECT_EQ(calls.Of(L"ContactItem.Save"), 6);
    EXPECT_EQ(calls.Of(L"Recordset.Move"), 6);
}

TEST_F(ContactsToOutlook, WritingOneMoreRecordReadsItsColumnsAndNothingElseOfTheDatabase)
{
    AddThreeRows();
    Relate({{L"F_NICKNAME", L"NickName"}, {L"F_SPOUSE", L"Spouse"}});
    const auto callsFor = [&](const std::vector<long>& rows) {
        exchange::Run run = NewRun();
        for (const long row : rows)
        {
            run.Pending.NewHostRecords.Add(row, 0);
        }
        const CallWatch calls;
        contacts::SynContactToOutlook(run);
        return calls.Total();
    };
    // Move, Items.Add, two columns read, two properties written, Save.
    EXPECT_EQ(callsFor({1, 2, 3}) - callsFor({1, 2}), 7);
}

TEST_F(ContactsToOutlook, TheRelationRecordsetIsClosedAfterAFailureToo)
{
    AddThreeRows();
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(1L, 0);
    const CallWatch calls;
    CallWatch watch;
    watch.FailNth(1, L"NickName"); // Outlook refuses it
    EXPECT_TRUE(contacts::SynContactToOutlook(run));
    EXPECT_EQ(calls.Of(L"Recordset.Close"), calls.Of(L"Recordset.Open"));
}

} // namespace
