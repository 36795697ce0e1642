#include "ui/ShowMessageBox.h"

#include "tests/support/Drive.h"
#include "tests/ui/Interface.h"
#include "ui/AskWhetherToWait.h"

#include <gtest/gtest.h>

namespace
{

using namespace ui_tests;
using test_support::Drive;
using test_support::Robot;
using test_support::ShownDialog;

TEST(ShowMessageBox, HasTheApplicationsTitleAndTheIconAndButtonsAsked)
{
    int answer = 0;
    Drive(
        [&](Robot& robot) {
            const ShownDialog box = robot.WaitForDialog(L"Telvix");
            EXPECT_TRUE(box.IsMessageBox());
            EXPECT_EQ(L"Go on?", box.Message());
            EXPECT_TRUE(box.ShowsIcon(IDI_QUESTION));
            EXPECT_FALSE(box.ShowsIcon(IDI_INFORMATION));
            EXPECT_EQ((std::vector<int>{IDYES, IDNO}), box.Buttons());
            box.Click(IDNO);
        },
        [&] { answer = ui::ShowMessageBox(L"Go on?", MB_YESNO | MB_ICONQUESTION); });
    EXPECT_EQ(IDNO, answer);
}

TEST(AskWhetherToWait, AsksInTheInterfacesLanguageWhetherToTryAgain)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        for (const int button : {IDRETRY, IDCANCEL})
        {
            bool waits = false;
            Drive(
                [&](Robot& robot) {
                    const ShownDialog box = robot.WaitForDialog(L"Telvix");
                    EXPECT_EQ(
                        In(language,
                           L"Outlook is busy. A dialog box may be open in Outlook: close it, then choose "
                           L"Retry. Cancel ends what is under way.",
                           L"Outlook 正忙。Outlook 中可能有打开的对话框：请将其关闭，然后选择“重试”。"
                           L"“取消”将结束正在进行的操作。"),
                        box.Message());
                    EXPECT_TRUE(box.ShowsIcon(IDI_WARNING));
                    EXPECT_EQ((std::vector<int>{IDRETRY, IDCANCEL}), box.Buttons());
                    box.Click(button);
                },
                [&] { waits = ui::AskWhetherToWait(); });
            EXPECT_EQ(button == IDRETRY, waits);
        }
    }
}

} // namespace
