// The calls of the main dialog to its services when the user starts a run, and its messages about the
// outcome.
#include "tests/ui/MainDialog.h"

#include <memory>
#include <stdexcept>

namespace
{

using namespace ui_tests;

TEST(FrmSynchronizeItem, EachCategoryLoadsItsParametersByItsKeyAndRunsItsProcedure)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        recorder.DuringRun = [](exchange::RunDisplay& display) { display.SetStatus(L"running"); };
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            const std::wstring done = In(language, L"Synchronize Succeed.", L"传输操作完成。");
            for (const int row : {kTaskRow, kCalendarRow, kContactRow})
            {
                ChooseAndStart(dialog, row);
                robot.WaitUntil("the run", [&] {
                    return recorder.Runs == row + 1 && dialog.Text(IDC_SYNC_STATE) == done;
                });
            }
        });
        EXPECT_EQ(L"Task Calendar Contact ", recorder.Loaded);
        EXPECT_EQ(L"tasks calendar contacts ", recorder.Ran);
    }
}

TEST(FrmSynchronizeItem, AFailedRunIsReportedInTheStatusLine)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        recorder.Fails = true;
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            ChooseAndStart(dialog, kContactRow);
            WaitForStatus(robot, dialog, In(language, L"Translate fail!", L"传输操作失败!"));
        });
    }
}

TEST(FrmSynchronizeItem, AnErrorThatEscapesARunIsAFailureAndTheDialogStaysOpen)
{
    const Interface english(Language::English);
    Recorder recorder;
    recorder.DuringRun = [](exchange::RunDisplay&) { throw std::runtime_error("from the run"); };
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kTaskRow);
        WaitForStatus(robot, dialog, L"Translate fail!");
        EXPECT_TRUE(dialog.TakesInput());
    });
}

TEST(FrmSynchronizeItem, WithoutAnOutlookProfileNothingIsLoadedAndTheStatusSaysWhatToCheck)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        recorder.NoProfile = true;
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            ChooseAndStart(dialog, kTaskRow);
            WaitForStatus(robot, dialog, resources::String(IDS_RUN_NO_PROFILE));
            test_support::ExpectReadable(dialog);
            test_support::Photograph(dialog, "FrmSynchronizeItem-no-profile" + Suffix(language));
        });
        EXPECT_EQ(L"", recorder.Loaded);
        EXPECT_EQ(L"", recorder.Ran);
    }
}

TEST(FrmSynchronizeItem, WithoutACategoryAChineseMessageBoxSaysSoInBothLanguages)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            dialog.Command(IDC_SYNC_START); // the button is disabled
            const ShownDialog box = robot.WaitForDialogAfter(dialog);
            EXPECT_EQ(L"没有选择同步的选项！", box.Message());
            EXPECT_EQ(L"Telvix", box.Caption());
            EXPECT_TRUE(box.ShowsIcon(IDI_INFORMATION));
            EXPECT_EQ(1u, box.Buttons().size());
            EXPECT_FALSE(dialog.TakesInput());
            box.Close();
            robot.WaitUntil("the main dialog", [&] { return dialog.IsAtRest(); });
            EXPECT_EQ(L"", dialog.Text(IDC_SYNC_STATE));
        });
        EXPECT_EQ(L"", recorder.Loaded);
    }
}

TEST(FrmSynchronizeItem, ACategoryThatTakesNoPartShowsTheInformationDialogAndDoesNotRun)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        recorder.IsTrans = false;
        Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            ChooseAndStart(dialog, kCalendarRow);
            const ShownDialog information = robot.WaitForDialogAfter(dialog);
            EXPECT_EQ(In(language, L"Message", L"信息"), information.Caption());
            EXPECT_EQ(In(language,
                         L"No item be selected to synchronize!\r\n\r\nPlease select the button of the "
                         L"configure,then selectint this item as true.",
                         L"该项目没有被确定需要进行同步!\r\n\r\n要进行同步，请选择 配置 "
                         L"按钮，选择允许同步。"),
                      information.Text(IDC_SHOWINFOR_DESCRIPTION));
            information.Click(IDOK);
            robot.WaitUntil("the main dialog", [&] { return dialog.IsAtRest(); });
            EXPECT_EQ(L"", dialog.Text(IDC_SYNC_STATE));
        });
        EXPECT_EQ(L"Calendar ", recorder.Loaded);
        EXPECT_EQ(L"", recorder.Ran);
    }
}

TEST(FrmSynchronizeItem, ATextThatMatchesNoCategoryIsReportedAndEndsWithTheSuccessText)
{
    auto english = std::make_unique<Interface>(Language::English);
    Recorder recorder;
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        dialog.ChooseRow(IDC_SYNC_CATEGORY, kTaskRow);
        resources::OverrideLanguage(Language::Chinese); // the rows keep their English texts
        dialog.Click(IDC_SYNC_START);
        const ShownDialog box = robot.WaitForDialogAfter(dialog);
        EXPECT_EQ(L"没有可同步的选项。", box.Message());
        EXPECT_EQ(L"Telvix", box.Caption());
        EXPECT_TRUE(box.ShowsIcon(IDI_INFORMATION));
        box.Close();
        WaitForStatus(robot, dialog, L"传输操作完成。");
    });
    EXPECT_EQ(L"", recorder.Ran);
}

} // namespace
