// Every configuration dialog in both languages and at the sizes that screens of 96, 144 and 192 DPI show:
// nothing is clipped, nothing leaves the dialog, accelerators are unique, prompts leave no gap.
#include "config/dialogs/FrmAdvanced.h"
#include "config/dialogs/FrmConfigure.h"
#include "config/dialogs/FrmOutLookOption.h"
#include "config/dialogs/FrmSynChoose.h"
#include "config/dialogs/FrmSynContent.h"
#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using namespace ui_config_tests;

struct Shown
{
    const char* name;
    const wchar_t* kind;
    void (*show)();
    int page; // of the advanced dialogs
};

void ShowPicker()
{
    config::ShowSynContent(state::Shared().gConfigureParameter);
}

void ShowAdvanced()
{
    config::ShowAdvancedOptions(state::Shared().gConfigureParameter.TransObject);
}

constexpr Shown kDialogs[] = {
    {"FrmConfigure", L"Contact", &config::ShowConfigure, 0},
    {"FrmSynChoose", L"Contact", &config::ShowSynChoose, 0},
    {"FrmSynContent", L"Contact", &ShowPicker, 0},
    {"FrmSynContent-calendar", L"Calendar", &ShowPicker, 0},
    {"FrmSynContent-task", L"Task", &ShowPicker, 0},
    {"FrmAdvContacts", L"Contact", &ShowAdvanced, 0},
    {"FrmAdvCalendar", L"Calendar", &ShowAdvanced, 0},
    {"FrmAdvCalendar-range", L"Calendar", &ShowAdvanced, 1},
    {"FrmAdvActivites", L"Task", &ShowAdvanced, 0},
    {"FrmAdvActivites-range", L"Task", &ShowAdvanced, 1},
    {"FrmOutLookOption", L"Contact", &config::ShowOutLookOption, 0},
};

class ReadableConfiguration : public testing::TestWithParam<std::tuple<Language, double>>
{
};

INSTANTIATE_TEST_SUITE_P(, ReadableConfiguration,
                         testing::Combine(testing::ValuesIn(ui_tests::kLanguages),
                                          testing::Values(1.0, 1.5, 2.0)));

void Prepare(Ground& ground, const Shown& shown)
{
    ground.SetRow(L"Task", L"IsTrans=1");
    ground.Mailbox->AddFolder(L"Personal Folders\\Contacts\\Friends", sandbox::ItemKind::Contact);
    ground.Mailbox->AddFolder(L"Archive\\Contacts 2020", sandbox::ItemKind::Contact);
    ground.AddFolderRow(10, test_support::kContactRecords.folder, true);
    ground.AddFolderRow(10, L"Archive\\Contacts 2020", false);
    ground.AddFolderRow(20, test_support::kTaskRecords.folder, true);
    ground.AddFolderRow(30, test_support::kCalendarRecords.folder, true);
    ground.UseKind(shown.kind);
}

TEST_P(ReadableConfiguration, EveryDialogShowsAllOfItsTexts)
{
    const auto [language, scale] = GetParam();
    for (const Shown& shown : kDialogs)
    {
        SCOPED_TRACE(shown.name);
        Ground ground(language, scale);
        Prepare(ground, shown);
        Drive(
            [&, language = language, scale = scale](Robot& robot) {
                const auto dialog = robot.WaitForDialog();
                dialog.Ask(dialog.Control(IDC_ADV_TABS), TCM_SETCURFOCUS, static_cast<WPARAM>(shown.page));
                // The contract gives two buttons of this dialog the same letter.
                const bool hasSharedLetter = dialog.Control(IDC_CHOOSE_OPTION) != nullptr;
                test_support::ExpectReadable(dialog, hasSharedLetter ? L"O" : L"");
                for (const int prompt : {IDC_CHOOSE_PROMPT, IDC_CONTENT_PROMPT, IDC_OUTLOOKOPTION_EXPLANATION,
                                         IDC_ADV_CONFLICT_EXPLANATION})
                {
                    if (dialog.Control(prompt) != nullptr)
                    {
                        EXPECT_EQ(0, EmptyLines(dialog, prompt)) << prompt;
                    }
                }
                for (const int list : {IDC_CONFIGURE_LIST, IDC_CONTENT_TREE, IDC_CONTENT_LIST})
                {
                    EXPECT_EQ(dialog.Control(list) != nullptr, HasExplorerTheme(dialog.Control(list)))
                        << list;
                }
                const auto percent = std::to_string(std::lround(scale * 100));
                test_support::Photograph(dialog, shown.name + ui_tests::Suffix(language) +
                                                     (scale == 1 ? "" : "-" + percent));
                dialog.Close();
            },
            shown.show);
    }
}

} // namespace
