// The report of the last run: the button that opens it, and its dialog.
#include "report/FrmReport.h"

#include "automation/Text.h"
#include "exchange/Report.h"
#include "tests/ui/MainDialog.h"
#include "ui/Handover.h"

#include <commdlg.h>
#include <dlgs.h>

namespace
{

using namespace ui_tests;
using exchange::Change;
using exchange::Report;
using state::Cause;

// Two records that are written, one of them cut, and two that are not; a right is missing.
Report SomeReport()
{
    Report report;
    const state::CollectsRemarks collects(report);
    const auto record = [&](Change change, const wchar_t* name, std::optional<state::Remark> remark) {
        report.Record(
            change, [=] { return std::wstring(name); },
            [&] {
                if (remark)
                {
                    state::Tell(*remark);
                }
            });
    };
    record(Change::AddToHost, L"Li Na", {});
    record(Change::AddToHost, L"Åsa Qvist",
           state::Remark{.Why = Cause::TextCut, .Field = L"F_NICKNAME", .Length = 300, .Kept = 50});
    record(Change::AddToHost, L"Maria Rossi",
           state::Remark{.Why = Cause::Failed,
                         .Field = L"Insert",
                         .Words = L"Disk full\r\nwhile writing",
                         .Code = E_FAIL});
    record(Change::ChangeInOutlook, L"王芳", state::Remark{.Why = Cause::Vanished});
    state::Tell({.Why = Cause::RightMissing,
                 .Words = resources::Choose(L"你没有添加单位的权限!",
                                            L"You are not permit to add account record(s)!")});
    report.CountOtherItems(2);
    return report;
}

report::FinishedRun FinishedRun(Report data)
{
    return {.Category = resources::String(IDS_CATEGORY_CONTACT),
            .Outcome = resources::String(IDS_RUN_SUCCEEDED),
            .EndedAt = {2026, 11, 6, 21, 21, 40, 5, 0},
            .Report = std::move(data)};
}

// Shows the dialog and lets the script use it; it is closed at the end.
void Use(const report::FinishedRun& run, const std::function<void(Robot&, const ShownDialog&)>& script)
{
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            script(robot, dialog);
            dialog.Click(IDCANCEL);
        },
        [&] { report::ShowReport(run); });
}

std::wstring ClipboardText()
{
    std::wstring text;
    if (OpenClipboard(nullptr))
    {
        if (const HANDLE data = GetClipboardData(CF_UNICODETEXT))
        {
            text = static_cast<const wchar_t*>(GlobalLock(data));
            GlobalUnlock(data);
        }
        CloseClipboard();
    }
    return text;
}

std::string ContentOf(const std::wstring& path)
{
    std::string content;
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE)
    {
        content.resize(GetFileSize(file, nullptr));
        DWORD read = 0;
        ReadFile(file, content.data(), static_cast<DWORD>(content.size()), &read, nullptr);
        CloseHandle(file);
    }
    return content;
}

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

TEST(FrmReport, CopyPutsTheWholeReportOnTheClipboard)
{
    const Interface english(Language::English);
    const report::FinishedRun run = FinishedRun(SomeReport());
    const std::wstring expected = report::TextOf(run, report::Values::Included);
    EXPECT_NE(std::wstring::npos, expected.find(L"\tMaria Rossi\tNot written because of an error\tInsert\t\t"
                                                L"Disk full  while writing\t0x80004005\r\n"));
    Use(run, [&](Robot& robot, const ShownDialog& dialog) {
        dialog.Click(IDC_REPORT_COPY);
        robot.WaitUntil("the clipboard", [&] { return ClipboardText() == expected; });
    });
}

TEST(FrmReport, SaveWritesTheWholeReportAsUtf8WithItsMark)
{
    const Interface english(Language::English);
    wchar_t folder[MAX_PATH];
    GetTempPathW(ARRAYSIZE(folder), folder);
    const std::wstring path =
        std::wstring(folder) + L"telvix-report-" + std::to_wstring(GetCurrentProcessId());
    const report::FinishedRun run = FinishedRun(SomeReport());
    const std::string expected =
        "\xEF\xBB\xBF" + automation::ToUtf8(report::TextOf(run, report::Values::Included));
    Use(run, [&](Robot& robot, const ShownDialog& dialog) {
        dialog.Click(IDC_REPORT_SAVE);
        const ShownDialog question = robot.WaitForDialogAfter(dialog);
        // An edit box or a combination box, by the version of the system's dialog.
        const auto nameBox = [&] { return question.Control(edt1) != nullptr ? edt1 : cmb13; };
        robot.WaitUntil("the name", [&] { return question.Text(nameBox()) == L"Report - Contact.txt"; });
        question.Ask(question.Control(nameBox()), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
        question.Click(IDOK);
        robot.WaitUntil("the file", [&] { return ContentOf(path + L".txt") == expected; });
        robot.WaitUntil("the report", [&] { return dialog.IsAtRest(); });
    });
    DeleteFileW((path + L".txt").c_str());
}

TEST(FrmReport, AFileThatCannotBeWrittenIsToldWithTheReason)
{
    EXPECT_FALSE(ui::WriteTextFile(L"Z:\\no such folder\\report.txt", L"x"));
    EXPECT_EQ(static_cast<DWORD>(ERROR_PATH_NOT_FOUND), GetLastError());
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
