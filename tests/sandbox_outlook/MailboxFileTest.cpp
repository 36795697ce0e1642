#include "tests/sandbox_outlook/MailboxFileFixture.h"

namespace sandbox
{

using MailboxFile = MailboxFileTest;

TEST_F(MailboxFile, ASavedItemIsInTheFileAtOnce)
{
    const auto outlook = MakeOutlook(OpenMailbox(mPath));
    const auto contact = Folder(outlook, 10).GetObject(L"Items").GetObject(L"Add");
    contact.Put(L"LastName", L"王");
    contact.Put(L"Birthday", Day(1975, 3, 4));
    EXPECT_EQ(L"", Stored(1, L"LastName"));
    contact.Call(L"Save");
    EXPECT_EQ(L"王", Stored(1, L"LastName"));
    EXPECT_EQ(L"1975-03-04 00:00:00", Stored(1, L"Birthday"));
    EXPECT_EQ(L"IPM.Contact", Stored(1, L"MessageClass"));
    contact.Put(L"LastName", {});
    contact.Call(L"Save");
    EXPECT_EQ(L"", Stored(1, L"LastName"));
    EXPECT_EQ(L"1975-03-04 00:00:00", Stored(1, L"Birthday"));
}

TEST_F(MailboxFile, AnotherSessionReadsTheSavedItems)
{
    {
        const auto outlook = MakeOutlook(OpenMailbox(mPath));
        const auto contact = Folder(outlook, 10).GetObject(L"Items").GetObject(L"Add");
        contact.Put(L"FirstName", L"小明");
        contact.Put(L"LastName", L"王");
        contact.Call(L"Save");
        const auto task = Folder(outlook, 13).GetObject(L"Items").GetObject(L"Add");
        task.Put(L"Complete", true);
        task.GetObject(L"Links").Call(L"Add", contact);
        task.Call(L"Save");
    }
    const auto outlook = MakeOutlook(OpenMailbox(mPath));
    const auto task = Folder(outlook, 13).GetObject(L"Items").GetObject(L"Item", 1);
    EXPECT_TRUE(Truth(task, L"Complete"));
    EXPECT_EQ(2, Number(task, L"Status"));
    EXPECT_EQ(L"王小明", Text(task, L"ContactNames"));
}

TEST_F(MailboxFile, AFolderIsDeletedWithEverythingInItAndAStoreIsNot)
{
    const auto outlook = MakeOutlook(OpenMailbox(mPath));
    const auto contacts = Folder(outlook, 10);
    const auto friends = contacts.GetObject(L"Folders").GetObject(L"Add", L"Friends");
    friends.GetObject(L"Folders").Call(L"Add", L"Near");
    const auto contact = friends.GetObject(L"Items").GetObject(L"Add");
    contact.Call(L"Save");
    friends.Call(L"Delete");
    EXPECT_EQ(0, Number(contacts.GetObject(L"Folders"), L"Count"));
    EXPECT_EQ(0, Number(Folder(MakeOutlook(OpenMailbox(mPath)), 10).GetObject(L"Folders"), L"Count"));
    EXPECT_THROW(contacts.GetObject(L"Parent").Call(L"Delete"), automation::Error);
}

TEST_F(MailboxFile, RowsAddedByHandAreItemsWithDefaultValues)
{
    AddRow(L"邮箱\\Tasks", 7, L"Subject", L"Call 李雷");
    AddRow(L"邮箱\\Tasks", 7, L"Complete", L"1");
    AddRow(L"邮箱\\Tasks", 3, L"Subject", L"First");
    AddRow(L"邮箱\\Tasks", 3, L"StartDate", L"2003-05-06 00:00:00");
    AddRow(L"邮箱\\Tasks", 3, L"OutlookVersion", L"8.5");
    const auto items = Folder(MakeOutlook(OpenMailbox(mPath)), 13).GetObject(L"Items");
    ASSERT_EQ(2, Number(items, L"Count"));
    const auto first = items.GetObject(L"Item", 1);
    EXPECT_EQ(L"First", Text(first, L"Subject"));
    EXPECT_EQ(L"2003-05-06 00:00", At(first.Get(L"StartDate")));
    EXPECT_EQ(L"4501-01-01 00:00", At(first.Get(L"DueDate")));
    EXPECT_EQ(L"8.5", Text(first, L"OutlookVersion"));
    const auto second = items.GetObject(L"Item", 2);
    EXPECT_EQ(L"Call 李雷", Text(second, L"Subject"));
    EXPECT_TRUE(Truth(second, L"Complete"));
    EXPECT_EQ(1, Number(second, L"Importance"));
}

TEST_F(MailboxFile, ARowThatCannotBeReadCountsAsAbsent)
{
    AddRow(L"邮箱\\Tasks", 1, L"Subject", L"x");
    AddRow(L"邮箱\\Tasks", 1, L"DueDate", L"some day");
    AddRow(L"邮箱\\Tasks", 1, L"PercentComplete", L"half");
    AddRow(L"邮箱\\Tasks", 1, L"Shoe size", L"44");
    const auto task = Folder(MakeOutlook(OpenMailbox(mPath)), 13).GetObject(L"Items").GetObject(L"Item", 1);
    EXPECT_EQ(L"4501-01-01 00:00", At(task.Get(L"DueDate")));
    EXPECT_EQ(0, Number(task, L"PercentComplete"));
    task.Put(L"PercentComplete", 50);
    task.Call(L"Save");
    EXPECT_EQ(L"50", Stored(1, L"PercentComplete"));
    EXPECT_EQ(L"44", Stored(1, L"Shoe size"));
}

TEST_F(MailboxFile, ANewItemComesAfterTheHighestIndex)
{
    AddRow(L"邮箱\\Contacts", 40, L"LastName", L"Smith");
    const auto items = Folder(MakeOutlook(OpenMailbox(mPath)), 10).GetObject(L"Items");
    const auto contact = items.GetObject(L"Add");
    contact.Put(L"LastName", L"Jones");
    contact.Call(L"Save");
    EXPECT_EQ(L"Jones", Stored(41, L"LastName"));
    EXPECT_EQ(L"Jones", Text(items.GetObject(L"Item", 2), L"LastName"));
}

TEST_F(MailboxFile, ALinkThatLeadsNowhereIsANameWithoutAnItem)
{
    AddRow(L"邮箱\\Tasks", 1, L"Subject", L"x");
    Run(L"INSERT INTO ItemLink VALUES (?, 1, ?)", {L"邮箱\\Tasks", L"Mary Smith"});
    const auto task = Folder(MakeOutlook(OpenMailbox(mPath)), 13).GetObject(L"Items").GetObject(L"Item", 1);
    const auto link = task.GetObject(L"Links").GetObject(L"Item", 1);
    EXPECT_EQ(L"Mary Smith", Text(link, L"Name"));
    EXPECT_EQ(L"Mary Smith", Text(task, L"ContactNames"));
    EXPECT_THROW(link.Get(L"Item"), automation::Error);
}

TEST_F(MailboxFile, ADeletedItemLeavesTheFile)
{
    AddRow(L"邮箱\\Contacts", 1, L"LastName", L"Smith");
    Folder(MakeOutlook(OpenMailbox(mPath)), 10).GetObject(L"Items").GetObject(L"Item", 1).Call(L"Delete");
    EXPECT_EQ(L"", Stored(1, L"LastName"));
}

TEST_F(MailboxFile, AFolderWithoutARowForItsParentIsInTheTreeAllTheSame)
{
    Run(L"DELETE FROM Folder WHERE Path = ?", {L"邮箱"});
    const auto session = MakeOutlook(OpenMailbox(mPath)).GetObject(L"Session");
    const auto store = session.GetObject(L"Folders").GetObject(L"Item", L"邮箱");
    EXPECT_EQ(3, Number(store.GetObject(L"Folders"), L"Count"));
}

TEST_F(MailboxFile, AFolderThatIsAddedIsInTheFile)
{
    const auto session = MakeOutlook(OpenMailbox(mPath)).GetObject(L"Session");
    const auto contacts = session.GetObject(L"GetDefaultFolder", 10);
    contacts.GetObject(L"Folders").Call(L"Add", L"客户");
    const auto folder = OpenMailbox(mPath)->FindFolder(L"邮箱\\Contacts\\客户");
    ASSERT_NE(nullptr, folder);
    EXPECT_EQ(ItemKind::Contact, folder->Type());
}

TEST_F(MailboxFile, AnItemThatCannotBeWrittenIsReportedAndStaysUnsaved)
{
    const auto outlook = MakeOutlook(OpenMailbox(mPath));
    const auto items = Folder(outlook, 10).GetObject(L"Items");
    const auto contact = items.GetObject(L"Add");
    contact.Put(L"LastName", L"Smith");
    Run(L"DROP TABLE ItemProperty");
    EXPECT_NE(L"", FailureOf([&] { contact.Call(L"Save"); }));
    EXPECT_FALSE(Truth(contact, L"Saved"));
}

TEST_F(MailboxFile, TextsOfEveryKindAreSavedAndReadBack)
{
    const std::wstring texts[] = {
        L"'", L"\"", L"\r\n\t", L"\u0001\u001F", L"\U0001F4C5", L"%_;--", std::wstring(40000, L'王')};
    const auto mailbox = OpenMailbox(mPath);
    for (const std::wstring& text : texts)
    {
        mailbox->AddItem(L"邮箱\\Contacts", {{L"LastName", text}});
    }
    const auto again = OpenMailbox(mPath);
    for (long i = 0; i < static_cast<long>(std::size(texts)); ++i)
    {
        EXPECT_EQ(texts[i], automation::TextOf(again->ItemProperty(L"邮箱\\Contacts", i + 1, L"LastName")))
            << i;
    }
}

TEST_F(MailboxFile, ATextThatIsNoUnicodeIsSavedWithoutFailing)
{
    const auto mailbox = OpenMailbox(mPath);
    mailbox->AddItem(L"邮箱\\Contacts", {{L"LastName", std::wstring(L"a\xD800z")}});
    mailbox->AddItem(L"邮箱\\Contacts", {{L"LastName", std::wstring(L"a\0z", 3)}});
    EXPECT_EQ(2, OpenMailbox(mPath)->ItemCount(L"邮箱\\Contacts"));
}

TEST_F(MailboxFile, KnowsWhetherSomebodyElseHasChangedIt)
{
    const auto mailbox = OpenMailbox(mPath);
    mailbox->AddItem(L"邮箱\\Contacts", {{L"LastName", L"Smith"}});
    EXPECT_FALSE(mailbox->HasChangedElsewhere());
    AddRow(L"邮箱\\Contacts", 9, L"LastName", L"Brown");
    EXPECT_TRUE(mailbox->HasChangedElsewhere());
    const auto again = OpenMailbox(mPath);
    EXPECT_FALSE(again->HasChangedElsewhere());
    DeleteFileW(mPath.c_str());
    EXPECT_TRUE(again->HasChangedElsewhere());
}

TEST_F(MailboxFile, AFileThatIsMissingOrNoMailboxIsRefused)
{
    EXPECT_NE(std::wstring::npos, FailureOf([&] { OpenMailbox(mPath + L".none"); }).find(L"cannot be found"));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW((mPath + L".none").c_str()));
    Run(L"DROP TABLE Folder");
    EXPECT_NE(L"", FailureOf([&] { OpenMailbox(mPath); }));
}

} // namespace sandbox
