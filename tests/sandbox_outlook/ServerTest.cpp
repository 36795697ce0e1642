#include "tests/sandbox_outlook/MailboxFileFixture.h"

#include "sandbox/outlook/Registration.h"

#include <functional>

#include <objbase.h>

namespace sandbox
{

namespace
{

constexpr DWORD kPatience = 20'000; // milliseconds

std::wstring ServerProgram()
{
    wchar_t path[MAX_PATH * 4];
    std::wstring program(path, GetModuleFileNameW(nullptr, path, ARRAYSIZE(path)));
    return program.substr(0, program.rfind(L'\\') + 1) + L"OutlookServer.exe";
}

DWORD RunServerProgram(const wchar_t* option)
{
    std::wstring command = L"\"" + ServerProgram() + L"\" " + option;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
    {
        return GetLastError();
    }
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(process.hProcess, kPatience);
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

HRESULT CodeOf(const std::function<void()>& body)
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

} // namespace

// The registered program, in a process of its own that each test starts.
class OutlookServerLife : public MailboxFileTest
{
  protected:
    static void SetUpTestSuite() { ASSERT_EQ(0u, RunServerProgram(L"/register")); }

    static automation::Object Outlook() { return automation::Object::Create(L"Outlook.Application"); }
    static automation::Object Control()
    {
        return automation::Object::Create(L"TelvixSandbox.OutlookControl");
    }

    // The handle of the server's process, which must be running.
    static HANDLE ServerProcess()
    {
        return OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(Number(Control(), L"ProcessId")));
    }

    static bool Ends(HANDLE process)
    {
        const bool ended = WaitForSingleObject(process, kPatience) == WAIT_OBJECT_0;
        CloseHandle(process);
        return ended;
    }

    OutlookServerLife() { outlook::ChooseMailbox(mPath); }
    ~OutlookServerLife() override { outlook::ChooseMailbox({}); }
};

// The same with one process for all tests, kept alive by a control object, since starting it takes a second.
class OutlookServer : public OutlookServerLife
{
  protected:
    static void SetUpTestSuite()
    {
        OutlookServerLife::SetUpTestSuite();
        kept = Control();
    }

    static void TearDownTestSuite() { kept = {}; }

    static inline automation::Object kept;
};

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

TEST_F(OutlookServerLife, LeavesWithItsLastReference)
{
    HANDLE process = nullptr;
    {
        const auto outlook = Outlook();
        process = ServerProcess();
        ASSERT_NE(nullptr, process);
        EXPECT_EQ(WAIT_TIMEOUT, WaitForSingleObject(process, 0));
    }
    EXPECT_TRUE(Ends(process));
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

TEST_F(OutlookServerLife, ReadsRowsThatWereAddedSinceTheLastClientLeft)
{
    {
        const auto outlook = Outlook();
        EXPECT_EQ(0, Number(Folder(outlook, 10).GetObject(L"Items"), L"Count"));
    }
    AddRow(L"邮箱\\Contacts", 5, L"LastName", L"Smith");
    const auto outlook = Outlook();
    EXPECT_EQ(1, Number(Folder(outlook, 10).GetObject(L"Items"), L"Count"));
}

TEST_F(OutlookServerLife, TakesItsSwitchesFromTheMailboxFileAndFromTheControlObject)
{
    AddRow(L"邮箱\\Contacts", 1, L"LastName", L"Smith");
    AddRow(L"邮箱\\Contacts", 2, L"LastName", L"Jones");
    Run(L"INSERT INTO Switch VALUES ('Order', '1')");
    const auto outlook = Outlook();
    const auto items = Folder(outlook, 10).GetObject(L"Items");
    EXPECT_EQ(L"Jones", Text(items.GetObject(L"Item", 1), L"LastName"));
    const auto control = Control();
    control.Call(L"Switch", L"Order", 0);
    EXPECT_EQ(L"Smith", Text(items.GetObject(L"Item", 1), L"LastName"));
    control.Call(L"Vanish", L"邮箱\\Contacts", 1);
    EXPECT_EQ(L"Jones", Text(items.GetObject(L"Item", 1), L"LastName"));
    EXPECT_EQ(L"There is no switch \"Sleepy\".", FailureOf([&] { control.Call(L"Switch", L"Sleepy", 1); }));
}

TEST_F(OutlookServerLife, HandsATableThroughTheProcessBoundary)
{
    AddRow(L"邮箱\\Contacts", 1, L"LastName", L"王");
    const auto outlook = Outlook();
    const auto table = Folder(outlook, 10).GetObject(L"GetTable");
    const automation::Value rows = table.Get(L"GetArray", 10);
    LONG at[] = {6, 0};
    automation::Value name;
    ASSERT_EQ(S_OK, SafeArrayGetElement(rows.Raw().parray, at, name.Receive()));
    EXPECT_EQ(L"王", automation::TextOf(name));
}

TEST_F(OutlookServerLife, TakesTheMailboxOfTheEnvironmentWhereNoneIsChosen)
{
    outlook::ChooseMailbox({});
    SetEnvironmentVariableW(L"TELVIX_SANDBOX_MAILBOX", mPath.c_str());
    const auto outlook = Outlook();
    SetEnvironmentVariableW(L"TELVIX_SANDBOX_MAILBOX", nullptr);
    EXPECT_EQ(L"邮箱", Text(outlook.GetObject(L"Session").GetObject(L"Folders", 1), L"Name"));
}

TEST_F(OutlookServerLife, IsWaitedForWhenItIsSlowToStart)
{
    outlook::ChooseStartDelay(2000);
    const ULONGLONG begin = GetTickCount64();
    const auto outlook = Outlook();
    outlook::ChooseStartDelay(0);
    EXPECT_EQ(L"Outlook", Text(outlook, L"Name"));
    EXPECT_GE(GetTickCount64() - begin, 2000u);
}

TEST_F(OutlookServerLife, IsNotToBeHadWithoutAReadableMailbox)
{
    outlook::ChooseMailbox(mPath + L".none");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND), CodeOf([] { Outlook(); }));
    const std::wstring broken = mPath + L".broken";
    const HANDLE file = CreateFileW(broken.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    const std::string text(4096, 'x');
    WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(file);
    outlook::ChooseMailbox(broken);
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_CORRUPT), CodeOf([] { Outlook(); }));
    DeleteFileW(broken.c_str());
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

TEST_F(OutlookServerLife, WhenItDiesTheCallInFlightAndLaterOnesFailAndTheNextClientGetsANewOne)
{
    {
        const auto outlook = Outlook();
        const auto session = outlook.GetObject(L"Session");
        Control().Call(L"TerminateAfter", 1);
        EXPECT_NO_THROW(session.Get(L"Folders"));
        EXPECT_EQ(static_cast<HRESULT>(0x800706BE), CodeOf([&] { session.Get(L"Folders"); }));
        EXPECT_EQ(static_cast<HRESULT>(0x800706BA), CodeOf([&] { session.Get(L"Folders"); }));
    }
    EXPECT_EQ(L"Outlook", Text(Outlook(), L"Name"));
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
