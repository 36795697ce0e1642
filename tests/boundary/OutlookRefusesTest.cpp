#include "automation/Error.h"
#include "sandbox/dispatch/ClassObject.h"
#include "sandbox/dispatch/DispatchObject.h"
#include "sandbox/outlook/Classes.h"
#include "tests/boundary/Site.h"

namespace boundary_tests
{

namespace
{

using automation::Object;
using sandbox::RegisteredClass;
using sandbox::outlook::kOutlookClass;
using sandbox::outlook::kOutlookProgId;

// An Outlook that has no session to give.
class WithoutNamespace : public sandbox::DispatchObject
{
    const wchar_t* ClassName() const override { return L"Application"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable table{{L"GetNamespace",
                                                 [](DispatchObject&, const sandbox::Call&) -> sandbox::Value {
                                                     throw automation::Error(E_FAIL, L"GetNamespace");
                                                 },
                                                 nullptr}};
        return table;
    }
};

class OutlookRefuses : public testing::Test
{
  protected:
    // SynLoad ends at once, without a dialog (the robot would say so), and reports no refusal.
    void ExpectSilentEnd()
    {
        Robot nobody([](Robot&) {}, std::chrono::seconds(10));
        Object dtc = mSite.Host().Dtc();
        EXPECT_FALSE(automation::TruthOf(
            mComponent.Call(L"SynLoad", automation::ByRef(dtc), mSite.Host().ConnectionString())));
        EXPECT_NO_THROW(nobody.Finish());
        mSite.ExpectNothingLeft();
    }

    // The same object of the component serves when Outlook is there again, and lets everything go.
    void ExpectGoodAfterwards()
    {
        const InProcess inProcess(mSite);
        mSite.Prepare(kBoth);
        Seen seen;
        Robot robot([&](Robot& running) {
            User user(running);
            seen = user.Run(L"contact");
            user.Leave();
        });
        Object dtc = mSite.Host().Dtc();
        EXPECT_FALSE(automation::TruthOf(
            mComponent.Call(L"SynLoad", automation::ByRef(dtc), mSite.Host().ConnectionString())));
        robot.Finish();
        EXPECT_EQ(SuccessStatus(), seen.status);
        ExpectReached(mSite.Look(), mCourse.after);
    }

    const Course& mCourse = UndisturbedCourse({L"contact", kBoth});
    Site mSite;
    const long mObjectsBefore = sandbox::LiveObjects();
    Object mComponent = Object::Create(L"TelvixOutlook.ClsSynOutlook");
};

} // namespace

TEST_F(OutlookRefuses, SynLoadEndsSilentlyWhereItCannotBeCreated)
{
    {
        const RegisteredClass unwilling(kOutlookClass, CLSCTX_INPROC_SERVER, []() -> Object {
            throw automation::Error(E_ACCESSDENIED, L"Outlook.Application");
        });
        ExpectSilentEnd();
    }
    ExpectGoodAfterwards();
}

TEST_F(OutlookRefuses, SynLoadEndsSilentlyWhereItIsNotInstalled)
{
    sandbox::DeleteClassKey(kOutlookProgId);
    ExpectSilentEnd();
    sandbox::RegisterProgId(kOutlookProgId, kOutlookClass);
    ExpectGoodAfterwards();
}

TEST_F(OutlookRefuses, SynLoadEndsSilentlyWithoutANamespaceAndKeepsItsObjectsUntilTheNextCall)
{
    {
        const RegisteredClass sessionless(kOutlookClass, CLSCTX_INPROC_SERVER,
                                          [] { return sandbox::MakeObject<WithoutNamespace>(); });
        ExpectSilentEnd();
    }
    EXPECT_EQ(mObjectsBefore + 1, sandbox::LiveObjects()); // the application, as the host contract has it
    ExpectGoodAfterwards();
    EXPECT_EQ(mObjectsBefore, sandbox::LiveObjects());
}

} // namespace boundary_tests
