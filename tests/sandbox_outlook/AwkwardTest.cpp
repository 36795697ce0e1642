#include "tests/sandbox_outlook/OutlookFixture.h"

#include "automation/Text.h"

#include <objbase.h>

namespace sandbox
{

class Awkwardness : public OutlookFixture
{
  protected:
    Awkwardness()
    {
        for (const wchar_t* name : {L"1", L"2", L"3", L"4", L"5"})
        {
            mMailbox->AddItem(kContacts, {{L"LastName", name}});
        }
    }

    // The last names in the order in which a client meets them; the class of an item that has none.
    std::wstring Names(const automation::Object& items) const
    {
        std::wstring names;
        for (long i = 1; i <= Number(items, L"Count"); ++i)
        {
            const auto item = items.GetObject(L"Item", i);
            names += Number(item, L"Class") == 40 ? Text(item, L"LastName") : Text(item, L"MessageClass");
            names += L" ";
        }
        return names;
    }
    std::wstring Names() const { return Names(Contacts().GetObject(L"Items")); }

    template<typename Body>
    static HRESULT CodeOf(Body&& body)
    {
        try
        {
            body();
        }
        catch (const automation::Error& error)
        {
            return error.Code();
        }
        return S_OK;
    }
};

TEST_F(Awkwardness, IsOffUnlessItIsSwitchedOnAndEverySwitchNamesItsSource)
{
    EXPECT_EQ(L"1 2 3 4 5 ", Names());
    for (const auto& one : outlook::AwkwardSwitches())
    {
        EXPECT_STRNE(L"", one.source) << automation::ToUtf8(one.name);
    }
    EXPECT_EQ(L"There is no switch \"Sleepy\".", FailureOf([&] { mMailbox->Switch(L"Sleepy", 1); }));
}

TEST_F(Awkwardness, NewItemsComeFirst)
{
    mMailbox->Switch(L"order", 1);
    EXPECT_EQ(L"5 4 3 2 1 ", Names());
    SavedContact(L"", L"6");
    EXPECT_EQ(L"6 5 4 3 2 1 ", Names());
    EXPECT_EQ(L"6", Text(Contacts().GetObject(L"Items").GetObject(L"GetFirst"), L"LastName"));
}

TEST_F(Awkwardness, TheOrderChangesAtEachSaveAndOnlyThen)
{
    mMailbox->Switch(L"Order", 2);
    const std::wstring before = Names();
    EXPECT_EQ(before, Names());
    const auto item = Contacts().GetObject(L"Items").GetObject(L"Item", 1);
    item.Put(L"JobTitle", L"Buyer");
    item.Call(L"Save");
    const std::wstring after = Names();
    EXPECT_NE(before, after);
    EXPECT_EQ(before.size(), after.size());
}

TEST_F(Awkwardness, AnItemArrivesOrVanishesAtTheFetchThatIsNamed)
{
    mMailbox->Switch(L"ArriveAtFetch", 3);
    mMailbox->Switch(L"Order", 1);
    const auto items = Contacts().GetObject(L"Items");
    EXPECT_EQ(L"5", Text(items.GetObject(L"Item", 1), L"LastName"));
    EXPECT_EQ(L"4", Text(items.GetObject(L"Item", 2), L"LastName"));
    EXPECT_EQ(L"4", Text(items.GetObject(L"Item", 3), L"LastName")); // all have moved by one
    EXPECT_EQ(6, Number(items, L"Count"));
    mMailbox->Switch(L"VanishAtFetch", 4);
    EXPECT_EQ(L"5", Text(items.GetObject(L"Item", 1), L"LastName"));
    EXPECT_EQ(5, Number(items, L"Count"));
}

TEST_F(Awkwardness, ItemsComeAndGoBetweenTwoCallsAsWell)
{
    const auto items = Contacts().GetObject(L"Items");
    mMailbox->RemoveItem(kContacts, 2);
    EXPECT_EQ(L"1 3 4 5 ", Names(items));
    mMailbox->AddItem(kContacts, {{L"LastName", L"6"}});
    EXPECT_EQ(L"1 3 4 5 6 ", Names(items));
}

TEST_F(Awkwardness, ItemsOfOtherKindsStandAmongTheRecords)
{
    mMailbox->Switch(L"ForeignItems", true);
    EXPECT_EQ(L"IPM.DistList 1 IPM.Post 2 IPM.StickyNote 3 IPM.Acme 4 5 ", Names());
    EXPECT_EQ(L"IPM.DistList 1 IPM.Post 2 IPM.StickyNote 3 IPM.Acme 4 5 ", Names());
    mMailbox->Switch(L"Order", 1);
    EXPECT_EQ(L"5 4 IPM.Acme 3 IPM.StickyNote 2 IPM.Post 1 IPM.DistList ", Names());
    for (const auto& folder : {Tasks(), Calendar()})
    {
        EXPECT_EQ(4, Number(folder.GetObject(L"Items"), L"Count"));
    }
}

TEST_F(Awkwardness, TheGuardRefusesOnlyTheProtectedMembers)
{
    const auto contact = Contacts().GetObject(L"Items").GetObject(L"Item", 1);
    EXPECT_EQ(L"", Text(contact, L"Email1Address"));
    mMailbox->Switch(L"Guard", true);
    EXPECT_EQ(E_ABORT, CodeOf([&] { contact.Get(L"Email1Address"); }));
    EXPECT_EQ(E_ABORT, CodeOf([&] { contact.Get(L"Body"); }));
    EXPECT_EQ(E_ABORT, CodeOf([&] { New(Tasks()).Get(L"ContactNames"); }));
    EXPECT_EQ(E_ABORT, CodeOf([&] {
                  Contacts().GetObject(L"GetTable").GetObject(L"Columns").Call(L"Add", L"JobTitle");
              }));
    contact.Put(L"Email1Address", L"smith@example.org");
    EXPECT_EQ(L"1", Text(contact, L"LastName"));
    EXPECT_EQ(L"", Text(contact, L"CompanyName"));
}

TEST_F(Awkwardness, LinksRaise)
{
    mMailbox->Switch(L"LinksRaise", true);
    const auto task = New(Tasks());
    EXPECT_EQ(L"Links is no longer supported.", FailureOf([&] { task.GetObject(L"Links"); }));
    task.Put(L"Subject", L"Call");
    task.Call(L"Save");
    EXPECT_EQ(1, mMailbox->ItemCount(kTasks));
}

TEST_F(Awkwardness, AStoreThatIsOfflineShowsItsNameAndNothingInIt)
{
    const auto session = mOutlook.GetObject(L"Session");
    const auto contact = Contacts().GetObject(L"Items").GetObject(L"Item", 1);
    const auto folder = Contacts();
    mMailbox->AddFolder(L"Archive\\People", ItemKind::Contact);
    mMailbox->Switch(L"OfflineStore", L"Personal Folders");
    const auto store = session.GetObject(L"Folders").GetObject(L"Item", 1);
    EXPECT_EQ(L"Personal Folders", Text(store, L"Name"));
    constexpr auto kOffline = static_cast<HRESULT>(0x80040126);
    EXPECT_EQ(kOffline, CodeOf([&] { store.GetObject(L"Folders"); }));
    EXPECT_EQ(kOffline, CodeOf([&] { folder.GetObject(L"Items"); }));
    EXPECT_EQ(kOffline, CodeOf([&] { contact.Get(L"LastName"); }));
    EXPECT_EQ(kOffline, CodeOf([&] { contact.Call(L"Save"); }));
    EXPECT_EQ(kOffline, CodeOf([&] { session.GetObject(L"GetItemFromID", Text(contact, L"EntryID")); }));
    const auto archive = session.GetObject(L"Folders").GetObject(L"Item", L"Archive");
    EXPECT_EQ(0, Number(archive.GetObject(L"Folders", 1).GetObject(L"Items"), L"Count"));
}

TEST_F(Awkwardness, RemindersAreSetAsTheOptionsSay)
{
    EXPECT_TRUE(Truth(New(Calendar()), L"ReminderSet"));
    mMailbox->Switch(L"AppointmentReminders", false);
    EXPECT_FALSE(Truth(New(Calendar()), L"ReminderSet"));
    const auto task = New(Tasks());
    task.Put(L"DueDate", Day(2003, 5, 6));
    EXPECT_FALSE(Truth(task, L"ReminderSet"));
    mMailbox->Switch(L"TaskReminders", true);
    task.Put(L"DueDate", Day(2003, 5, 7));
    EXPECT_TRUE(Truth(task, L"ReminderSet"));
    EXPECT_EQ(L"2003-05-07 08:00", At(task.Get(L"ReminderTime")));
}

TEST_F(Awkwardness, SeriesHaveExceptionsThatAWrittenPatternCancels)
{
    const auto series = New(Calendar());
    series.Put(L"Start", Day(2003, 5, 6, 9, 30));
    series.GetObject(L"GetRecurrencePattern").Put(L"RecurrenceType", 1);
    series.Call(L"Save");
    mMailbox->Switch(L"SeriesHaveExceptions", true);
    const auto found = Calendar().GetObject(L"Items").GetObject(L"Item", 1);
    const auto pattern = found.GetObject(L"GetRecurrencePattern");
    const auto exceptions = pattern.GetObject(L"Exceptions");
    ASSERT_EQ(2, Number(exceptions, L"Count"));
    EXPECT_TRUE(Truth(exceptions.GetObject(L"Item", 1), L"Deleted"));
    EXPECT_EQ(L"2003-05-13 00:00", At(exceptions.GetObject(L"Item", 1).Get(L"OriginalDate")));
    EXPECT_FALSE(Truth(exceptions.GetObject(L"Item", 2), L"Deleted"));
    found.Put(L"Subject", L"Standup");
    found.Call(L"Save");
    EXPECT_EQ(2, Number(exceptions, L"Count"));
    pattern.Put(L"Interval", 1);
    found.Call(L"Save");
    EXPECT_EQ(0, Number(exceptions, L"Count"));
    EXPECT_EQ(L"", automation::TextOf(mMailbox->ItemProperty(kCalendar, 1, L"Recurrence.Exceptions")));
}

TEST_F(Awkwardness, TwoStoresHaveOneNameAndFoldersOfTheSameNames)
{
    const auto stores = mOutlook.GetObject(L"Session").GetObject(L"Folders");
    const auto contacts = [&](const automation::Value& index) {
        return stores.GetObject(L"Item", index).GetObject(L"Folders").GetObject(L"Item", L"Contacts");
    };
    mMailbox->Switch(L"Twins", 1);
    ASSERT_EQ(2, Number(stores, L"Count"));
    EXPECT_EQ(L"Personal Folders", Text(stores.GetObject(L"Item", 2), L"Name"));
    EXPECT_EQ(L"\\\\Personal Folders\\Contacts", Text(contacts(2), L"FolderPath"));
    EXPECT_NE(Text(contacts(1), L"StoreID"), Text(contacts(2), L"StoreID"));
    EXPECT_EQ(5, Number(contacts(L"Personal Folders").GetObject(L"Items"), L"Count"));
    EXPECT_EQ(0, Number(contacts(2).GetObject(L"Items"), L"Count"));
    EXPECT_EQ(5, Number(Contacts().GetObject(L"Items"), L"Count"));
}

TEST_F(Awkwardness, ASearchByNameFindsATwinInFront)
{
    mMailbox->Switch(L"Twins", 2);
    const auto store =
        mOutlook.GetObject(L"Session").GetObject(L"Folders").GetObject(L"Item", L"Personal Folders");
    const auto twin = store.GetObject(L"Folders").GetObject(L"Item", L"Contacts");
    EXPECT_EQ(0, Number(twin.GetObject(L"Items"), L"Count"));
    EXPECT_EQ(5, Number(Contacts().GetObject(L"Items"), L"Count"));
    const auto contact = New(twin);
    contact.Put(L"LastName", L"Twin");
    contact.Call(L"Save");
    EXPECT_EQ(L"Twin", Text(mOutlook.GetObject(L"Session")
                                .GetObject(L"GetItemFromID", Text(contact, L"EntryID"), twin.Get(L"StoreID")),
                            L"LastName"));
    EXPECT_EQ(5, mMailbox->ItemCount(kContacts));
}

} // namespace sandbox
