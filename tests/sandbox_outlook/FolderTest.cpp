#include "tests/sandbox_outlook/OutlookFixture.h"

namespace sandbox
{

using Folders = OutlookFixture;

constexpr const wchar_t* kNotFound = L"The attempted operation failed. An object could not be found.";

TEST_F(Folders, TheNamespaceIsMapiAndNoOther)
{
    EXPECT_EQ(L"MAPI", Text(mOutlook.GetObject(L"GetNamespace", L"mapi"), L"Type"));
    EXPECT_EQ(L"The only data source that can be accessed is MAPI.",
              FailureOf([&] { mOutlook.GetObject(L"GetNamespace", L"IMAP"); }));
}

TEST_F(Folders, ADefaultFolderIsTheOneOfItsKind)
{
    EXPECT_EQ(L"Contacts", Text(Folder(10), L"Name"));
    EXPECT_EQ(2, Number(Folder(10), L"DefaultItemType"));
    EXPECT_EQ(L"Tasks", Text(Folder(13), L"Name"));
    EXPECT_EQ(L"Calendar", Text(Folder(9), L"Name"));
    EXPECT_EQ(L"Inbox", Text(Folder(6), L"Name"));
    EXPECT_EQ(L"The folder type is not valid.", FailureOf([&] { Folder(99); }));
}

TEST_F(Folders, ADefaultFolderMissingFromTheMailboxIsNotFound)
{
    mMailbox = std::make_shared<Mailbox>();
    mMailbox->AddFolder(L"Archive\\People", ItemKind::Contact);
    mOutlook = MakeOutlook(mMailbox);
    EXPECT_EQ(L"People", Text(Folder(10), L"Name"));
    EXPECT_EQ(kNotFound, FailureOf([&] { Folder(13); }));
}

TEST_F(Folders, AFolderIsFoundByItsNameInAnyCaseOrByItsIndexFromOne)
{
    const auto stores = mOutlook.GetObject(L"Session").GetObject(L"Folders");
    EXPECT_EQ(1, Number(stores, L"Count"));
    const auto folders = stores.GetObject(L"Item", 1).GetObject(L"Folders");
    EXPECT_EQ(L"Calendar", Text(folders.GetObject(L"Item", L"CALENDAR"), L"Name"));
    EXPECT_EQ(L"Inbox", Text(folders.GetObject(L"Item", 1), L"Name"));
    EXPECT_EQ(L"Notes", Text(folders.GetObject(L"Item", 5.0), L"Name"));
    EXPECT_EQ(kNotFound, FailureOf([&] { folders.GetObject(L"Item", L"Nowhere"); }));
    EXPECT_EQ(kNotFound, FailureOf([&] { folders.GetObject(L"Item", 0); }));
    EXPECT_EQ(kNotFound, FailureOf([&] { folders.GetObject(L"Item", 6); }));
}

TEST_F(Folders, AnIndexMayBePassedWithTheCollectionsName)
{
    const auto session = mOutlook.GetObject(L"Session");
    EXPECT_EQ(L"Personal Folders", Text(session.GetObject(L"Folders", 1), L"Name"));
    SavedContact(L"Mary", L"Smith");
    EXPECT_EQ(L"Smith", Text(Contacts().GetObject(L"Items", 1), L"LastName"));
}

TEST_F(Folders, AFolderNamedLikeANumberIsFoundByName)
{
    mMailbox->AddFolder(std::wstring(kContacts) + L"\\Old", ItemKind::Contact);
    mMailbox->AddFolder(std::wstring(kContacts) + L"\\1", ItemKind::Contact);
    EXPECT_EQ(L"1", Text(Contacts().GetObject(L"Folders").GetObject(L"Item", L"1"), L"Name"));
    EXPECT_EQ(L"Old", Text(Contacts().GetObject(L"Folders").GetObject(L"Item", 1), L"Name"));
}

TEST_F(Folders, ANewFolderHasItsParentsTypeUnlessAnotherIsGiven)
{
    const auto folders = Contacts().GetObject(L"Folders");
    EXPECT_EQ(2, Number(folders.GetObject(L"Add", L"客户"), L"DefaultItemType"));
    EXPECT_EQ(3, Number(folders.GetObject(L"Add", L"To do", 13), L"DefaultItemType"));
    EXPECT_EQ(2, Number(folders, L"Count"));
    EXPECT_NE(L"", FailureOf([&] { folders.GetObject(L"Add", L"客户"); }));
}

TEST_F(Folders, FoldersAreWalkedWithGetFirstAndGetNext)
{
    const auto folders = mOutlook.GetObject(L"Session").GetObject(L"Folders", 1).GetObject(L"Folders");
    std::wstring names;
    for (auto folder = folders.GetObject(L"GetFirst"); folder; folder = folders.GetObject(L"GetNext"))
    {
        names += Text(folder, L"Name") + L" ";
    }
    EXPECT_EQ(L"Inbox Calendar Contacts Tasks Notes ", names);
}

TEST_F(Folders, AFolderKnowsItsPlace)
{
    EXPECT_EQ(L"Personal Folders", Text(Contacts().GetObject(L"Parent"), L"Name"));
    EXPECT_EQ(L"\\\\Personal Folders\\Contacts", Text(Contacts(), L"FolderPath"));
    EXPECT_EQ(L"Contacts", Text(New(Contacts()).GetObject(L"Parent"), L"Name"));
}

} // namespace sandbox
