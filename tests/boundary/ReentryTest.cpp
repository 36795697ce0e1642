#include "automation/Error.h"
#include "resources/Strings.h"
#include "tests/boundary/Site.h"
#include "tests/support/Drive.h"
#include "tests/support/Interceptor.h"

#include <algorithm>

#include <objbase.h>

namespace boundary_tests
{

namespace
{

using automation::ByRef;
using automation::Object;

// The host calls the component while the component calls the host.
class Reentry : public testing::TestWithParam<const wchar_t*>
{
  protected:
    Reentry() { mSite.Prepare(kBoth); }

    // A run during which the host does something in each of its members that is named, once.
    Seen RunWhile(const std::vector<std::wstring>& members, const std::function<void(const Object&)>& action)
    {
        const auto hooks = std::make_shared<test_support::Hooks>();
        const Object component = Object::Create(L"TelvixOutlook.ClsSynOutlook");
        bool isInside = false;
        hooks->before = [&](const std::wstring& member) {
            if (!isInside && hooks->calls[member] == 1 && std::ranges::find(members, member) != members.end())
            {
                isInside = true;
                action(component);
                isInside = false;
                ++mTimes;
            }
        };
        Seen seen;
        Robot robot([&](Robot& running) {
            User user(running);
            seen = user.Run(mTask.kind);
            user.Leave();
        });
        Object dtc = test_support::Intercept(mSite.Host().Dtc(), hooks);
        EXPECT_FALSE(
            automation::TruthOf(component.Call(L"SynLoad", ByRef(dtc), mSite.Host().ConnectionString())));
        robot.Finish();
        return seen;
    }

    void ExpectUnimpressed(const Seen& seen)
    {
        EXPECT_EQ(SuccessStatus(), seen.status);
        EXPECT_TRUE(seen.messages.empty());
        EXPECT_LT(0, mTimes);
        ExpectReached(mSite.Look(), mCourse.after);
        mSite.ExpectNothingLeft();
        EXPECT_EQ(0, test_support::InterceptedObjects());
    }

