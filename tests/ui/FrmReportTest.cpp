// The report of the last run: the button that opens it, and its dialog.
#include "tests/ui/SomeReport.h"

#include "automation/Text.h"

namespace
{

using namespace ui_tests;

RECT PlaceOf(const ShownDialog& dialog, int id)
{
    RECT place = {};
    GetWindowRect(dialog.Control(id), &place);
    MapWindowPoints(nullptr, dialog.Handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

TEST(FrmReport, TheButtonIsThereAfterARunWithSomethingToTellOnly)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Recorder recorder;
        bool tells = false;
        recorder.DuringRun = [&](exchange::RunDisplay& display) {
            display.TakeReport(tells ? SomeReport() : Report());
        };
        ui_tests::Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
            const auto run = [&] {
                const int before = recorder.Runs;
                ChooseAndStart(dialog, kContactRow);
                robot.WaitUntil("the run", [&] { return recorder.Runs > before && dialog.IsAtRest(); });
            };
            EXPECT_FALSE(dialog.IsVisible(IDC_SYNC_REPORT));
            const RECT alone = PlaceOf(dialog, IDC_SYNC_STATE);
            run();
            EXPECT_FALSE(dialog.IsVisible(IDC_SYNC_REPORT));
            tells = true;
            run();
            EXPECT_TRUE(dialog.IsVisible(IDC_SYNC_REPORT));
            EXPECT_EQ(In(language, L"&Report...", L"报告(&R)..."), dialog.Text(IDC_SYNC_REPORT));
            EXPECT_LT(PlaceOf(dialog, IDC_SYNC_STATE).right, PlaceOf(dialog, IDC_SYNC_REPORT).left);
            test_support::ExpectReadable(dialog);
            test_support::Photograph(dialog, "FrmSynchronizeItem-report" + Suffix(language));
            dialog.Click(IDC_SYNC_REPORT);
            const ShownDialog report = robot.WaitForDialogAfter(dialog);
            EXPECT_EQ(In(language, L"Report - Contact", L"报告 - 联系人"), report.Caption());
            EXPECT_FALSE(dialog.TakesInput());
            report.Click(IDCANCEL);
            robot.WaitUntil("the main dialog", [&] { return dialog.IsAtRest(); });
            tells = false;
            run();
            EXPECT_FALSE(dialog.IsVisible(IDC_SYNC_REPORT));
            const RECT again = PlaceOf(dialog, IDC_SYNC_STATE);
            EXPECT_EQ(alone.right, again.right);
        });
    }
}

TEST(FrmReport, ShowsOutcomeCountsAndTheRecordsWithTheirReasons)
{
    const Interface english(Language::English);
    Use(FinishedRun(SomeReport()), [&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(L"Contact, 2026-11-21 21:40:05\r\n"
                  L"Synchronize Succeed.\r\n"
                  L"Changed in Outlook: 0 written, 1 not written\r\n"
                  L"Added to the sales system: 2 written, 1 not written\r\n"
                  L"Gone, or changed, before they were written: 1\r\n"
                  L"Items of other kinds in the folder, left alone: 2",
                  dialog.Text(IDC_REPORT_SUMMARY));
        ASSERT_EQ(4, dialog.Rows(IDC_REPORT_LIST));
        const std::vector<std::vector<std::wstring>> expected = {
            {L"Added to the sales system", L"Åsa Qvist",
             L"Written with a shortened text: 50 of 300 characters", L"F_NICKNAME", L"300", L""},
            {L"Added to the sales system", L"Maria Rossi", L"Not written because of an error", L"Insert", L"",
             L"Disk full  while writing"},
            {L"Changed in Outlook", L"王芳", L"Not written: gone, or no longer what was proposed", L"", L"",
             L""},
            {L"The whole run", L"", L"A right is missing", L"", L"",
             L"You are not permit to add account record(s)!"},
        };
        for (int row = 0; row < 4; ++row)
        {
            for (int column = 0; column < 6; ++column)
            {
                EXPECT_EQ(expected[row][column], dialog.Row(IDC_REPORT_LIST, row, column)) << row << column;
            }
        }
    });
}

