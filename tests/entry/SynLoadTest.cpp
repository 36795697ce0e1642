#include "entry/ClsSynOutlook.h"

#include "automation/Error.h"
#include "automation/Object.h"
#include "sandbox/outlook/Outlook.h"
#include "state/SharedState.h"
#include "tests/support/Drive.h"
#include "tests/support/Fakes.h"
#include "tests/support/MessageBoxes.h"
#include "tools/robot/Robot.h"

#include <gtest/gtest.h>

using automation::ByRef;
using automation::Object;
using automation::TruthOf;
using automation::Value;
using Microsoft::WRL::ComPtr;
using state::Shared;

namespace
{

// A data-access object that is never asked anything.
class SilentDtc : public sandbox::DispatchObject
{
    const wchar_t* ClassName() const override { return L"DTC"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable table;
        return table;
    }
};

class SynLoadCall : public testing::Test
{
  protected:
    SynLoadCall() : Instance(ComPtr<IDispatch>(new entry::ClsSynOutlook).Get()) {}
    void TearDown() override
    {
        Instance = {};
        state::FreeStateOfThread();
    }

    // Calls SynLoad by a caller's own way and has a user close the dialog that it shows.
    void ExpectShownAndClosed(const std::function<Value()>& call)
    {
        bool heldWhileShown = false;
        tools::Robot robot([&](tools::Robot& user) {
            const tools::ShownDialog dialog = user.WaitForDialog(L"Synchronization");
            heldWhileShown = true;
            dialog.Click(IDCANCEL);
        });
        EXPECT_FALSE(TruthOf(call()));
        robot.Finish();
        EXPECT_TRUE(heldWhileShown);
        EXPECT_FALSE(Shared().gDTC);
        EXPECT_FALSE(Shared().gOlNamespace);
        EXPECT_FALSE(Shared().gOlApplication);
        EXPECT_EQ(L"Driver=x", Shared().gCnnString);
    }

    // Calls SynLoad with other arguments while a call of this thread has not returned.
    void ExpectSecondCallRefused()
    {
        const IDispatch* const held[] = {Shared().gDTC.Dispatch(), Shared().gOlApplication.Dispatch(),
                                         Shared().gOlNamespace.Dispatch()};
        const std::wstring connection = Shared().gCnnString;
        const Object second(ComPtr<IDispatch>(new entry::ClsSynOutlook).Get());
        Object other = sandbox::MakeObject<SilentDtc>();
        Object nothing;
        EXPECT_FALSE(TruthOf(second.Call(L"SynLoad", ByRef(other), L"Driver=y")));
        EXPECT_TRUE(TruthOf(second.Call(L"SynLoad", ByRef(nothing), L"Driver=y")));
        EXPECT_EQ(held[0], Shared().gDTC.Dispatch());
        EXPECT_EQ(held[1], Shared().gOlApplication.Dispatch());
        EXPECT_EQ(held[2], Shared().gOlNamespace.Dispatch());
        EXPECT_EQ(connection, Shared().gCnnString);
    }

    Object Instance;
    Object Dtc = sandbox::MakeObject<SilentDtc>();
};

class SynLoadWithOutlook : public SynLoadCall
{
  protected:
    sandbox::OutlookInProcess Outlook{sandbox::MakeMailbox()};
};

} // namespace

TEST_F(SynLoadCall, WithoutAConnectionStringItIsRefusedAndOutlookIsNotStarted)
{
    EXPECT_TRUE(TruthOf(Instance.Call(L"SynLoad", ByRef(Dtc), L"")));
    EXPECT_FALSE(Shared().gDTC);
    EXPECT_FALSE(Shared().gOlApplication);
}

TEST_F(SynLoadCall, WithoutADataAccessObjectItIsRefused)
{
    Object nothing;
    EXPECT_TRUE(TruthOf(Instance.Call(L"SynLoad", ByRef(nothing), L"Driver=x")));
    EXPECT_TRUE(TruthOf(Instance.Call(L"SynLoad", nothing, L"Driver=x")));
    EXPECT_EQ(L"", Shared().gCnnString);
}

