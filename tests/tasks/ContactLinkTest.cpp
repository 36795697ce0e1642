#include "links/ContactLink.h"

#include "automation/Error.h"
#include "state/SharedState.h"
#include "tasks/Tasks.h"
#include "tests/support/CallWatch.h"
#include "tests/tasks/TaskFixture.h"

namespace
{

using automation::Object;
using automation::TextOf;
using test_support::CallWatch;
using test_support::kContactKind;
using test_support::kTaskKind;

class ContactLink : public test_support::TaskFixture
{
  protected:
    ContactLink() { Relate({{L"F_ACTNAME", L"Subject"}, {L"CONTACT_SURNAME", L"ContactNames"}}); }

    void AddRowWith(const wchar_t* surname, const wchar_t* givenName)
    {
        AddRow({{L"F_ACTNAME", L"'Call'"}, {L"CONTACT_SURNAME", surname}, {L"CONTACT_GIVENNAME", givenName}});
    }

    long AddContact(const wchar_t* first, const wchar_t* last)
    {
        return Mailbox->AddItem(kContactKind.folder, {{L"FirstName", first}, {L"LastName", last}});
    }

    std::wstring ContactProperty(long position, const wchar_t* name) const
    {
        return TextOf(Mailbox->ItemProperty(kContactKind.folder, position, name));
    }

    std::vector<std::wstring> Links(long task) const { return Mailbox->ItemLinks(kTaskKind.folder, task); }
};

bool Refuse(const Object& /*contact*/)
{
    return false;
}

bool IsNotOfOutlook8(const Object& contact)
{
    return !links::IsOfOutlook8(contact);
}

} // namespace

TEST_F(ContactLink, TheContactOfTheNameIsLinked)
{
    AddContact(L"Hua", L"Li");
    AddContact(L"Wei", L"Zhang");
    AddRowWith(L"'Zhang'", L"'Wei'");
    const Object task = WriteNewItem();
    EXPECT_EQ(2, CountContacts());
    ASSERT_EQ(1u, Links(1).size());
    EXPECT_EQ(L"Wei",
              TextOf(task.GetObject(L"Links").GetObject(L"Item", 1L).GetObject(L"Item").Get(L"FirstName")));
}

TEST_F(ContactLink, AnOutlookWithoutLinksCostsTheLinkAndNotTheTask)
{
    Mailbox->Switch(L"LinksRaise", true);
    AddContact(L"Wei", L"Zhang");
    AddRowWith(L"'Zhang'", L"'Wei'");
    WriteNewItem();
    ASSERT_EQ(1, CountItems());
    EXPECT_EQ(L"Call", TextOf(Mailbox->ItemProperty(kTaskKind.folder, 1, L"Subject")));
    EXPECT_TRUE(Links(1).empty());
}

TEST_F(ContactLink, AContactsFolderThatCannotBeReachedCostsTheLinkAlone)
{
    Mailbox->AddFolder(L"Archive\\Tasks", sandbox::ItemKind::Task);
    const Object task = state::Shared()
                            .gOlNamespace.GetObject(L"Folders", L"Archive")
                            .GetObject(L"Folders", L"Tasks")
                            .GetObject(L"Items")
                            .GetObject(L"Add");
    Mailbox->Switch(L"OfflineStore", L"Personal Folders");
    links::LinkContact(task, L"Zhang", L"Wei");
    EXPECT_EQ(0, automation::LongOf(task.GetObject(L"Links").Get(L"Count")));
}

TEST_F(ContactLink, AContactThatIsNotFoundIsCreatedWithJustItsNameAndLinked)
{
    AddContact(L"Zhang", L"Wei"); // the other way round is another person
    AddRowWith(L"'Zhang'", L"'Wei'");
    const Object task = WriteNewItem();
    ASSERT_EQ(2, CountContacts());
    EXPECT_EQ(L"Wei", ContactProperty(2, L"FirstName"));
    EXPECT_EQ(L"Zhang", ContactProperty(2, L"LastName"));
    EXPECT_EQ(L"", ContactProperty(2, L"CompanyName"));
    EXPECT_EQ(1u, Links(1).size());
    EXPECT_NE(std::wstring::npos, TextOf(task.Get(L"ContactNames")).find(L"Zhang"));
}

TEST_F(ContactLink, WithoutASurnameOrAGivenNameEmptyTextsIncludedNothingIsSearchedNorLinked)
{
    AddRowWith(L"'Zhang'", L"NULL");
    WriteNewItem();
    Execute(L"UPDATE HostRows SET CONTACT_SURNAME=NULL, CONTACT_GIVENNAME='Wei'");
    WriteNewItem();
    Execute(L"UPDATE HostRows SET CONTACT_SURNAME='', CONTACT_GIVENNAME='Wei'");
    WriteNewItem();
    Execute(L"UPDATE HostRows SET CONTACT_SURNAME='Zhang', CONTACT_GIVENNAME=''");
    WriteNewItem();
    EXPECT_EQ(0, CountContacts());
    for (const long task : {1, 2, 3, 4})
    {
        EXPECT_TRUE(Links(task).empty());
    }
}

