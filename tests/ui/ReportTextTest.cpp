// The report as text: on the clipboard, and in a file.
#include "tests/ui/SomeReport.h"

#include "automation/Text.h"
#include "ui/Handover.h"

#include <commdlg.h>
#include <dlgs.h>

namespace
{

using namespace ui_tests;

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

} // namespace
