#include "config/outlook/LocalSysInfo.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using config::GetOSVersionCode;
using config::OSVersionCode;
using config::ProfileKeyPath;

const std::wstring kNtKey =
    L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging Subsystem\\Profiles";
const std::wstring kOtherKey = L"Software\\Microsoft\\Windows Messaging Subsystem\\Profiles";

TEST(OSVersionCode, FollowsPlatformAndVersion)
{
    EXPECT_EQ(6, OSVersionCode(0, 3, 10));
    EXPECT_EQ(5, OSVersionCode(1, 4, 0));
    EXPECT_EQ(4, OSVersionCode(1, 4, 10));
    EXPECT_EQ(3, OSVersionCode(1, 4, 90));
    EXPECT_EQ(2, OSVersionCode(2, 4, 0));
    EXPECT_EQ(1, OSVersionCode(2, 5, 0));
    EXPECT_EQ(1, OSVersionCode(2, 5, 2));
}

TEST(OSVersionCode, IsZeroForEverythingElse)
{
    EXPECT_EQ(0, OSVersionCode(1, 4, 1));
    EXPECT_EQ(0, OSVersionCode(2, 3, 51));
    EXPECT_EQ(0, OSVersionCode(2, 6, 1));
    EXPECT_EQ(0, OSVersionCode(2, 10, 0));
    EXPECT_EQ(0, OSVersionCode(3, 5, 0));
}

TEST(ProfileKeyPath, TheNtFamilyOfVersions4And5HasItsOwnKey)
{
    EXPECT_EQ(kNtKey, ProfileKeyPath(OSVersionCode(2, 4, 0)));
    EXPECT_EQ(kNtKey, ProfileKeyPath(OSVersionCode(2, 5, 1)));
}

TEST(ProfileKeyPath, AnNtMajorVersion6SystemUsesTheSecondKey)
{
    EXPECT_EQ(kOtherKey, ProfileKeyPath(OSVersionCode(2, 6, 0)));
    for (const int code : {0, 3, 4, 5, 6})
    {
        EXPECT_EQ(kOtherKey, ProfileKeyPath(code));
    }
}

TEST(GetOSVersionCode, IsTheCodeOfWhatTheSystemReports)
{
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = 148;
    ASSERT_TRUE(GetVersionExA(&version));
    ASSERT_EQ(DWORD{VER_PLATFORM_WIN32_NT}, version.dwPlatformId);
    EXPECT_EQ(version.dwMajorVersion == 5 ? 1 : 0, GetOSVersionCode());
}

} // namespace
