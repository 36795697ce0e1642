#include "tests/sandbox_outlook/OutlookFixture.h"

namespace sandbox
{

using Items = OutlookFixture;

TEST_F(Items, ANewItemIsInTheFolderAfterSaveAtTheEnd)
{
    SavedContact(L"Mary", L"Smith");
    const auto items = Contacts().GetObject(L"Items");
    const auto contact = items.GetObject(L"Add", 2);
    contact.Put(L"LastName", L"Jones");
    EXPECT_EQ(1, Number(items, L"Count"));
    EXPECT_EQ(L"", Text(contact, L"EntryID"));
    EXPECT_FALSE(Truth(contact, L"Saved"));
    contact.Call(L"Save");
    EXPECT_EQ(2, Number(items, L"Count"));
    EXPECT_EQ(L"Jones", Text(items.GetObject(L"Item", 2), L"LastName"));
    EXPECT_NE(L"", Text(contact, L"EntryID"));
    EXPECT_TRUE(Truth(contact, L"Saved"));
}

TEST_F(Items, EachCallOfFolderItemsIsANewCollection)
{
    const auto folder = Contacts();
    EXPECT_NE(folder.GetObject(L"Items").Dispatch(), folder.GetObject(L"Items").Dispatch());
}

TEST_F(Items, AnIndexMayBeALongADoubleOrANumberInText)
{
    SavedContact(L"Mary", L"Smith");
    SavedContact(L"John", L"Jones");
    const auto items = Contacts().GetObject(L"Items");
    EXPECT_EQ(L"Smith", Text(items.GetObject(L"Item", 1), L"LastName"));
    EXPECT_EQ(L"Jones", Text(items.GetObject(L"Item", 2.0), L"LastName"));
    EXPECT_EQ(L"Jones", Text(items.GetObject(L"Item", L"2"), L"LastName"));
    EXPECT_EQ(L"Jones", Text(items.GetObject(L"Item", L"John Jones"), L"LastName"));
}

TEST_F(Items, AnIndexOutsideTheFolderIsAnErrorWithADescription)
{
    SavedContact(L"Mary", L"Smith");
    const auto items = Contacts().GetObject(L"Items");
    for (const long index : {-1L, 0L, 2L})
    {
        EXPECT_EQ(L"Array index out of bounds.", FailureOf([&] { items.GetObject(L"Item", index); }))
            << index;
    }
    EXPECT_EQ(L"The attempted operation failed. An object could not be found.",
              FailureOf([&] { items.GetObject(L"Item", L"nobody"); }));
}

TEST_F(Items, AChangeIsSeenThroughAnotherObjectOnlyOnceItIsSaved)
{
    SavedContact(L"Mary", L"Smith");
    const auto items = Contacts().GetObject(L"Items");
    const auto one = items.GetObject(L"Item", 1);
    const auto other = items.GetObject(L"Item", 1);
    EXPECT_NE(one.Dispatch(), other.Dispatch());
    one.Put(L"LastName", L"Brown");
    EXPECT_EQ(L"Smith", Text(other, L"LastName"));
    one.Call(L"Save");
    EXPECT_EQ(L"Brown", Text(other, L"LastName"));
}

TEST_F(Items, AnUnsavedChangeIsLostWithItsObject)
{
    SavedContact(L"Mary", L"Smith");
    const auto items = Contacts().GetObject(L"Items");
    items.GetObject(L"Item", 1).Put(L"LastName", L"Brown");
    EXPECT_EQ(L"Smith", Text(items.GetObject(L"Item", 1), L"LastName"));
}

TEST_F(Items, ADeletedItemLeavesTheFolderAndCannotBeSaved)
{
    SavedContact(L"Mary", L"Smith");
    SavedContact(L"John", L"Jones");
    const auto items = Contacts().GetObject(L"Items");
    const auto mary = items.GetObject(L"Item", 1);
    const auto found = items.GetObject(L"Restrict", L"[MessageClass] = 'IPM.Contact'");
    items.Call(L"Remove", 1);
    EXPECT_EQ(1, Number(items, L"Count"));
    EXPECT_EQ(1, Number(found, L"Count"));
    EXPECT_EQ(L"Jones", Text(items.GetObject(L"Item", 1), L"LastName"));
    mary.Put(L"LastName", L"Brown");
    EXPECT_EQ(L"The item has been moved or deleted.", FailureOf([&] { mary.Call(L"Save"); }));
}

TEST_F(Items, TheEntryIdOfADeletedItemIsNotGivenAgain)
{
    SavedContact(L"Mary", L"Smith");
    const auto items = Contacts().GetObject(L"Items");
    const std::wstring entryId = Text(items.GetObject(L"Item", 1), L"EntryID");
    items.Call(L"Remove", 1);
    SavedContact(L"John", L"Jones");
    EXPECT_NE(entryId, Text(items.GetObject(L"Item", 1), L"EntryID"));
}

TEST_F(Items, AnEntryIdLeadsToAnItemInTheStoreThatIsNamedOrElseInTheFirstOne)
{
    mMailbox->AddFolder(L"Archive\\People", ItemKind::Contact);
    mMailbox->AddItem(L"Archive\\People", {{L"LastName", L"Smith"}});
    const auto session = mOutlook.GetObject(L"Session");
    const auto folder = session.GetObject(L"Folders", L"Archive").GetObject(L"Folders", L"People");
    const std::wstring entryId = Text(folder.GetObject(L"Items").GetObject(L"Item", 1), L"EntryID");
    EXPECT_EQ(L"Smith",
              Text(session.GetObject(L"GetItemFromID", entryId, folder.Get(L"StoreID")), L"LastName"));
    EXPECT_THROW(session.GetObject(L"GetItemFromID", entryId), automation::Error);
    EXPECT_THROW(session.GetObject(L"GetItemFromID", entryId, Contacts().Get(L"StoreID")), automation::Error);
}

TEST_F(Items, AnItemOfAnotherTypeKeepsItsOwnType)
{
    const auto task = Contacts().GetObject(L"Items").GetObject(L"Add", 3);
    EXPECT_EQ(L"IPM.Task", Text(task, L"MessageClass"));
    EXPECT_EQ(L"IPM.Task",
              Text(Contacts().GetObject(L"Items").GetObject(L"Add", L"IPM.Task"), L"MessageClass"));
    for (const automation::Value& type : {automation::Value(99), automation::Value(4),
                                          automation::Value(L"IPM.Nonsense"), automation::Value(L"")})
    {
        EXPECT_EQ(L"The item type is not valid.",
                  FailureOf([&] { Contacts().GetObject(L"Items").GetObject(L"Add", type); }));
    }
}

TEST_F(Items, CreationAndModificationAreStampedBySaving)
{
    const auto before = automation::DateOf(New(Contacts()).Get(L"CreationTime"));
    EXPECT_EQ(automation::kOutlookNoDate, before);
    const auto contact = SavedContact(L"Mary", L"Smith");
    EXPECT_LT(automation::DateOf(contact.Get(L"CreationTime")), automation::kOutlookNoDate);
    EXPECT_LE(automation::DateOf(contact.Get(L"CreationTime")),
              automation::DateOf(contact.Get(L"LastModificationTime")));
}

TEST_F(Items, CreateItemSavesToTheDefaultFolder)
{
    const auto task = mOutlook.GetObject(L"CreateItem", 3);
    task.Put(L"Subject", L"Call");
    task.Call(L"Save");
    EXPECT_EQ(1, mMailbox->ItemCount(kTasks));
    EXPECT_EQ(L"Call", automation::TextOf(mMailbox->ItemProperty(kTasks, 1, L"Subject")));
}

TEST_F(Items, AnItemIsFoundByItsEntryId)
{
    const auto contact = SavedContact(L"Mary", L"Smith");
    const auto session = mOutlook.GetObject(L"Session");
    EXPECT_EQ(L"Smith", Text(session.GetObject(L"GetItemFromID", Text(contact, L"EntryID")), L"LastName"));
    EXPECT_THROW(session.GetObject(L"GetItemFromID", L"0"), automation::Error);
}

TEST_F(Items, ItemIsTheDefaultMember)
{
    SavedContact(L"Mary", L"Smith");
    const auto items = Contacts().GetObject(L"Items");
    VARIANT index{};
    index.vt = VT_I4;
    index.lVal = 1;
    DISPPARAMS parameters{&index, nullptr, 1, 0};
    automation::Value result;
    EXPECT_EQ(S_OK, items.Dispatch()->Invoke(DISPID_VALUE, IID_NULL, LOCALE_NEUTRAL,
                                             DISPATCH_PROPERTYGET | DISPATCH_METHOD, &parameters,
                                             result.Receive(), nullptr, nullptr));
    EXPECT_EQ(L"Smith", Text(automation::ObjectOf(result), L"LastName"));
}

} // namespace sandbox
