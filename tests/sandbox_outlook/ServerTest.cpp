// The fake Outlook as another process serves it to its clients.
#include "tests/sandbox_outlook/ServerFixture.h"

#include <objbase.h>

namespace sandbox
{

TEST_F(OutlookServer, KeepsChineseTextsDatesAndTruthValuesThroughTheProcessBoundary)
{
    const auto outlook = Outlook();
    const auto items = Folder(outlook, 13).GetObject(L"Items");
    const auto task = items.GetObject(L"Add", 3);
    task.Put(L"Subject", L"拜访客户 \U0001F4C5 \"O'Neil\"");
    task.Put(L"StartDate", Day(2003, 5, 6));
    task.Put(L"Complete", true);
    task.Call(L"Save");
    const auto again = items.GetObject(L"Item", 1.0);
    EXPECT_EQ(L"拜访客户 \U0001F4C5 \"O'Neil\"", Text(again, L"Subject"));
    EXPECT_EQ(L"2003-05-06 00:00", At(again.Get(L"StartDate")));
    EXPECT_EQ(VT_BOOL, again.Get(L"Complete").Type());
    EXPECT_EQ(L"拜访客户 \U0001F4C5 \"O'Neil\"", Stored(1, L"Subject"));
}

TEST_F(OutlookServer, HandsTheDescriptionOfAFailureToItsClient)
{
    const auto outlook = Outlook();
    const auto items = Folder(outlook, 10).GetObject(L"Items");
    EXPECT_EQ(L"Array index out of bounds.", FailureOf([&] { items.GetObject(L"Item", 1); }));
    const auto contact = items.GetObject(L"Add");
    EXPECT_EQ(L"Type mismatch: Birthday", FailureOf([&] { contact.Put(L"Birthday", L"abc"); }));
}

TEST_F(OutlookServer, LinksAContactThatItsClientHandsBack)
{
    const auto outlook = Outlook();
    const auto contact = Folder(outlook, 10).GetObject(L"Items").GetObject(L"Add");
    contact.Put(L"LastName", L"王");
    contact.Call(L"Save");
    const auto task = Folder(outlook, 13).GetObject(L"Items").GetObject(L"Add");
    task.GetObject(L"Links").Call(L"Add", contact);
    EXPECT_EQ(L"王", Text(task, L"ContactNames"));
}

TEST_F(OutlookServer, ServesTheMailboxThatIsChosenWhenTheNextClientComes)
{
    const auto first = Outlook();
    const std::wstring other = mPath + L".other";
    CreateMailbox(other)->AddFolder(L"Other\\Contacts", ItemKind::Contact);
    outlook::ChooseMailbox(other);
    {
        const auto second = Outlook();
        EXPECT_EQ(L"Other", Text(second.GetObject(L"Session").GetObject(L"Folders", 1), L"Name"));
        EXPECT_EQ(L"邮箱", Text(first.GetObject(L"Session").GetObject(L"Folders", 1), L"Name"));
    }
    DeleteFileW(other.c_str());
}

TEST_F(OutlookServer, ReadsAMailboxAgainThatChangedWhileADeadClientsObjectsAreLeft)
{
    const auto left = Outlook();
    EXPECT_EQ(0, Number(Folder(left, 10).GetObject(L"Items"), L"Count"));
    AddRow(L"邮箱\\Contacts", 5, L"LastName", L"Smith");
    const auto outlook = Outlook();
    EXPECT_EQ(1, Number(Folder(outlook, 10).GetObject(L"Items"), L"Count"));
}

TEST_F(OutlookServer, ClientsAtTheSameTimeShareTheMailbox)
{
    const auto one = Outlook();
    const auto contact = Folder(one, 10).GetObject(L"Items").GetObject(L"Add");
    contact.Put(L"LastName", L"Smith");
    contact.Call(L"Save");
    const auto other = Outlook();
    contact.Put(L"LastName", L"Brown");
    contact.Call(L"Save");
    EXPECT_EQ(L"Brown", Text(Folder(other, 10).GetObject(L"Items").GetObject(L"Item", 1), L"LastName"));
}

TEST_F(OutlookServer, CountsTheCallsThatItReceives)
{
    const auto outlook = Outlook();
    const auto control = Control();
    control.Call(L"Reset");
    const auto items = Folder(outlook, 10).GetObject(L"Items");
    items.Get(L"Count");
    items.Get(L"Count");
    EXPECT_EQ(5, Number(control, L"CallCount"));
    EXPECT_EQ(
        L"Application.GetNamespace\t1\nItems.Count\t2\nMAPIFolder.Items\t1\nNameSpace.GetDefaultFolder\t1\n",
        Text(control, L"CallTable"));
    EXPECT_EQ(
        L"Application.GetNamespace\t1\nItems.Count\t1\nMAPIFolder.Items\t1\nNameSpace.GetDefaultFolder\t1\n",
        Text(control, L"LookupTable"));
}

TEST_F(OutlookServer, CanBeMadeToFailACall)
{
    const auto outlook = Outlook();
    const auto control = Control();
    control.Call(L"FailCall", 2);
    const auto session = outlook.GetObject(L"Session");
    EXPECT_EQ(L"The call was made to fail.", FailureOf([&] { session.Get(L"Folders"); }));
    EXPECT_NO_THROW(session.Get(L"Folders"));
}

// A call by the bare interface, without the patience of automation::Object.
HRESULT AskForName(const automation::Object& outlook)
{
    LPOLESTR name = const_cast<LPOLESTR>(L"Name");
    DISPID id = 0;
    return outlook.Dispatch()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_SYSTEM_DEFAULT, &id);
}

TEST_F(OutlookServer, RefusesCallsForATimeAsABusyOutlookDoes)
{
    const auto outlook = Outlook();
    const auto control = Control();
    control.Call(L"RejectCallsFor", 300);
    EXPECT_EQ(RPC_E_CALL_REJECTED, AskForName(outlook));
    const ULONGLONG end = GetTickCount64() + kPatience;
    while (FAILED(AskForName(outlook)) && GetTickCount64() < end)
    {
        Sleep(20);
    }
    EXPECT_EQ(L"Outlook", Text(outlook, L"Name"));
}

TEST_F(OutlookServer, ABusyOutlookIsAskedAgainUntilItAnswers)
{
    const auto outlook = Outlook();
    const auto control = Control(); // held, since a reference given back meanwhile would be rejected as well
    control.Call(L"RejectCallsFor", 1000);
    const ULONGLONG start = GetTickCount64();
    EXPECT_EQ(L"Outlook", Text(outlook, L"Name"));
    EXPECT_GE(GetTickCount64() - start, 500u);
}

} // namespace sandbox
