#include "links/Activities.h"

#include "tasks/Tasks.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/WithLanguage.h"
#include "tests/tasks/TaskFixture.h"
#include "ui/ShowError.h"

namespace
{

using resources::Language;
using test_support::FakeHost;
using test_support::MessagesDuring;
using test_support::ShownMessage;
using test_support::WithLanguage;
using Calls = std::vector<std::wstring>;

constexpr const wchar_t* kLookupContact =
    L"SELECT F_CNTCTID\r\nFROM TBLCONTACT\r\nWHERE F_SURNAME+F_GIVENNAME= '张伟'";
constexpr const wchar_t* kLookupAccount = L"SELECT F_ACCID\r\nFROM TBLACCOUNT\r\nWHERE F_ACCSNAME= 'Quenlar'";

// The host's codes for the rights that the builders ask for.
const FakeHost::Right kModifyContacts{2, 2, 4};
const FakeHost::Right kModifyAccounts{1, 2, 4};
const FakeHost::Right kAddAccounts{1, 2, 2};

class TaskLinks : public test_support::TaskFixture
{
  protected:
    std::wstring InsertedContact()
    {
        data::InsertRow task(mCatalogue);
        links::ChangeNewTaskContact(ItemAt(1), task);
        return task.Fields() + L"|" + task.Values();
    }

    std::wstring UpdatedContact()
    {
        data::UpdateRow task(mCatalogue);
        links::ChangeEditTaskContact(ItemAt(1), task);
        return task.SetList();
    }

    std::wstring InsertedAccount()
    {
        data::InsertRow task(mCatalogue);
        links::ChangeAddTaskAccount(ItemAt(1), task);
        return task.Fields() + L"|" + task.Values();
    }

    std::wstring UpdatedAccount()
    {
        data::UpdateRow task(mCatalogue);
        links::ChangeEditTaskAccount(ItemAt(1), task);
        return task.SetList();
    }

    void ExpectNoContactAndNoQuestion()
    {
        EXPECT_EQ(L"F_CNTCTID|NULL", InsertedContact());
        EXPECT_EQ(L"F_CNTCTID=NULL", UpdatedContact());
        EXPECT_TRUE(Host->Calls.empty());
    }

    data::FieldCatalogue mCatalogue;
};

std::wstring Opened(const std::wstring& statement)
{
    return L"OpenRecordsetByString(nothing|" + statement + L")";
}

std::vector<ShownMessage> Failure(const wchar_t* builder)
{
    return {{L"-2147467259:no such table", builder, IDI_ERROR}};
}

} // namespace

TEST_F(TaskLinks, AContactIsLookedUpByItsJoinedNameAndLinkedByItsKey)
{
    AddOutlookTask({{L"ContactNames", L"张伟"}});
    Host->Find(kLookupContact, L"C1");
    EXPECT_EQ(L"F_CNTCTID|'C1'", InsertedContact());
    EXPECT_EQ(L"F_CNTCTID='C1'", UpdatedContact());
    EXPECT_EQ((Calls{Opened(kLookupContact), Opened(kLookupContact)}), Host->Calls);
    EXPECT_EQ((std::vector<FakeHost::Right>{kModifyContacts, kModifyContacts}), Host->Asked);
}

TEST_F(TaskLinks, AFragmentAfterOthersCarriesAComma)
{
    AddOutlookTask({{L"ContactNames", L"张伟"}});
    Host->Find(kLookupContact, L"C1");
    data::InsertRow inserted(mCatalogue, L"F_ACTNAME", L"'Call'");
    links::ChangeNewTaskContact(ItemAt(1), inserted);
    links::ChangeAddTaskAccount(ItemAt(1), inserted);
    EXPECT_EQ(L"F_ACTNAME,F_CNTCTID,F_ACCID", inserted.Fields());
    EXPECT_EQ(L"'Call','C1',NULL", inserted.Values());
    data::UpdateRow updated(mCatalogue, L"F_ACTNAME='Call'");
    links::ChangeEditTaskContact(ItemAt(1), updated);
    links::ChangeEditTaskAccount(ItemAt(1), updated);
    EXPECT_EQ(L"F_ACTNAME='Call',F_CNTCTID='C1',F_ACCID=NULL", updated.SetList());
}

TEST_F(TaskLinks, AContactThatTheHostDoesNotKnowIsNull)
{
    AddOutlookTask({{L"ContactNames", L"张伟"}});
    EXPECT_EQ(L"F_CNTCTID|NULL", InsertedContact());
    EXPECT_EQ(L"F_CNTCTID=NULL", UpdatedContact());
}

