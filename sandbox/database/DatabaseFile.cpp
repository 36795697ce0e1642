#include "sandbox/database/DatabaseFile.h"

#include "automation/Error.h"

#include <atomic>

namespace sandbox
{

namespace
{

// A file that is deleted unless it is kept.
class UnfinishedFile
{
  public:
    explicit UnfinishedFile(std::wstring path) : mPath(std::move(path)) { DeleteFileW(mPath.c_str()); }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile() { DeleteFileW(mPath.c_str()); }

    const std::wstring& Path() const noexcept { return mPath; }

    void KeepAs(const std::wstring& path)
    {
        if (!MoveFileExW(mPath.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING))
        {
            throw automation::Error(HRESULT_FROM_WIN32(GetLastError()), path);
        }
    }

  private:
    std::wstring mPath;
};

} // namespace

bool FileExists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

void WriteDatabaseFile(const std::wstring& path, const std::function<void(Connection&)>& fill)
{
    UnfinishedFile file(path + L".new");
    {
        Connection database(ConnectionStringOf(file.Path()));
        database.Begin();
        fill(database);
        database.Commit();
    }
    file.KeepAs(path);
}

std::wstring TemporaryDatabasePath()
{
    static std::atomic<int> number{0};
    wchar_t folder[MAX_PATH];
    GetTempPathW(ARRAYSIZE(folder), folder);
    return folder + (L"telvix-host-" + std::to_wstring(GetCurrentProcessId())) + L"-" +
           std::to_wstring(GetTickCount()) + L"-" + std::to_wstring(++number) + L".db";
}

} // namespace sandbox
