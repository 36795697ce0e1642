// How the fake Outlook's process starts, which mailbox it serves, and how it ends.
#include "tests/sandbox_outlook/ServerFixture.h"

#include <functional>

namespace sandbox
{

namespace
{

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

} // namespace sandbox
