#include "automation/Error.h"
#include "automation/Text.h"
#include "resources/Strings.h"
#include "tests/boundary/Site.h"
#include "tests/support/Drive.h"
#include "tests/support/Interceptor.h"

namespace boundary_tests
{

namespace
{

using automation::Object;

class MisbehavingHost : public testing::TestWithParam<const wchar_t*>
{
  protected:
    MisbehavingHost() { mSite.Prepare(kBoth); }

    Object Hooked() { return test_support::Intercept(mSite.Host().Dtc(), mHooks); }

    // One run with the meddled host; atConfirmation runs on this thread.
    Seen Run(const std::function<void()>& atConfirmation = [] {})
    {
        Seen seen;
        const test_support::MainThread mainThread;
        EXPECT_FALSE(mSite.SynLoad(
            [&](Robot& robot) {
                User user(robot);
                seen = user.Run(mTask.kind, [&] { mainThread.Invoke(atConfirmation); });
                user.Leave();
            },
            Hooked()));
        return seen;
    }

    // Nothing half-written so far, and the next run with a host that behaves puts everything right.
    void ExpectPutRight()
    {
        if (mSite.Host().Database().InTransaction())
        {
            mSite.Host()
                .Database()
                .Rollback(); // which is the host's affair, since it could not be asked any more
        }
        mSite.ExpectNothingLeft();
        ExpectWhole(mSite.Look(), mCourse.before, mCourse.after, UnfinishedRecords(mTask));
        EXPECT_EQ(SuccessStatus(), mSite.Run(mTask).status);
        ExpectReached(mSite.Look(), mCourse.after, UnfinishedRecords(mTask));
        EXPECT_EQ(0, test_support::InterceptedObjects());
    }