TEST(FrmReport, TheDetailsAreThoseOfTheSelectedRow)
{
    const Interface english(Language::English);
    Use(FinishedRun(SomeReport()), [&](Robot& robot, const ShownDialog& dialog) {
        EXPECT_EQ(IDC_REPORT_LIST, dialog.Focused());
        EXPECT_NE(std::wstring::npos, dialog.Text(IDC_REPORT_DETAILS).find(L"Record: Åsa Qvist"));
        dialog.Press(VK_DOWN);
        robot.WaitUntil("the details", [&] {
            return dialog.Text(IDC_REPORT_DETAILS) ==
                   L"Change: Added to the sales system\r\nRecord: Maria Rossi\r\nReason: Not written because "
                   L"of "
                   L"an error\r\nField or call: Insert\r\nMessage: Disk full\r\nwhile writing\r\nError code: "
                   L"0x80004005";
        });
    });
}

TEST(FrmReport, IsReadableInBothLanguagesAndAtTwiceTheResolution)
{
    for (const Language language : kLanguages)
    {
        for (const double scale : {1.0, 2.0})
        {
            const Interface with(language, scale);
            Use(FinishedRun(SomeReport()), [&](Robot&, const ShownDialog& dialog) {
                test_support::ExpectReadable(dialog);
                test_support::Photograph(dialog, std::string("FrmReport") + (scale > 1 ? "-200" : "") +
                                                     Suffix(language));
            });
        }
    }
}

TEST(FrmReport, EveryFieldIsNamedByTheLabelBeforeIt)
{
    const Interface english(Language::English);
    Use(FinishedRun(SomeReport()), [&](Robot&, const ShownDialog& dialog) {
        for (const auto& [control, label] : {std::pair{IDC_REPORT_SUMMARY, IDC_REPORT_SUMMARY_LABEL},
                                             {IDC_REPORT_LIST, IDC_REPORT_LIST_LABEL},
                                             {IDC_REPORT_DETAILS, IDC_REPORT_DETAILS_LABEL}})
        {
            EXPECT_EQ(dialog.Control(label), GetWindow(dialog.Control(control), GW_HWNDPREV));
            EXPECT_NE(L"", dialog.Text(label));
        }
    });
}

TEST(FrmReport, ItsControlsFollowItsEdgesAndItDoesNotBecomeSmaller)
{
    const Interface english(Language::English);
    Use(FinishedRun(SomeReport()), [&](Robot& robot, const ShownDialog& dialog) {
        const RECT list = PlaceOf(dialog, IDC_REPORT_LIST);
        const RECT close = PlaceOf(dialog, IDCANCEL);
        const RECT copy = PlaceOf(dialog, IDC_REPORT_COPY);
        RECT window = {};
        GetWindowRect(dialog.Handle(), &window);
        const int width = window.right - window.left;
        const int height = window.bottom - window.top;
        const auto resize = [&](int wider, int higher) {
            SetWindowPos(dialog.Handle(), nullptr, 0, 0, width + wider, height + higher,
                         SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
        };
        resize(100, 60);
        robot.WaitUntil("the size", [&] { return PlaceOf(dialog, IDCANCEL).left == close.left + 100; });
        EXPECT_EQ(close.top + 60, PlaceOf(dialog, IDCANCEL).top);
        EXPECT_EQ(list.right + 100, PlaceOf(dialog, IDC_REPORT_LIST).right);
        EXPECT_EQ(list.bottom + 60, PlaceOf(dialog, IDC_REPORT_LIST).bottom);
        EXPECT_EQ(copy.left, PlaceOf(dialog, IDC_REPORT_COPY).left);
        EXPECT_EQ(copy.top + 60, PlaceOf(dialog, IDC_REPORT_COPY).top);
        test_support::ExpectReadable(dialog);
        resize(-100, -100);
        robot.WaitUntil("the least size", [&] { return PlaceOf(dialog, IDCANCEL).left == close.left; });
        GetWindowRect(dialog.Handle(), &window);
        EXPECT_EQ(width, window.right - window.left);
        EXPECT_EQ(height, window.bottom - window.top);
    });
}

TEST(FrmReport, ALongListIsReadOnlyWhereItIsShown)
{
    const Interface english(Language::English);
    Report report;
    const state::CollectsRemarks collects(report);
    for (int i = 0; i < 50000; ++i)
    {
        report.Record(
            Change::AddToHost, [=] { return L"Record " + std::to_wstring(i); },
            [] { state::Tell({.Why = Cause::Vanished}); });
    }
    const ULONGLONG before = GetTickCount64();
    Use(FinishedRun(std::move(report)), [&](Robot&, const ShownDialog& dialog) {
        RecordProperty("MillisecondsToOpen", static_cast<int>(GetTickCount64() - before));
        EXPECT_EQ(50000, dialog.Rows(IDC_REPORT_LIST));
        EXPECT_EQ(L"Record 49999", dialog.Row(IDC_REPORT_LIST, 49999, 1));
    });
}

} // namespace
