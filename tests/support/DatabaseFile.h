// A database file of its own for a test, in the temporary directory; gone when the test ends.
#pragma once

#include "sandbox/database/Connection.h"

#include <atomic>
#include <string>

#include <windows.h>

namespace test_support
{

class DatabaseFile
{
  public:
    explicit DatabaseFile(const std::wstring& name = L"telvix")
    {
        static std::atomic<int> number{0};
        wchar_t folder[MAX_PATH];
        GetTempPathW(ARRAYSIZE(folder), folder);
        mPath = folder + (name + L"-" + std::to_wstring(GetCurrentProcessId())) + L"-" +
                std::to_wstring(++number) + L".db";
        DeleteFileW(mPath.c_str());
    }
    DatabaseFile(const DatabaseFile&) = delete;
    DatabaseFile& operator=(const DatabaseFile&) = delete;
    ~DatabaseFile() { DeleteFileW(mPath.c_str()); }

    const std::wstring& Path() const noexcept { return mPath; }
    std::wstring ConnectionString() const { return sandbox::ConnectionStringOf(mPath); }

  private:
    std::wstring mPath;
};

} // namespace test_support
