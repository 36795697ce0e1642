#include "config/OutlookProfiles.h"

#include "config/ProfileText.h"
#include "resources/Strings.h"
#include "tests/config/ProfileKey.h"
#include "tests/config/TellsUser.h"
#include "tests/support/Drive.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

namespace
{

using automation::Value;
using config::CheckOutlookProfiles;
using config::ProfileText;
using config_tests::ExpectTellsUser;
using config_tests::ProfileKey;
using resources::Language;

TEST(CheckOutlookProfiles, OneProfileIsEnough)
{
    const ProfileKey key;
    key.AddProfile(L"Outlook");
    EXPECT_FALSE(CheckOutlookProfiles());
}

TEST(CheckOutlookProfiles, WithoutAProfileTheUserIsToldInHisLanguage)
{
    const ProfileKey key;
    const auto check = [] { EXPECT_TRUE(CheckOutlookProfiles()); };
    ExpectTellsUser(Language::English, L"Error", L"Please configue Outlook.", check);
    ExpectTellsUser(Language::Chinese, L"错误", L"请你先配置Outlook.", check);
}

TEST(CheckOutlookProfiles, AMissingKeyIsReportedWithItsCodeInEnglishInBothLanguages)
{
    ProfileKey::Remove();
    for (const Language language : {Language::English, Language::Chinese})
    {
        const test_support::WithLanguage withLanguage(language);
        test_support::Drive(
            [](sandbox::Robot& robot) {
                const sandbox::ShownDialog box = robot.WaitForDialog();
                EXPECT_TRUE(box.IsMessageBox());
                EXPECT_EQ(L"Open key error, code 2", box.Message());
                EXPECT_EQ(std::vector<int>{IDOK}, box.Buttons());
                box.Click(IDOK);
            },
            [] { EXPECT_TRUE(CheckOutlookProfiles()); });
    }
}

TEST(ProfileText, TextsReadAsTheyAre)
{
    for (const DWORD type : {REG_SZ, REG_EXPAND_SZ, REG_MULTI_SZ})
    {
        EXPECT_EQ(L"My Profile", ProfileText(type, L"My Profile"));
    }
}

TEST(ProfileText, ANumberReadsInDecimal)
{
    EXPECT_EQ(L"16909060", ProfileText(REG_DWORD, 0x01020304));
    EXPECT_EQ(L"-1", ProfileText(REG_DWORD, -1));
}

TEST(ProfileText, BytesReadFromTheLastToTheFirstAsTwoUpperCaseDigitsEach)
{
    EXPECT_EQ(L"0xAB01", ProfileText(REG_BINARY, Value(std::vector<BYTE>{0x01, 0xAB})));
    EXPECT_EQ(L"0x0F", ProfileText(REG_BINARY, Value(std::vector<BYTE>{0x0F})));
    EXPECT_EQ(L"0x", ProfileText(REG_BINARY, Value(std::vector<BYTE>{})));
}

TEST(ProfileText, OtherTypesHaveNone)
{
    EXPECT_EQ(std::nullopt, ProfileText(REG_DWORD_BIG_ENDIAN, 1));
    EXPECT_EQ(std::nullopt, ProfileText(REG_NONE, L""));
}

} // namespace