    const Task mTask{GetParam(), kBoth};
    const Course& mCourse = UndisturbedCourse(mTask);
    Site mSite;
    InProcess mInProcess{mSite};
    std::shared_ptr<test_support::Hooks> mHooks = std::make_shared<test_support::Hooks>();
};

// The object that a by-reference argument holds becomes nothing.
void ClearObject(VARIANT& argument)
{
    if (argument.vt == (VT_BYREF | VT_DISPATCH) && *argument.ppdispVal != nullptr)
    {
        (*argument.ppdispVal)->Release();
        *argument.ppdispVal = nullptr;
    }
}

INSTANTIATE_TEST_SUITE_P(, MisbehavingHost, testing::ValuesIn(kKinds));

} // namespace

TEST_P(MisbehavingHost, ThatGivesNoUserIsNotWorkedWith)
{
    mHooks->after = [](const std::wstring& member, DISPPARAMS&, VARIANT& result) {
        if (member == L"MyInfo")
        {
            VariantClear(&result);
        }
    };
    const Seen seen = Run();
    EXPECT_EQ(L"", seen.status);
    EXPECT_EQ(1u, seen.messages.size());
    EXPECT_EQ(mCourse.before, mSite.Look());
    ExpectPutRight();
}

TEST_P(MisbehavingHost, ThatReportsSuccessWithoutARecordsetFailsTheRun)
{
    mHooks->after = [](const std::wstring& member, DISPPARAMS& arguments, VARIANT&) {
        if (member == L"OpenRecordset")
        {
            ClearObject(arguments.rgvarg[arguments.cArgs - 1]);
        }
    };
    EXPECT_EQ(FailureStatus(), Run().status);
    EXPECT_EQ(mCourse.before, mSite.Look());
    ExpectPutRight();
}

TEST_P(MisbehavingHost, ThatReportsSuccessWithoutTheRowsOfAStatementIsNotWorkedWith)
{
    mHooks->after = [](const std::wstring& member, DISPPARAMS& arguments, VARIANT&) {
        if (member == L"OpenRecordsetByString")
        {
            ClearObject(arguments.rgvarg[arguments.cArgs - 1]);
        }
    };
    EXPECT_EQ(L"", Run().status);
    EXPECT_EQ(mCourse.before, mSite.Look());
    ExpectPutRight();
}

TEST_P(MisbehavingHost, ThatWritesNumbersDatesAndTruthAsTextIsUnderstood)
{
    long texts = 0;
    mHooks->after = [&](const std::wstring&, DISPPARAMS&, VARIANT& result) {
        if (result.vt != VT_EMPTY && result.vt != VT_DISPATCH && result.vt != VT_BSTR)
        {
            EXPECT_EQ(S_OK, VariantChangeType(&result, &result, VARIANT_ALPHABOOL, VT_BSTR));
            ++texts;
        }
    };
    EXPECT_EQ(SuccessStatus(), Run().status);
    EXPECT_LT(0, texts);
    ExpectReached(mSite.Look(), mCourse.after);
    ExpectPutRight();
}

TEST_P(MisbehavingHost, WhoseObjectDiesWhileTheUserConfirmsLosesNothing)
{
    bool isDead = false;
    mHooks->before = [&](const std::wstring& member) {
        if (isDead)
        {
            throw automation::Error(CO_E_OBJNOTCONNECTED, member);
        }
    };
    const Seen seen = Run([&] { isDead = true; });
    EXPECT_TRUE(seen.wasAsked);
    EXPECT_EQ(mCourse.before.hostRows, mSite.Look().hostRows);
    ExpectPutRight();
}

TEST_P(MisbehavingHost, WhoseObjectDiesWithTheFirstRowWrittenLosesNothing)
{
    bool isDead = false;
    mHooks->before = [&](const std::wstring& member) {
        if (isDead)
        {
            throw automation::Error(CO_E_OBJNOTCONNECTED, member);
        }
        isDead = member == L"Insert";
    };
    EXPECT_TRUE(Run().wasAsked);
    EXPECT_TRUE(isDead);
    ExpectPutRight();
}

TEST_P(MisbehavingHost, ThatClosesItsRecordsetWhileTheUserConfirmsFailsTheRun)
{
    Object handedOut;
    mHooks->after = [&](const std::wstring& member, DISPPARAMS& arguments, VARIANT&) {
        if (member == L"OpenRecordset")
        {
            handedOut = Object(*arguments.rgvarg[arguments.cArgs - 1].ppdispVal);
        }
    };
    const Seen seen = Run([&] { handedOut.Call(L"Close"); });
    EXPECT_EQ(FailureStatus(), seen.status);
    handedOut = {};
    mHooks->after = {};
    ExpectPutRight();
}

TEST_P(MisbehavingHost, ThatGivesUpItsOwnReferencesDuringTheRunIsKeptUntilTheEnd)
{
    IDispatch* given = nullptr;
    Hooked().Dispatch()->QueryInterface(IID_PPV_ARGS(&given));
    mHooks->before = [&](const std::wstring&) {
        if (given != nullptr)
        {
            std::exchange(given, nullptr)->Release(); // the variable that SynLoad was given by reference, too
        }
    };
    Seen seen;
    Robot robot([&](Robot& running) {
        User user(running);
        seen = user.Run(mTask.kind);
        user.Leave();
    });
    {
        const Object component = Object::Create(L"TelvixOutlook.ClsSynOutlook");
        DISPID id = 0;
        LPOLESTR name = const_cast<LPOLESTR>(L"SynLoad");
        ASSERT_EQ(S_OK, component.Dispatch()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_SYSTEM_DEFAULT, &id));
        const automation::Value connection(mSite.Host().ConnectionString());
        VARIANT arguments[2] = {connection.Raw(), {}};
        arguments[1].vt = VT_BYREF | VT_DISPATCH;
        arguments[1].ppdispVal = &given;
        DISPPARAMS parameters{arguments, nullptr, 2, 0};
        EXPECT_EQ(S_OK, component.Dispatch()->Invoke(id, IID_NULL, LOCALE_SYSTEM_DEFAULT, DISPATCH_METHOD,
                                                     &parameters, nullptr, nullptr, nullptr));
    }
    robot.Finish();
    EXPECT_EQ(nullptr, given);
    EXPECT_EQ(SuccessStatus(), seen.status);
    EXPECT_EQ(0, test_support::InterceptedObjects());
    ExpectReached(mSite.Look(), mCourse.after);
    ExpectPutRight();
}

TEST_P(MisbehavingHost, ThatRaisesWhileTheConfigurationIsStoredLeavesTheDialogsUsable)
{
    mHooks->before = [](const std::wstring& member) {
        if (member == L"Update")
        {
            throw automation::Error(E_FAIL, member, L"The host raises an error");
        }
    };
    Seen seen;
    mSite.SynLoad(
        [&](Robot& robot) {
            User user(robot);
            user.ChooseKind(mTask.kind);
            const ShownDialog configure = user.Open(user.Main(), IDC_SYNC_CONFIGURE);
            configure.Click(IDOK);
            robot.WaitUntilClosed(configure);
            robot.WaitUntil("the main dialog", [&] { return user.Main().TakesInput(); });
            seen = user.Run(mTask.kind);
            user.Leave();
        },
        Hooked());
    EXPECT_LT(0, mHooks->calls[L"Update"]);
    EXPECT_EQ(SuccessStatus(), seen.status);
    ExpectPutRight();
}

} // namespace boundary_tests