TEST_F(ContactLink, AnExistingTaskGetsOneMoreLinkEachTimeItIsWritten)
{
    AddContact(L"Wei", L"Zhang");
    AddRowWith(L"'Zhang'", L"'Wei'");
    WriteNewItem();
    WriteExistingItem();
    EXPECT_EQ(2u, Links(1).size());
    WriteExistingItem();
    EXPECT_EQ(3u, Links(1).size());
    EXPECT_EQ(1, CountContacts());
}

TEST_F(ContactLink, TwoTasksOfANewContactInOnePassShareIt)
{
    AddRowWith(L"'Zhang'", L"'Wei'");
    AddRowWith(L"'Zhang'", L"'Wei'");
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(1L, 0);
    run.Pending.NewHostRecords.Add(2L, 0);
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    EXPECT_EQ(1, CountContacts());
    EXPECT_EQ(Links(1), Links(2));
    EXPECT_EQ(1u, Links(2).size());
}

TEST_F(ContactLink, ADoubleQuoteInANameEndsThePassWithNothingHalfOpen)
{
    for (const auto& [surname, givenName] :
         {std::pair(L"'Zh\"ang'", L"'Wei'"), std::pair(L"'Zhang'", L"'W\"ei'")})
    {
        Execute(L"DELETE FROM HostRows");
        AddRowWith(surname, givenName);
        AddRowWith(L"'Li'", L"'Hua'");
        const long before = CountItems();
        exchange::Run run = NewRun();
        run.Pending.NewHostRecords.Add(1L, 0);
        run.Pending.NewHostRecords.Add(2L, 0);
        const CallWatch calls;
        EXPECT_TRUE(tasks::SynTaskToOutlook(run));
        EXPECT_EQ(0, CountContacts());
        EXPECT_EQ(before + 1, CountItems()); // the first row had saved it, the second task was not begun
        EXPECT_TRUE(Links(before + 1).empty());
        EXPECT_EQ(calls.Of(L"Recordset.Open"), calls.Of(L"Recordset.Close"));
        EXPECT_EQ(L"(hidden)", Display.Events.back());
    }
}

TEST_F(ContactLink, ANameThatContinuesTheSearchFindsItsContact)
{
    AddContact(L"Mei", L"Li");
    AddRowWith(L"'Zhang\" Or [LastName] = \"Li'", L"'Wei'");
    WriteNewItem();
    EXPECT_EQ(1, CountContacts());
    EXPECT_EQ(1u, Links(1).size());
}

TEST_F(ContactLink, AnApostropheInANameIsAPlainCharacter)
{
    AddContact(L"Pat", L"O'Brien");
    AddRowWith(L"'O''Brien'", L"'Pat'");
    WriteNewItem();
    EXPECT_EQ(1, CountContacts());
    EXPECT_EQ(1u, Links(1).size());
}

TEST_F(ContactLink, OnlyPlainContactsOfTheDefaultFolderAreCandidates)
{
    Mailbox->AddItem(
        kContactKind.folder,
        {{L"MessageClass", L"IPM.Contact.Special"}, {L"FirstName", L"Wei"}, {L"LastName", L"Zhang"}});
    AddRowWith(L"'Zhang'", L"'Wei'");
    WriteNewItem();
    EXPECT_EQ(2, CountContacts());
}

TEST_F(ContactLink, AConditionIsAskedOfTheContactFoundAndMayRefuseIt)
{
    Mailbox->AddItem(kContactKind.folder,
                     {{L"FirstName", L"Wei"}, {L"LastName", L"Zhang"}, {L"OutlookVersion", L"8.5"}});
    AddContact(L"Hua", L"Li");
    AddOutlookTask({{L"Subject", L"Call"}});
    const Object task = ItemAt(1);
    links::LinkContact(task, L"Zhang", L"Wei", IsNotOfOutlook8);
    EXPECT_EQ(0, automation::LongOf(task.GetObject(L"Links").Get(L"Count")));
    links::LinkContact(task, L"Li", L"Hua", IsNotOfOutlook8);
    EXPECT_EQ(1, automation::LongOf(task.GetObject(L"Links").Get(L"Count")));
    EXPECT_EQ(2, CountContacts());
}

TEST_F(ContactLink, AConditionIsNotAskedOfAContactThatIsCreated)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    const Object task = ItemAt(1);
    links::LinkContact(task, L"Zhang", L"Wei", Refuse);
    EXPECT_EQ(1, CountContacts());
    EXPECT_EQ(1, automation::LongOf(task.GetObject(L"Links").Get(L"Count")));
}

TEST_F(ContactLink, TheItemItselfIsLeftToItsWriterToSave)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    const Object task = ItemAt(1);
    const CallWatch calls;
    links::LinkContact(task, L"Zhang", L"Wei");
    EXPECT_EQ(0, calls.Of(L"TaskItem.Save"));
    EXPECT_EQ(1, calls.Of(L"ContactItem.Save"));
}
