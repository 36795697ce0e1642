#include "config/dialogs/FrmOutLookOption.h"

#include "tests/config/NewerProfiles.h"
#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

#include <array>

namespace
{

using namespace ui_config_tests;

constexpr int kProfile = IDC_OUTLOOKOPTION_PROFILE;

class FrmOutLookOption : public testing::TestWithParam<Language>
{
  protected:
    void Show(const std::function<void(Robot&, const ShownDialog&)>& script)
    {
        Drive([&](Robot& robot) { script(robot, robot.WaitForDialog()); },
              [] { config::ShowOutLookOption(); });
    }

    static Texts Profiles(const ShownDialog& dialog)
    {
        Texts profiles;
        const auto count = dialog.Ask(dialog.Control(kProfile), CB_GETCOUNT);
        for (LRESULT i = 0; i < count; ++i)
        {
            std::array<wchar_t, 256> text = {};
            dialog.Ask(dialog.Control(kProfile), CB_GETLBTEXT, static_cast<WPARAM>(i),
                       reinterpret_cast<LPARAM>(text.data()));
            profiles.emplace_back(text.data());
        }
        return profiles;
    }

    static void Choose(const ShownDialog& dialog, const std::wstring& profile)
    {
        dialog.Ask(dialog.Control(kProfile), CB_SELECTSTRING, static_cast<WPARAM>(-1),
                   reinterpret_cast<LPARAM>(profile.c_str()));
    }

    void StoreDefault(DWORD type, const std::vector<BYTE>& bytes)
    {
        RegSetValueExW(mGround.Profiles().Key(), L"DefaultProfile", 0, type, bytes.data(),
                       static_cast<DWORD>(bytes.size()));
    }

    Ground mGround{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, FrmOutLookOption, testing::ValuesIn(ui_tests::kLanguages));

TEST_P(FrmOutLookOption, ShowsTheProfilesAndTheDefaultOne)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(resources::String(IDS_PROFILE_CAPTION), dialog.Caption());
        EXPECT_EQ(resources::String(IDS_PROFILE_EXPLANATION), dialog.Text(IDC_OUTLOOKOPTION_EXPLANATION));
        EXPECT_EQ(resources::String(IDS_PROFILE_LABEL), dialog.Text(IDC_OUTLOOKOPTION_LABEL));
        EXPECT_EQ((Texts{L"Outlook", L"Second"}), Profiles(dialog));
        EXPECT_EQ(L"Outlook", dialog.Text(kProfile));
        dialog.Close();
    });
}

TEST_P(FrmOutLookOption, ABinaryDefaultIsShownFromItsLastByteToItsFirst)
{
    StoreDefault(REG_BINARY, {0x01, 0xAB});
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(L"0xAB01", dialog.Text(kProfile));
        dialog.Click(IDOK); // and is no change
    });
}

TEST_P(FrmOutLookOption, ANumberIsShownInDecimal)
{
    StoreDefault(REG_DWORD, {0x02, 0x01, 0, 0});
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(L"258", dialog.Text(kProfile));
        dialog.Close();
    });
}

TEST_P(FrmOutLookOption, ADefaultOfAnotherTypeLeavesTheTextEmpty)
{
    for (const DWORD type : {DWORD{REG_QWORD}, DWORD{REG_DWORD_BIG_ENDIAN}})
    {
        StoreDefault(type, {1, 2, 3, 4});
        Show([&](Robot&, const ShownDialog& dialog) {
            EXPECT_EQ(L"", dialog.Text(kProfile));
            dialog.Close();
        });
    }
}

