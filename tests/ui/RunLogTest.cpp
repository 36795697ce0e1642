// The log of runs for administrators: off unless the registry asks for it, without values, and never large.
#include "report/RunLog.h"

#include "tests/support/WithLanguage.h"
#include "tests/ui/MainDialog.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using exchange::Change;
using exchange::Report;
using state::Cause;

// Settings of the current user and a folder for the user's data, for the length of a test.
class RunLog : public testing::Test
{
  protected:
    RunLog()
    {
        wchar_t before[MAX_PATH] = {};
        GetEnvironmentVariableW(L"LOCALAPPDATA", before, MAX_PATH);
        mBefore = before;
        wchar_t temporary[MAX_PATH];
        GetTempPathW(ARRAYSIZE(temporary), temporary);
        mData = std::wstring(temporary) + L"telvix-log-" + std::to_wstring(GetCurrentProcessId());
        CreateDirectoryW(mData.c_str(), nullptr);
        SetEnvironmentVariableW(L"LOCALAPPDATA", mData.c_str());
        ForgetSettings();
    }
    ~RunLog() override
    {
        SetEnvironmentVariableW(L"LOCALAPPDATA", mBefore.c_str());
        ForgetSettings();
        for (const std::wstring& name : Logs())
        {
            DeleteFileW((Folder() + name).c_str());
        }
        RemoveDirectoryW((mData + L"\\Telvix\\Logs").c_str());
        RemoveDirectoryW((mData + L"\\Telvix").c_str());
        RemoveDirectoryW(mData.c_str());
    }

    // The key may hold other settings.
    static void ForgetSettings()
    {
        for (HKEY const root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER})
        {
            HKEY key = nullptr;
            RegOpenKeyExW(root, report::kSettingsKey, 0, KEY_SET_VALUE | KEY_WOW64_64KEY, &key);
            RegDeleteValueW(key, report::kLogsRuns);
            RegDeleteValueW(key, report::kLogsValues);
            RegCloseKey(key);
        }
    }

    static void Set(HKEY root, const wchar_t* name, DWORD value)
    {
        HKEY key = nullptr;
        ASSERT_EQ(ERROR_SUCCESS, RegCreateKeyExW(root, report::kSettingsKey, 0, nullptr, 0,
                                                 KEY_SET_VALUE | KEY_WOW64_64KEY, nullptr, &key, nullptr));
        RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
        RegCloseKey(key);
    }

    std::wstring Folder() const { return mData + L"\\Telvix\\Logs\\"; }

    std::vector<std::wstring> Logs() const
    {
        std::vector<std::wstring> names;
        WIN32_FIND_DATAW found;
        const HANDLE search = FindFirstFileW((Folder() + L"*.log").c_str(), &found);
        for (bool any = search != INVALID_HANDLE_VALUE; any; any = FindNextFileW(search, &found) != 0)
        {
            names.emplace_back(found.cFileName);
        }
        FindClose(search);
        std::ranges::sort(names);
        return names;
    }

    std::string Content(const std::wstring& name) const
    {
        std::string content;
        const HANDLE file =
            CreateFileW((Folder() + name).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        content.resize(GetFileSize(file, nullptr));
        DWORD read = 0;
        ReadFile(file, content.data(), static_cast<DWORD>(content.size()), &read, nullptr);
        CloseHandle(file);
        return content;
    }

    // A run with a record of this name that the host refuses with these words.
    static report::FinishedRun Run(WORD second, const wchar_t* name, const wchar_t* words, int records = 1)
    {
        report::FinishedRun run{
            .Category = L"Contact", .Outcome = L"Done.", .EndedAt = {2026, 11, 6, 21, 9, 5, 0, 0}};
        run.EndedAt.wSecond = second;
        const state::CollectsRemarks collects(run.Report);
        for (int i = 0; i < records; ++i)
        {
            run.Report.Record(
                Change::AddToHost, [=] { return std::wstring(name); },
                [&] {
                    state::Tell({.Why = Cause::Failed, .Field = L"Insert", .Words = words, .Code = E_FAIL});
                });
        }
        return run;
    }

  private:
    std::wstring mData;
    std::wstring mBefore;
    test_support::WithLanguage mEnglish{resources::Language::English};
};

// As names of logs begin.
std::wstring Now()
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t text[64];
    swprintf_s(text, ARRAYSIZE(text), L"run-%04u%02u%02u-%02u%02u%02u-%03u", now.wYear, now.wMonth, now.wDay,
               now.wHour, now.wMinute, now.wSecond, now.wMilliseconds);
    return text;
}

