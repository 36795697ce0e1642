#include "config/outlook/OutlookProfiles.h"

#include "automation/Text.h"
#include "config/outlook/ProfileText.h"
#include "resources/Strings.h"
#include "tests/config/NewerProfiles.h"
#include "tests/config/TellsUser.h"
#include "tests/support/Drive.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

namespace
{

using automation::Value;
using config::CheckOutlookProfiles;
using config::ProfileText;
using config_tests::ExpectTellsUser;
using config_tests::NewerProfiles;
using config_tests::ProfileKey;
using resources::Language;

// The check finds a profile, and shows nothing.
void ExpectAProfile()
{
    bool isRefused = true;
    int shown = 0;
    test_support::AnswerDialogsDuring([&] { isRefused = CheckOutlookProfiles(); },
                                      [&](const tools::ShownDialog& dialog) {
                                          ++shown;
                                          dialog.Close();
                                      });
    EXPECT_FALSE(isRefused);
    EXPECT_EQ(0, shown);
}

TEST(CheckOutlookProfiles, OneProfileIsEnough)
{
    const ProfileKey key;
    key.AddProfile(L"Outlook");
    ExpectAProfile();
}

TEST(CheckOutlookProfiles, WithoutAProfileAMessageIsShownInTheUsersLanguage)
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
            [](tools::Robot& robot) {
                const tools::ShownDialog box = robot.WaitForDialog();
                EXPECT_TRUE(box.IsMessageBox());
                EXPECT_EQ(L"Open key error, code 2", box.Message());
                EXPECT_EQ(std::vector<int>{IDOK}, box.Buttons());
                box.Click(IDOK);
            },
            [] { EXPECT_TRUE(CheckOutlookProfiles()); });
    }
}

// The class of a key may be longer than what a listing has room for.
void AddUnlistable(HKEY profiles, const wchar_t* name)
{
    std::wstring longClass(300, L'c');
    HKEY made = nullptr;
    RegCreateKeyExW(profiles, name, 0, longClass.data(), 0, KEY_ALL_ACCESS, nullptr, &made, nullptr);
    RegCloseKey(made);
}

TEST(CheckOutlookProfiles, AProfileListedBeforeAFailureIsEnough)
{
    const ProfileKey key;
    key.AddProfile(L"First");
    AddUnlistable(key.Key(), L"Second");
    std::vector<std::wstring> names;
    config::TSysReg registry;
    config::OpenProfileKey(registry);
    ASSERT_EQ(-1, registry.GetSubKeyNames(names));
    ASSERT_EQ(std::vector<std::wstring>{L"First"}, names);
    ExpectAProfile();
}

TEST(CheckOutlookProfiles, AListingThatFailsAtTheFirstProfileCountsAsNone)
{
    const ProfileKey key;
    AddUnlistable(key.Key(), L"Only");
    ExpectTellsUser(Language::English, L"Error", L"Please configue Outlook.",
                    [] { EXPECT_TRUE(CheckOutlookProfiles()); });
}

// The path of the profile key that is opened.
std::wstring OpenedProfileKey()
{
    config::TSysReg registry;
    EXPECT_EQ(0, config::OpenProfileKey(registry));
    return registry.Path();
}

class NewerProfileKeys : public testing::Test
{
  protected:
    NewerProfileKeys() { ProfileKey::Remove(); }
};

TEST_F(NewerProfileKeys, AreNotLookedAtWhereTheUsualKeyExistsEvenWithoutAProfile)
{
    const ProfileKey usual;
    const NewerProfiles ofOffice(ProfileKey::OfficePath(L"16.0"), {L"Outlook"});
    const NewerProfiles ofNt(ProfileKey::NtPath(), {L"Outlook"});
    EXPECT_EQ(ProfileKey::Path(), OpenedProfileKey());
    ExpectTellsUser(Language::English, L"Error", L"Please configue Outlook.",
                    [] { EXPECT_TRUE(CheckOutlookProfiles()); });
}

TEST_F(NewerProfileKeys, BeginWithTheKeyOfTheNtFamily)
{
    const NewerProfiles ofOffice(ProfileKey::OfficePath(L"16.0"), {L"Outlook"});
    const NewerProfiles ofNt(ProfileKey::NtPath(), {L"Outlook"});
    EXPECT_EQ(ProfileKey::NtPath(), OpenedProfileKey());
    ExpectAProfile();
}

TEST_F(NewerProfileKeys, GoOnWithThoseOfOfficeTheNewestVersionFirst)
{
    const NewerProfiles old(ProfileKey::OfficePath(L"9.0"), {L"Outlook"});
    EXPECT_EQ(old.Path(), OpenedProfileKey());
    const NewerProfiles newer(ProfileKey::OfficePath(L"15.0"), {L"Outlook"});
    EXPECT_EQ(newer.Path(), OpenedProfileKey());
    const NewerProfiles newest(ProfileKey::OfficePath(L"15.10"), {L"Outlook"});
    EXPECT_EQ(newest.Path(), OpenedProfileKey());
    ExpectAProfile();
}

TEST_F(NewerProfileKeys, AreThoseOfVersionsOnly)
{
    // Without a version beside them: the lowest number would be opened, too.
    for (const wchar_t* name : {L"Common", L"17", L"17.", L".17", L"17.0x"})
    {
        const NewerProfiles other(ProfileKey::OfficePath(name), {L"Outlook"});
        config::TSysReg registry;
        EXPECT_EQ(-2, config::OpenProfileKey(registry)) << automation::ToUtf8(name);
        RegDeleteTreeW(HKEY_CURRENT_USER, (std::wstring(L"Software\\Microsoft\\Office\\") + name).c_str());
    }
}

TEST_F(NewerProfileKeys, WithAProfileGoBeforeThoseWithout)
{
    const NewerProfiles left(ProfileKey::NtPath(), {});
    const NewerProfiles newest(ProfileKey::OfficePath(L"16.0"), {});
    EXPECT_EQ(left.Path(), OpenedProfileKey());
    ExpectTellsUser(Language::English, L"Error", L"Please configue Outlook.",
                    [] { EXPECT_TRUE(CheckOutlookProfiles()); });
    const NewerProfiles used(ProfileKey::OfficePath(L"15.0"), {L"Outlook"});
    EXPECT_EQ(used.Path(), OpenedProfileKey());
    ExpectAProfile();
}

TEST_F(NewerProfileKeys, HaveTheDefaultInTheKeyItselfAndThoseOfOfficeInTheOneAbove)
{
    const auto keyOfDefault = [] {
        config::TSysReg registry;
        EXPECT_EQ(0, config::OpenProfileKey(registry));
        EXPECT_EQ(0, config::MoveToDefaultProfile(registry));
        return registry.Path();
    };
    const NewerProfiles ofOffice(ProfileKey::OfficePath(L"16.0"), {L"Outlook"});
    EXPECT_EQ(L"Software\\Microsoft\\Office\\16.0\\Outlook", keyOfDefault());
    const NewerProfiles ofNt(ProfileKey::NtPath(), {L"Outlook"});
    EXPECT_EQ(ProfileKey::NtPath(), keyOfDefault());
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