TEST_P(FrmOutLookOption, TheSameProfileAgainAsksAndWritesNothing)
{
    const auto before = state::Shared().gOlApplication.Dispatch();
    Show([&](Robot&, const ShownDialog& dialog) {
        Choose(dialog, L"Outlook");
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"Outlook", mGround.Profiles().Default());
    EXPECT_EQ(before, state::Shared().gOlApplication.Dispatch());
}

TEST_P(FrmOutLookOption, TheSameProfileAgainLeavesTheTypeOfTheStoredValue)
{
    constexpr wchar_t kName[] = L"Outlook";
    RegSetValueExW(mGround.Profiles().Key(), L"DefaultProfile", 0, REG_EXPAND_SZ,
                   reinterpret_cast<const BYTE*>(kName), sizeof kName);
    Show([&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(L"Outlook", dialog.Text(kProfile));
        Choose(dialog, L"Second");
        Choose(dialog, L"Outlook");
        dialog.Click(IDOK);
    });
    DWORD type = REG_NONE;
    RegQueryValueExW(mGround.Profiles().Key(), L"DefaultProfile", nullptr, &type, nullptr, nullptr);
    EXPECT_EQ(DWORD{REG_EXPAND_SZ}, type);
}

// Answers the question whether the profile is to be changed.
void Answer(Robot& robot, const ShownDialog& dialog, Language language, int button)
{
    const auto question = robot.WaitForDialogAfter(dialog);
    EXPECT_EQ(
        In(language,
           L"Are you sure to change the configuration of Outlook? If Outlook haven't exited ,please quit "
           L"it first!",
           L"你是否真的要改变Outlook的配置文件吗？如果Outlook没有退出请先退出它。"),
        question.Message());
    EXPECT_TRUE(question.ShowsIcon(IDI_QUESTION));
    EXPECT_EQ((std::vector<int>{IDYES, IDNO}), question.Buttons());
    question.Click(button);
    robot.WaitUntilClosed(question);
}

TEST_P(FrmOutLookOption, NoKeepsTheProfileAndClosesTheDialog)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        Choose(dialog, L"Second");
        dialog.Click(IDOK);
        Answer(robot, dialog, GetParam(), IDNO);
    });
    EXPECT_EQ(L"Outlook", mGround.Profiles().Default());
}

TEST_P(FrmOutLookOption, YesWritesTheProfileConnectsAnewAndDropsStaleFolders)
{
    mGround.AddFolderRow(10, test_support::kContactRecords.folder, true);
    mGround.AddFolderRow(10, L"Old store\\Contacts", false);
    const automation::Object before = state::Shared().gOlNamespace;
    Show([&](Robot& robot, const ShownDialog& dialog) {
        Choose(dialog, L"Second");
        dialog.Press(VK_RETURN);
        Answer(robot, dialog, GetParam(), IDYES);
    });
    EXPECT_EQ(L"Second", mGround.Profiles().Default());
    EXPECT_NE(before.Dispatch(), state::Shared().gOlNamespace.Dispatch());
    ASSERT_TRUE(static_cast<bool>(state::Shared().gOlNamespace));
    EXPECT_EQ(Texts{L"Personal Folders\\Contacts|1"}, mGround.Folders(10));
}

TEST_P(FrmOutLookOption, ReadsAndWritesTheDefaultAboveTheProfilesOfOffice)
{
    config_tests::ProfileKey::Remove();
    const std::wstring profiles = config_tests::ProfileKey::OfficePath(L"16.0");
    const config_tests::NewerProfiles ofOffice(profiles, {L"Home", L"Work"},
                                               L"Software\\Microsoft\\Office\\16.0\\Outlook");
    Show([&](Robot& robot, const ShownDialog& dialog) {
        EXPECT_EQ((Texts{L"Home", L"Work"}), Profiles(dialog));
        EXPECT_EQ(L"Home", dialog.Text(kProfile));
        Choose(dialog, L"Work");
        dialog.Click(IDOK);
        Answer(robot, dialog, GetParam(), IDYES);
    });
    EXPECT_EQ(L"Work", ofOffice.Default());
    EXPECT_EQ(L"", config_tests::NewerProfiles::DefaultIn(profiles));
}

TEST_P(FrmOutLookOption, CancelWritesNothing)
{
    Show([&](Robot&, const ShownDialog& dialog) {
        Choose(dialog, L"Second");
        dialog.Press(VK_ESCAPE);
    });
    EXPECT_EQ(L"Outlook", mGround.Profiles().Default());
}

// Shows the dialog while a message box is expected first.
void ExpectMessage(Robot& robot, const std::wstring& text)
{
    const auto box = robot.WaitForDialog();
    EXPECT_TRUE(box.IsMessageBox());
    EXPECT_EQ(text, box.Message());
    EXPECT_EQ(std::vector<int>{IDOK}, box.Buttons());
    box.Click(IDOK);
    robot.WaitUntilClosed(box);
}

TEST_P(FrmOutLookOption, AMissingKeyIsReportedWithItsCode)
{
    config_tests::ProfileKey::Remove();
    Drive(
        [&](Robot& robot) {
            ExpectMessage(robot, L"Open key error, code 2");
            const auto dialog = robot.WaitForDialog(resources::String(IDS_PROFILE_CAPTION));
            EXPECT_TRUE(Profiles(dialog).empty());
            dialog.Close();
        },
        [] { config::ShowOutLookOption(); });
}

