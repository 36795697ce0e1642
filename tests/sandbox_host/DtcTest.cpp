#include "automation/Dates.h"
#include "automation/Error.h"
#include "sandbox/database/DatabaseFile.h"
#include "sandbox/dispatch/DispatchObject.h"
#include "tests/sandbox_host/HostFixture.h"
#include "tests/support/LeakCheck.h"

#include <set>

namespace
{

using namespace test_support;
using automation::Error;
using sandbox::Host;

const LeakCheck kObjects("fake objects", sandbox::LiveObjects);

class HostObject : public HostFixture
{
  protected:
    long PermissionOn(long module, long function, long right)
    {
        return LongOf(mHost.Dtc().GetObject(L"MyInfo").Call(L"PermissionOn", ByRef(module), ByRef(function),
                                                            ByRef(right)));
    }
};

TEST_F(HostObject, TheUsersIdIsAText)
{
    const Value uid = mHost.Dtc().GetObject(L"MyInfo").Get(L"UID");
    EXPECT_EQ(VT_BSTR, uid.Type());
    EXPECT_EQ(L"1", TextOf(uid));
    mHost.SignIn(sandbox::kSecondUser);
    EXPECT_EQ(L"2", TextOf(mHost.Dtc().GetObject(L"MyInfo").Get(L"UID")));
}

TEST_F(HostObject, ARightIsGrantedUnlessARowOfThatUserSaysOtherwise)
{
    EXPECT_EQ(0, PermissionOn(2, 2, 4));
    mHost.SetRight(2, 2, 4, 1);
    EXPECT_EQ(1, PermissionOn(2, 2, 4));
    EXPECT_EQ(0, PermissionOn(2, 2, 2));
    mHost.SetRight(2, 2, 4, 3);
    EXPECT_EQ(3, PermissionOn(2, 2, 4));
    EXPECT_EQ(1, Count(L"UserRight"));
    mHost.SignIn(sandbox::kSecondUser);
    EXPECT_EQ(0, PermissionOn(2, 2, 4));
}

TEST_F(HostObject, TheCodesOfARightMustBe32BitIntegers)
{
    std::wstring text = L"2";
    long code = 2;
    const Object user = mHost.Dtc().GetObject(L"MyInfo");
    EXPECT_THROW(user.Call(L"PermissionOn", ByRef(text), ByRef(code), ByRef(code)), Error);
}

TEST_F(HostObject, KeysAreFreshEachTime)
{
    std::set<std::wstring> keys;
    for (int i = 0; i < 100; ++i)
    {
        keys.insert(TextOf(mHost.Dtc().Call(L"NewGuid")));
    }
    EXPECT_EQ(100u, keys.size());
    EXPECT_EQ(36u, keys.begin()->size());
}

TEST_F(HostObject, TheClockIsTheMachinesUntilItIsSet)
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    const automation::Date before =
        DateOf(automation::Moment{now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond});
    const automation::Date told = automation::DateOf(mHost.Dtc().Get(L"SysDateTime"));
    EXPECT_GE(told.days, before.days - 1e-9);
    EXPECT_LT(told.days, before.days + 1.0 / 24);
    const automation::Date moment = DateOf(automation::Moment{2003, 5, 6, 9, 30});
    mHost.SetSysDateTime(moment);
    EXPECT_EQ(moment.days, automation::DateOf(mHost.Dtc().Get(L"SysDateTime")).days);
}

TEST_F(HostObject, AnOrderedFailureHitsTheCallItNamesAndNoOther)
{
    mHost.Failures().Order(L"Insert", 2, {.result = -77});
    EXPECT_GE(Insert(L"TBLACCOUNT", L"F_ACCID", L"'a'"), 0);
    EXPECT_EQ(-77, Insert(L"TBLACCOUNT", L"F_ACCID", L"'b'"));
    EXPECT_GE(Insert(L"TBLACCOUNT", L"F_ACCID", L"'c'"), 0);
    EXPECT_EQ(2, Count(L"TBLACCOUNT"));
    EXPECT_EQ(3, mHost.Failures().CallsOf(L"Insert"));
}

TEST_F(HostObject, AnOrderedErrorIsRaisedWithItsReason)
{
    mHost.Failures().Order(L"NewGuid", 1, {.result = std::nullopt, .reason = L"The disk is full"});
    try
    {
        mHost.Dtc().Call(L"NewGuid");
        FAIL() << "no error was raised";
    }
    catch (const Error& error)
    {
        EXPECT_EQ(L"The disk is full", error.Description());
    }
    EXPECT_NO_THROW(mHost.Dtc().Call(L"NewGuid"));
}

TEST_F(HostObject, MembersTakeTheNumberOfArgumentsThatTheyDeclare)
{
    EXPECT_THROW(mHost.Dtc().Call(L"Delete", L"TBLUSER"), Error);
    EXPECT_THROW(mHost.Dtc().Call(L"Update", L"TBLUSER", L"F_UID=1", L"F_UID=1"), Error);
    EXPECT_THROW(mHost.Dtc().Call(L"Insert", L"TBLUSER", L"F_UID", L"9"), Error);
}

TEST_F(HostObject, ARecordsetIsOnlyHandedToAVariableByReference)
{
    EXPECT_THROW(mHost.Dtc().Call(L"OpenRecordset", Value(), L"ContactMyContact"), Error);
}

TEST(HostFiles, ATemporaryHostLeavesNoFile)
{
    std::wstring path;
    {
        Host host;
        path = host.ConnectionString().substr(host.ConnectionString().rfind(L'=') + 1);
        EXPECT_TRUE(sandbox::FileExists(path));
    }
    EXPECT_FALSE(sandbox::FileExists(path));
}

TEST(HostFiles, AHostIsKeptInItsFile)
{
    const std::wstring path = sandbox::TemporaryDatabasePath();
    {
        Host host(path);
        host.Database().Execute(L"INSERT INTO TBLACCOUNT(F_ACCID) VALUES ('a')");
    }
    {
        Host host(path);
        EXPECT_EQ(1, LongOf(host.Database().QueryValue(L"SELECT count(*) FROM TBLACCOUNT")));
    }
    DeleteFileW(path.c_str());
}

TEST(HostFiles, AFileThatCannotBeWrittenWholeIsRemoved)
{
    const std::wstring path = sandbox::TemporaryDatabasePath();
    EXPECT_THROW(sandbox::WriteDatabaseFile(path,
                                            [](sandbox::Connection& database) {
                                                database.Execute(L"CREATE TABLE T (N INTEGER)");
                                                database.Execute(L"INSERT INTO T VALUES (1)");
                                                database.Execute(L"INSERT INTO NoSuchTable VALUES (1)");
                                            }),
                 Error);
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((path + L"*").c_str(), &found);
    EXPECT_EQ(INVALID_HANDLE_VALUE, search);
    if (search != INVALID_HANDLE_VALUE)
    {
        FindClose(search);
    }
}

TEST(HostFiles, AHostInAFolderThatDoesNotExistIsAnError)
{
    EXPECT_THROW(Host host(L"C:\\no such folder\\host.db"), Error);
}

TEST(HostFiles, ItsObjectMayOutliveTheHost)
{
    Object dtc;
    {
        Host host;
        dtc = host.Dtc();
    }
    EXPECT_EQ(L"1", TextOf(dtc.GetObject(L"MyInfo").Get(L"UID")));
}

} // namespace
