#include "tests/boundary/ProfileKeys.h"

#include "tests/boundary/KeySecurity.h"
#include "tests/boundary/Site.h"
#include "tools/demo/Installation.h"

namespace boundary_tests
{

namespace
{

class OutlooksProfileKeys : public testing::Test
{
  protected:
    OutlooksProfileKeys() { mSite.Prepare(kBoth); }

    void ExpectRefused(const std::wstring& message)
    {
        const State before = mSite.Look();
        for (const wchar_t* kind : kKinds)
        {
            const Seen seen = mSite.Run({kind, kBoth});
            EXPECT_EQ(NoProfileStatus(), seen.status);
            EXPECT_EQ(std::vector<std::wstring>{message}, seen.messages);
        }
        EXPECT_EQ(before, mSite.Look());
        mSite.ExpectNothingLeft();
    }

    Site mSite;
    InProcess mInProcess{mSite};
    ProfileKeys mProfiles{{L"Outlook"}};
};

} // namespace

TEST_F(OutlooksProfileKeys, MissingOnesStopARunWithTheirCode)
{
    mProfiles.Remove();
    ExpectRefused(L"Open key error, code 2");
}

TEST_F(OutlooksProfileKeys, DeniedOnesStopARunWithTheirCodeAndAllowedAgainTheyDoNot)
{
    {
        const LimitedKey one(HKEY_CURRENT_USER, ProfileKeys::kPaths[0], 0);
        const LimitedKey other(HKEY_CURRENT_USER, ProfileKeys::kPaths[1], 0);
        ExpectRefused(L"Open key error, code 5");
    }
    EXPECT_EQ(SuccessStatus(), mSite.Run({L"contact", kBoth}).status);
}

TEST_F(OutlooksProfileKeys, MissingOnesDoNotStopARunWhereOfficeHasAProfileOfItsOwn)
{
    tools::demo::InstallOutlookProfile(tools::demo::Profiles::Modern);
    EXPECT_EQ(SuccessStatus(), mSite.Run({L"contact", kBoth}).status);
}

TEST_F(OutlooksProfileKeys, ANewerOneThatIsDeniedStopsARunWithItsCode)
{
    RegDeleteTreeW(HKEY_CURRENT_USER, ProfileKeys::kPaths[0]);
    const LimitedKey newer(HKEY_CURRENT_USER, ProfileKeys::kPaths[1], KEY_READ);
    ExpectRefused(L"Open key error, code 5");
}

TEST_F(OutlooksProfileKeys, EmptyOnesAskTheUserToConfigureOutlook)
{
    mProfiles.Remove();
    const ProfileKeys noProfile({});
    for (const wchar_t* path : ProfileKeys::kPaths)
    {
        RegSetKeyValueW(HKEY_CURRENT_USER, path, L"Other", REG_SZ, L"", sizeof(wchar_t));
    }
    ExpectRefused(L"Please configue Outlook.");
}

TEST_F(OutlooksProfileKeys, ThatMayOnlyBeReadStopARunSinceTheyAreOpenedForWritingToo)
{
    const LimitedKey one(HKEY_CURRENT_USER, ProfileKeys::kPaths[0], KEY_READ);
    const LimitedKey other(HKEY_CURRENT_USER, ProfileKeys::kPaths[1], KEY_READ);
    ExpectRefused(L"Open key error, code 5");
}

} // namespace boundary_tests