TEST_P(FrmOutLookOption, AMissingDefaultIsReportedWithItsCode)
{
    RegDeleteValueW(mGround.Profiles().Key(), L"DefaultProfile");
    Drive(
        [&](Robot& robot) {
            ExpectMessage(robot, L"Get value error, code 2");
            const auto dialog = robot.WaitForDialog(resources::String(IDS_PROFILE_CAPTION));
            EXPECT_EQ((Texts{L"Outlook", L"Second"}), Profiles(dialog));
            dialog.Close();
        },
        [] { config::ShowOutLookOption(); });
}

// The class of a key may be longer than what a listing has room for.
void AddProfileOfLongClass(HKEY profiles)
{
    std::wstring longClass(300, L'c');
    HKEY made = nullptr;
    RegCreateKeyExW(profiles, L"Third", 0, longClass.data(), 0, KEY_ALL_ACCESS, nullptr, &made, nullptr);
    RegCloseKey(made);
}

TEST_P(FrmOutLookOption, ProfilesThatCannotBeListedAreReportedWithTheirCodeAndTheOthersOffered)
{
    AddProfileOfLongClass(mGround.Profiles().Key());
    Drive(
        [&](Robot& robot) {
            ExpectMessage(robot, L"Get sub key names error, code " + std::to_wstring(ERROR_MORE_DATA));
            const auto dialog = robot.WaitForDialog(resources::String(IDS_PROFILE_CAPTION));
            EXPECT_EQ((Texts{L"Outlook", L"Second"}), Profiles(dialog));
            EXPECT_EQ(L"Outlook", dialog.Text(kProfile)); // the default one is shown all the same
            dialog.Close();
        },
        [] { config::ShowOutLookOption(); });
}

TEST_P(FrmOutLookOption, ValuesThatCannotBeListedAreReportedWithTheirCodeAndNoDefaultIsShown)
{
    RegSetValueExW(mGround.Profiles().Key(), std::wstring(300, L'v').c_str(), 0, REG_SZ,
                   reinterpret_cast<const BYTE*>(L""), sizeof(wchar_t));
    Drive(
        [&](Robot& robot) {
            ExpectMessage(robot, L"Get value names error, code " + std::to_wstring(ERROR_MORE_DATA));
            const auto dialog = robot.WaitForDialog(resources::String(IDS_PROFILE_CAPTION));
            EXPECT_EQ((Texts{L"Outlook", L"Second"}), Profiles(dialog));
            EXPECT_EQ(L"", dialog.Text(kProfile));
            dialog.Close();
        },
        [] { config::ShowOutLookOption(); });
}

TEST_P(FrmOutLookOption, AFailedWriteIsReportedWithItsCode)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        Choose(dialog, L"Second");
        config_tests::ProfileKey::Remove(); // under the open dialog
        dialog.Click(IDOK);
        Answer(robot, dialog, GetParam(), IDYES);
        const auto box = robot.WaitForDialogAfter(dialog);
        EXPECT_EQ(L"Set value error, code " + std::to_wstring(ERROR_KEY_DELETED), box.Message());
        box.Click(IDOK);
    });
}

// Outlook's session lasts as long as anybody holds it, so a new one would come with the old profile.
TEST(ANewProfile, IsConnectedAfterTheOldOutlookIsReleased)
{
    const auto mailbox = sandbox::MakeMailbox();
    std::vector<bool> isOldHeld;
    const sandbox::RegisteredClass outlook(sandbox::outlook::kOutlookClass, CLSCTX_INPROC_SERVER, [&] {
        isOldHeld.push_back(state::Shared().gOlApplication || state::Shared().gOlNamespace);
        return sandbox::MakeOutlook(mailbox);
    });
    const Ground ground;
    EXPECT_TRUE(static_cast<bool>(state::Shared().gOlApplication)) << "the old one";
    Drive(
        [](Robot& robot) {
            const auto dialog = robot.WaitForDialog();
            dialog.Ask(dialog.Control(kProfile), CB_SELECTSTRING, static_cast<WPARAM>(-1),
                       reinterpret_cast<LPARAM>(L"Second"));
            dialog.Click(IDOK);
            Answer(robot, dialog, Language::English, IDYES);
        },
        [] { config::ShowOutLookOption(); });
    EXPECT_EQ(std::vector<bool>{false}, isOldHeld);
    EXPECT_TRUE(static_cast<bool>(state::Shared().gOlNamespace));
}

TEST_P(FrmOutLookOption, TabFollowsTheLayout)
{
    Show([&](Robot& robot, const ShownDialog& dialog) {
        dialog.Press(VK_TAB);
        robot.WaitUntil("focus on OK", [&] { return dialog.Focused() == IDOK; });
        dialog.Press(VK_TAB);
        robot.WaitUntil("focus on Cancel", [&] { return dialog.Focused() == IDCANCEL; });
        dialog.Close();
    });
}

} // namespace