TEST_F(TaskLinks, ATaskWithoutContactsIsNotLookedUp)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    ExpectNoContactAndNoQuestion();
}

TEST_F(TaskLinks, ATaskOfAnOutlookWhoseVersionBeginsWithEightHasNoContact)
{
    AddOutlookTask({{L"ContactNames", L"张伟"}, {L"OutlookVersion", L"8.5"}});
    ExpectNoContactAndNoQuestion();
}

TEST_F(TaskLinks, AnEightLaterInTheVersionHasNoEffect)
{
    AddOutlookTask({{L"ContactNames", L"张伟"}, {L"OutlookVersion", L"10.8"}});
    Host->Find(kLookupContact, L"C1");
    EXPECT_EQ(L"F_CNTCTID|'C1'", InsertedContact());
}

TEST_F(TaskLinks, WithoutTheRightToModifyContactsTheContactIsNullWithoutAMessage)
{
    AddOutlookTask({{L"ContactNames", L"张伟"}});
    Host->Denied = {kModifyContacts};
    EXPECT_TRUE(MessagesDuring([&] { ExpectNoContactAndNoQuestion(); }).empty());
}

TEST_F(TaskLinks, AnAccountIsLookedUpByItsShortNameAndLinkedByItsKey)
{
    AddOutlookTask({{L"Companies", L"Quenlar"}});
    Host->Find(kLookupAccount, L"A1");
    EXPECT_EQ(L"F_ACCID|'A1'", InsertedAccount());
    EXPECT_EQ(L"F_ACCID='A1'", UpdatedAccount());
    EXPECT_EQ((std::vector<FakeHost::Right>{kAddAccounts, kAddAccounts}), Host->Asked);
}

TEST_F(TaskLinks, AnAccountThatTheHostDoesNotKnowIsCreatedWithItsInformationRow)
{
    AddOutlookTask({{L"Companies", L"Quenlar"}});
    Host->Find(L"SELECT F_AITID FROM TBLSYSINFO", L"TYPE");
    const WithLanguage english(Language::English);
    EXPECT_EQ(L"F_ACCID|'KEY1'", InsertedAccount());
    EXPECT_EQ((Calls{Opened(kLookupAccount),
                     L"Insert(TBLACCOUNT|F_ACCID,F_ACCSNAME,F_ACCCURRIDX|'KEY1','Quenlar',2|)",
                     L"OpenRecordsetByString(nothing|SELECT F_AITID FROM TBLSYSINFO)",
                     L"Insert(TBLACCINFO|F_AIID, F_AITID, F_ACCID|'KEY2', 'TYPE', 'KEY1'|)"}),
              Host->Calls);
}

TEST_F(TaskLinks, ATaskWithoutACompanyHasNoAccount)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    EXPECT_EQ(L"F_ACCID|NULL", InsertedAccount());
    EXPECT_EQ(L"F_ACCID=NULL", UpdatedAccount());
    EXPECT_TRUE(Host->Calls.empty());
    EXPECT_EQ((std::vector<FakeHost::Right>{kModifyAccounts, kModifyAccounts}), Host->Asked);
}

TEST_F(TaskLinks, WithoutEitherRightTheAccountIsLeftAlone)
{
    Host->Denied = {kModifyAccounts, kAddAccounts};
    AddOutlookTask({{L"Subject", L"Call"}});
    EXPECT_EQ(L"|", InsertedAccount());
    EXPECT_EQ(L"", UpdatedAccount());
}

TEST_F(TaskLinks, ACompanyNeedsTheRightToAddAccountsAlone)
{
    AddOutlookTask({{L"Companies", L"Quenlar"}});
    Host->Find(kLookupAccount, L"A1");
    Host->Denied = {kModifyAccounts};
    EXPECT_EQ(L"F_ACCID='A1'", UpdatedAccount());
    Host->Denied = {kAddAccounts};
    EXPECT_EQ(L"", UpdatedAccount());
}

TEST_F(TaskLinks, WithoutACompanyAUserWhoMayAddAccountsButNotModifyThemLeavesTheAccountAlone)
{
    AddOutlookTask({{L"Subject", L"Call"}});
    Host->Find(L"SELECT F_AITID FROM TBLSYSINFO", L"TYPE");
    Host->Denied = {kModifyAccounts};
    EXPECT_EQ(L"|", InsertedAccount());
    EXPECT_EQ(L"", UpdatedAccount());
    EXPECT_TRUE(Host->Calls.empty());
}