    const Task mTask{GetParam(), kBoth};
    const Course& mCourse = UndisturbedCourse(mTask);
    Site mSite;
    InProcess mInProcess{mSite};
    long mTimes = 0;
};

BOOL CALLBACK DestroyDialog(HWND window, LPARAM)
{
    wchar_t name[16] = {};
    GetClassNameW(window, name, ARRAYSIZE(name));
    if (lstrcmpW(name, L"#32770") == 0)
    {
        DestroyWindow(window);
    }
    return TRUE;
}

const std::vector<std::wstring> kEverywhere = {
    L"OpenRecordsetByString", L"OpenRecordset", L"PermissionOn", L"BeginTrans", L"Insert", L"CommitTrans"};

INSTANTIATE_TEST_SUITE_P(, Reentry, testing::ValuesIn(kKinds));

} // namespace

TEST_P(Reentry, ByASecondSynLoadShowsNoSecondDialogAndTheRunContinuesWithItsHost)
{
    const auto ofSecond = std::make_shared<test_support::Hooks>();
    ExpectUnimpressed(RunWhile(kEverywhere, [&](const Object& component) {
        Object dtc = test_support::Intercept(mSite.Host().Dtc(), ofSecond);
        EXPECT_FALSE(automation::TruthOf(component.Call(L"SynLoad", ByRef(dtc), L"Driver=Other")));
        Object nothing;
        EXPECT_TRUE(
            automation::TruthOf(component.Call(L"SynLoad", ByRef(nothing), mSite.Host().ConnectionString())));
    }));
    EXPECT_TRUE(ofSecond->calls.empty());
}

TEST_P(Reentry, ByPropertiesAndANewObjectOfTheClassLeavesTheRunAlone)
{
    ExpectUnimpressed(RunWhile(kEverywhere, [](const Object& component) {
        component.Put(L"FontName", L"Courier New");
        component.Put(L"FontSize", 20L);
        component.Put(L"CalendarEndTime", automation::Date{0.9});
        EXPECT_EQ(20, automation::LongOf(component.Get(L"FontSize")));
        const Object second = Object::Create(L"TelvixOutlook.ClsSynOutlook"); // which sets the defaults
        EXPECT_EQ(8, automation::LongOf(component.Get(L"FontSize")));
    }));
}

TEST_P(Reentry, ByAHostThatQuitsEndsTheDialogsAndTheHostGetsItsMessage)
{
    const auto hooks = std::make_shared<test_support::Hooks>();
    hooks->before = [&](const std::wstring& member) {
        if (member == L"OpenRecordset" && hooks->calls[member] == 1)
        {
            PostQuitMessage(7);
        }
    };
    EXPECT_FALSE(mSite.SynLoad(
        [&](Robot& robot) {
            const User user(robot);
            user.ChooseKind(mTask.kind);
            user.Main().Click(IDC_SYNC_START);
            robot.WaitUntilClosed(user.Main());
        },
        test_support::Intercept(mSite.Host().Dtc(), hooks)));
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(7u, message.wParam);
    EXPECT_EQ(mCourse.before, mSite.Look()); // no change was confirmed
    mSite.ExpectNothingLeft();
    EXPECT_EQ(SuccessStatus(), mSite.Run(mTask).status);
}

TEST_P(Reentry, ByAHostThatDestroysTheDialogEndsTheCallAndWritesNothing)
{
    const auto hooks = std::make_shared<test_support::Hooks>();
    hooks->before = [&](const std::wstring& member) {
        if (member == L"OpenRecordset")
        {
            EnumThreadWindows(GetCurrentThreadId(), DestroyDialog, 0);
        }
    };
    EXPECT_FALSE(mSite.SynLoad(
        [&](Robot& robot) {
            User user(robot);
            user.Run(mTask.kind);
            robot.WaitUntilClosed(user.Main());
        },
        test_support::Intercept(mSite.Host().Dtc(), hooks)));
    EXPECT_EQ(mCourse.before, mSite.Look());
    mSite.ExpectNothingLeft();
    EXPECT_EQ(0, test_support::InterceptedObjects());
    EXPECT_EQ(SuccessStatus(), mSite.Run(mTask).status);
    ExpectReached(mSite.Look(), mCourse.after);
}

TEST_P(Reentry, ByAHostThatLetsGoOfTheComponentIsSurvivedAndTheModuleStays)
{
    const auto hooks = std::make_shared<test_support::Hooks>();
    Microsoft::WRL::ComPtr<IDispatch> component(Object::Create(L"TelvixOutlook.ClsSynOutlook").Dispatch());
    IDispatch* const called = component.Get();
    using CanUnloadNow = HRESULT(WINAPI*)();
    const auto canUnloadNow = reinterpret_cast<CanUnloadNow>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"Telvix.dll"), "DllCanUnloadNow")));
    ASSERT_NE(nullptr, canUnloadNow);
    hooks->before = [&](const std::wstring&) {
        component.Reset();
        CoFreeUnusedLibraries();
        EXPECT_EQ(S_FALSE, canUnloadNow());
    };
    Seen seen;
    Robot robot([&](Robot& running) {
        User user(running);
        seen = user.Run(mTask.kind);
        user.Leave();
    });
    {
        DISPID id = 0;
        LPOLESTR name = const_cast<LPOLESTR>(L"SynLoad");
        ASSERT_EQ(S_OK, called->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_SYSTEM_DEFAULT, &id));
        const Object dtc = test_support::Intercept(mSite.Host().Dtc(), hooks);
        const automation::Value connection(mSite.Host().ConnectionString());
        const automation::Value host(dtc);
        VARIANT arguments[2] = {connection.Raw(), host.Raw()};
        DISPPARAMS parameters{arguments, nullptr, 2, 0};
        automation::Value refused;
        EXPECT_EQ(S_OK, called->Invoke(id, IID_NULL, LOCALE_SYSTEM_DEFAULT, DISPATCH_METHOD, &parameters,
                                       refused.Receive(), nullptr, nullptr));
        EXPECT_FALSE(automation::TruthOf(refused));
    }
    robot.Finish();
    EXPECT_EQ(nullptr, component.Get());
    EXPECT_EQ(SuccessStatus(), seen.status);
    EXPECT_EQ(S_OK, canUnloadNow());
    ExpectReached(mSite.Look(), mCourse.after);
    mSite.ExpectNothingLeft();
}

} // namespace boundary_tests