TEST_F(RunLog, OfARunOfTheMainDialogHasTheTimeAtWhichItEnded)
{
    using namespace ui_tests;
    Set(HKEY_CURRENT_USER, report::kLogsRuns, 1);
    Recorder recorder;
    recorder.DuringRun = [](exchange::RunDisplay& display) {
        display.TakeReport(Run(1, L"Li Na", L"Disk full").Report);
    };
    const std::wstring before = Now();
    Use(recorder, [&](Robot& robot, const ShownDialog& dialog) {
        ChooseAndStart(dialog, kTaskRow);
        WaitForStatus(robot, dialog, L"Synchronize Succeed.");
    });
    ASSERT_EQ(1u, Logs().size());
    EXPECT_LE(before, Logs().front());
    EXPECT_GE(Now() + L"~", Logs().front());
}

TEST_F(RunLog, WithoutTheSettingNoFileAndNoFolderIsMade)
{
    report::LogRun(Run(1, L"Li Na", L"Disk full"));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(Folder().c_str()));
    Set(HKEY_CURRENT_USER, report::kLogsRuns, 0);
    report::LogRun(Run(1, L"Li Na", L"Disk full"));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(Folder().c_str()));
}

TEST_F(RunLog, ARunIsLoggedWithoutNamesAndWithoutTheWordsOfOthers)
{
    Set(HKEY_CURRENT_USER, report::kLogsRuns, 1);
    report::LogRun(Run(1, L"Li Na", L"Disk full at value 4711"));
    ASSERT_EQ(1u, Logs().size());
    const std::string text = Content(Logs()[0]);
    EXPECT_EQ(0u, text.find("\xEF\xBB\xBF"
                            "Contact, 2026-11-21 09:05:01\r\nDone.\r\n"));
    EXPECT_NE(std::string::npos, text.find("Added to the sales system\t\tNot written because of an "
                                           "error\tInsert\t\t\t0x80004005\r\n"));
    EXPECT_EQ(std::string::npos, text.find("Li Na"));
    EXPECT_EQ(std::string::npos, text.find("4711"));
}

TEST_F(RunLog, TheSecondSettingAllowsNamesAndWords)
{
    Set(HKEY_CURRENT_USER, report::kLogsRuns, 1);
    Set(HKEY_CURRENT_USER, report::kLogsValues, 1);
    report::LogRun(Run(1, L"Li Na", L"Disk full at value 4711"));
    ASSERT_EQ(1u, Logs().size());
    EXPECT_NE(std::string::npos,
              Content(Logs()[0]).find(
                  "\tLi Na\tNot written because of an error\tInsert\t\tDisk full at value 4711"));
}

TEST_F(RunLog, TheMachinesSettingComesBeforeTheUsers)
{
    Set(HKEY_LOCAL_MACHINE, report::kLogsRuns, 0);
    Set(HKEY_CURRENT_USER, report::kLogsRuns, 1);
    report::LogRun(Run(1, L"Li Na", L"Disk full"));
    EXPECT_TRUE(Logs().empty());
    Set(HKEY_LOCAL_MACHINE, report::kLogsRuns, 1);
    report::LogRun(Run(1, L"Li Na", L"Disk full"));
    EXPECT_EQ(1u, Logs().size());
}

TEST_F(RunLog, TheFiveNewestFilesStay)
{
    Set(HKEY_CURRENT_USER, report::kLogsRuns, 1);
    std::vector<std::wstring> all;
    for (WORD second = 1; second <= 8; ++second)
    {
        report::LogRun(Run(second, L"Li Na", L"Disk full"));
        ASSERT_FALSE(Logs().empty());
        all.push_back(Logs().back());
    }
    EXPECT_EQ(std::vector<std::wstring>(all.begin() + 3, all.end()), Logs());
}

TEST_F(RunLog, AFileIsAtMostOneMegabyteLongAndEndsWithAWholeLine)
{
    Set(HKEY_CURRENT_USER, report::kLogsRuns, 1);
    Set(HKEY_CURRENT_USER, report::kLogsValues, 1);
    for (const wchar_t* const name : {L"Li Na", L"王芳王芳王芳王芳"})
    {
        report::LogRun(Run(1, name, L"Disk full", 15000));
        ASSERT_EQ(1u, Logs().size());
        const std::string text = Content(Logs()[0]);
        EXPECT_GE(size_t{1024} * 1024, text.size());
        EXPECT_LT(size_t{300} * 1024, text.size());
        EXPECT_TRUE(text.ends_with("\r\n...\r\n"));
    }
}

TEST_F(RunLog, ALogThatCannotBeWrittenIsLeftOut)
{
    Set(HKEY_CURRENT_USER, report::kLogsRuns, 1);
    SetEnvironmentVariableW(L"LOCALAPPDATA", L"Z:\\no such folder");
    report::LogRun(Run(1, L"Li Na", L"Disk full"));
    SetEnvironmentVariableW(L"LOCALAPPDATA", nullptr);
    report::LogRun(Run(1, L"Li Na", L"Disk full"));
    EXPECT_TRUE(Logs().empty());
}

} // namespace
