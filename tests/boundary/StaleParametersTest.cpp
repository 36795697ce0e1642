#include "automation/Error.h"
#include "tests/boundary/Site.h"
#include "tests/support/Interceptor.h"

namespace boundary_tests
{

namespace
{

// A run of one kind that goes well, and one of another kind with the same dialog, for which the host cannot
// read what the statement names.
class ParametersOfAnotherRun : public testing::Test
{
  protected:
    Seen RunAfterAnother(const std::wstring& unreadable)
    {
        mSite.Prepare(kExport);
        const auto hooks = std::make_shared<test_support::Hooks>();
        bool fails = false;
        hooks->after = [&](const std::wstring& member, DISPPARAMS& arguments, VARIANT&) {
            if (fails && member == L"OpenRecordsetByString" &&
                std::wstring(arguments.rgvarg[0].bstrVal).find(unreadable) != std::wstring::npos)
            {
                throw automation::Error(E_FAIL, member, L"The table cannot be read");
            }
        };
        Seen seen;
        mSite.SynLoad(
            [&](Robot& robot) {
                User user(robot);
                EXPECT_EQ(SuccessStatus(), user.Run(L"contact").status);
                mAfterFirst = mSite.Look();
                fails = true;
                seen = user.Run(L"task");
                user.Leave();
            },
            test_support::Intercept(mSite.Host().Dtc(), hooks));
        return seen;
    }

    Site mSite;
    InProcess mInProcess{mSite};
    State mAfterFirst;
};

} // namespace

TEST_F(ParametersOfAnotherRun, DoNotStandInForThoseThatCannotBeRead)
{
    const Seen seen = RunAfterAnother(L"T_POutlookSyncParam");
    EXPECT_EQ(L"", seen.status);
    ASSERT_EQ(1u, seen.messages.size());
    EXPECT_TRUE(seen.messages.front().starts_with(L"No item be selected to synchronize!"));
    EXPECT_EQ(mAfterFirst, mSite.Look());
}

TEST_F(ParametersOfAnotherRun, DoNotLendTheirFolderToItemsOfAnotherKind)
{
    const Seen seen = RunAfterAnother(L"T_POutlookSyncFolder");
    EXPECT_EQ(FailureStatus(), seen.status);
    ASSERT_EQ(1u, seen.messages.size());
    EXPECT_TRUE(seen.messages.front().starts_with(L"You have not selected the synchronise folder"));
    EXPECT_EQ(mAfterFirst, mSite.Look());
}

} // namespace boundary_tests