TEST_F(SynLoadWithOutlook, ShowsTheDialogAndReleasesItsObjectsWhenTheUserClosesIt)
{
    ExpectShownAndClosed([&] { return Instance.Call(L"SynLoad", ByRef(Dtc), L"Driver=x"); });
}

TEST_F(SynLoadWithOutlook, TakesTheObjectByValueToo)
{
    ExpectShownAndClosed([&] { return Instance.Call(L"SynLoad", Dtc, L"Driver=x"); });
}

TEST_F(SynLoadWithOutlook, ServesAnEarlyBoundCallerThroughTheInterface)
{
    ComPtr<_ClsSynOutlook> early;
    ASSERT_EQ(S_OK, Instance.Dispatch()->QueryInterface(IID_PPV_ARGS(&early)));
    ExpectShownAndClosed([&] {
        IDispatch* dtc = Dtc.Dispatch();
        BSTR connection = SysAllocString(L"Driver=x");
        VARIANT_BOOL refused = VARIANT_TRUE;
        EXPECT_EQ(S_OK, early->SynLoad(&dtc, connection, &refused));
        SysFreeString(connection);
        return Value(refused != VARIANT_FALSE);
    });
}

TEST_F(SynLoadWithOutlook, WhileTheDialogIsShownASecondCallReturnsFalseAndStoresNothing)
{
    const test_support::MainThread mainThread;
    tools::Robot robot([&](tools::Robot& user) {
        const tools::ShownDialog dialog = user.WaitForDialog(L"Synchronization");
        mainThread.Invoke([&] {
            EXPECT_EQ(Dtc.Dispatch(), Shared().gDTC.Dispatch());
            ExpectSecondCallRefused();
        });
        dialog.Click(IDCANCEL);
    });
    EXPECT_FALSE(TruthOf(Instance.Call(L"SynLoad", ByRef(Dtc), L"Driver=x")));
    robot.Finish();
    ExpectShownAndClosed([&] { return Instance.Call(L"SynLoad", ByRef(Dtc), L"Driver=x"); });
}

TEST_F(SynLoadCall, WhileOutlookStartsASecondCallReturnsFalseAndStoresNothing)
{
    long started = 0;
    const sandbox::RegisteredClass outlook(sandbox::outlook::kOutlookClass, CLSCTX_INPROC_SERVER, [&] {
        if (++started == 1)
        {
            ExpectSecondCallRefused();
        }
        return sandbox::MakeOutlook(sandbox::MakeMailbox());
    });
    sandbox::RegisterProgId(sandbox::outlook::kOutlookProgId, sandbox::outlook::kOutlookClass);
    int shown = 0;
    test_support::AnswerDialogsDuring(
        [&] { EXPECT_FALSE(TruthOf(Instance.Call(L"SynLoad", ByRef(Dtc), L"Driver=x"))); },
        [&](const tools::ShownDialog& dialog) {
            ++shown;
            dialog.Click(IDCANCEL);
        });
    EXPECT_EQ(1, started);
    EXPECT_EQ(1, shown);
}

TEST_F(SynLoadCall, AnOutlookThatDoesNotStartLeavesTheThreadFreeForTheNextCall)
{
    {
        const sandbox::RegisteredClass broken(
            sandbox::outlook::kOutlookClass, CLSCTX_INPROC_SERVER,
            []() -> Object { throw automation::Error(E_FAIL, L"Outlook.Application"); });
        sandbox::RegisterProgId(sandbox::outlook::kOutlookProgId, sandbox::outlook::kOutlookClass);
        EXPECT_FALSE(TruthOf(Instance.Call(L"SynLoad", ByRef(Dtc), L"Driver=y")));
        EXPECT_EQ(Dtc.Dispatch(), Shared().gDTC.Dispatch());
    }
    const sandbox::OutlookInProcess outlook(sandbox::MakeMailbox());
    ExpectShownAndClosed([&] { return Instance.Call(L"SynLoad", ByRef(Dtc), L"Driver=x"); });
}

TEST_F(SynLoadWithOutlook, MayBeCalledAgainOnTheSameInstance)
{
    for (int i = 0; i < 2; ++i)
    {
        ExpectShownAndClosed([&] { return Instance.Call(L"SynLoad", ByRef(Dtc), L"Driver=x"); });
    }
}
