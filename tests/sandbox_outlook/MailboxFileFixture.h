// A mailbox file of its own for each test, with folders under a Chinese store name.
#pragma once

#include "tests/sandbox_outlook/OutlookFixture.h"

#include "sandbox/database/Connection.h"

#include <windows.h>

namespace sandbox
{

class MailboxFileTest : public testing::Test
{
  protected:
    MailboxFileTest()
    {
        DeleteFileW(mPath.c_str());
        const auto mailbox = CreateMailbox(mPath);
        mailbox->AddFolder(L"邮箱\\Contacts", ItemKind::Contact);
        mailbox->AddFolder(L"邮箱\\Tasks", ItemKind::Task);
        mailbox->AddFolder(L"邮箱\\Calendar", ItemKind::Appointment);
    }

    ~MailboxFileTest() override { DeleteFileW(mPath.c_str()); }

    static std::wstring TemporaryPath()
    {
        wchar_t directory[MAX_PATH];
        GetTempPathW(ARRAYSIZE(directory), directory);
        return std::wstring(directory) + L"telvix-mailbox-" + std::to_wstring(GetCurrentProcessId()) + L".db";
    }

    static automation::Object Folder(const automation::Object& outlook, long number)
    {
        return outlook.GetObject(L"GetNamespace", L"MAPI").GetObject(L"GetDefaultFolder", number);
    }

    // A value of the file, as another reader sees it at this moment.
    std::wstring Stored(long index, const wchar_t* name) const
    {
        return automation::TextOrEmpty(Connection(ConnectionStringOf(mPath))
                                           .QueryValue(L"SELECT Value FROM ItemProperty WHERE ItemIndex = ? "
                                                       L"AND Name = ?",
                                                       {index, name}));
    }

    void Run(const wchar_t* sql, const Row& parameters = {}) const
    {
        Connection(ConnectionStringOf(mPath)).Execute(sql, parameters);
    }

    void AddRow(const wchar_t* folder, long index, const wchar_t* name, const wchar_t* value) const
    {
        Run(L"INSERT INTO ItemProperty VALUES (?, ?, ?, ?)", {folder, index, name, value});
    }

    std::wstring mPath = TemporaryPath();
};

} // namespace sandbox