TEST_F(TaskLinks, ACompanyOfBlanksIsNoneAndBlanksAtItsEndsDoNotCount)
{
    AddOutlookTask({{L"Companies", L"   "}});
    EXPECT_EQ(L"F_ACCID|NULL", InsertedAccount());
    EXPECT_TRUE(Host->Calls.empty());
    const auto task = ItemAt(1);
    task.Put(L"Companies", L"  Quenlar ");
    task.Call(L"Save");
    Host->Find(kLookupAccount, L"A1");
    EXPECT_EQ(L"F_ACCID|'A1'", InsertedAccount());
}

TEST_F(TaskLinks, ALookupsErrorIsShownWithTheNumberThatAScriptWouldSee)
{
    AddOutlookTask({{L"ContactNames", L"张伟"}});
    Host->FailingStatements = {{kLookupContact, L"no such table"}};
    Host->FailureCode = static_cast<HRESULT>(0x800A0CC1);
    const auto messages = MessagesDuring([&] {
        data::UpdateRow task(mCatalogue);
        EXPECT_THROW(links::ChangeEditTaskContact(ItemAt(1), task), ui::ShownError);
    });
    ASSERT_EQ(1u, messages.size());
    EXPECT_EQ(L"3265:no such table", messages[0].text);
}

TEST_F(TaskLinks, AFailedLookupIsShownUnderTheNameOfItsBuilderAndIsAFailure)
{
    AddOutlookTask({{L"ContactNames", L"张伟"}, {L"Companies", L"Quenlar"}});
    Host->FailingStatements = {{kLookupContact, L"no such table"}, {kLookupAccount, L"no such table"}};
    const auto task = ItemAt(1);
    data::InsertRow inserted(mCatalogue, L"F_ACTNAME", L"'Call'");
    data::UpdateRow updated(mCatalogue, L"F_ACTNAME='Call'");
    const auto shown = [](auto&& build) {
        return MessagesDuring([&] { EXPECT_THROW(build(), ui::ShownError); });
    };
    EXPECT_EQ(Failure(L"ChangeNewTaskContact"), shown([&] { links::ChangeNewTaskContact(task, inserted); }));
    EXPECT_EQ(Failure(L"ChangeEditTaskContact"), shown([&] { links::ChangeEditTaskContact(task, updated); }));
    EXPECT_EQ(Failure(L"ChangeAddTaskAccount"), shown([&] { links::ChangeAddTaskAccount(task, inserted); }));
    EXPECT_EQ(Failure(L"ChangeEditTaskAccount"), shown([&] { links::ChangeEditTaskAccount(task, updated); }));
    EXPECT_EQ(L"F_ACTNAME", inserted.Fields());
    EXPECT_EQ(L"'Call'", inserted.Values());
    EXPECT_EQ(L"F_ACTNAME='Call'", updated.SetList());
}

TEST_F(TaskLinks, ATaskWhoseLinkFailsIsRolledBackAndThePassContinues)
{
    AddOutlookTask({{L"Subject", L"One"}, {L"ContactNames", L"张伟"}});
    AddOutlookTask({{L"Subject", L"Two"}});
    Host->FailingStatements = {{kLookupContact, L"no such table"}};
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    run.Pending.NewOutlookItems.Add(L"2", 0);
    const auto messages = MessagesDuring([&] { EXPECT_FALSE(tasks::SynTaskFromOutlook(run)); });
    EXPECT_EQ(Failure(L"ChangeNewTaskContact"), messages);
    const std::wstring insert = L"Insert(TBLACTIVITY|F_CNTCTID,F_ACCID,F_ACTORID ,F_CREATORID,F_ACTID|"
                                L"NULL,NULL,7,7,'KEY1'|KEY1)";
    EXPECT_EQ((Calls{L"BeginTrans()", Opened(kLookupContact), L"RollbackTrans()", L"BeginTrans()", insert,
                     L"CommitTrans()"}),
              Host->Calls);
}

TEST_F(TaskLinks, AnAccountThatCannotBeCreatedFailsTheTaskWithAllThatCameBefore)
{
    AddOutlookTask({{L"Subject", L"One"}, {L"Companies", L"Quenlar"}});
    Host->Find(L"SELECT F_AITID FROM TBLSYSINFO", L"TYPE");
    Host->Status[L"TBLACCINFO"] = -1;
    EXPECT_TRUE(MessagesDuring([&] { InsertFirstItem(); }).empty()); // no lookup has failed
    EXPECT_EQ(L"RollbackTrans()", Host->Calls.back());
    EXPECT_EQ(1, Host->Counts[L"InTransaction"]);
}
