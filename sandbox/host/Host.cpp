#include "sandbox/host/Host.h"

#include "sandbox/database/DatabaseFile.h"
#include "sandbox/host/Dtc.h"
#include "sandbox/host/Schema.h"
#include "sandbox/host/TypedDtc.h"

namespace sandbox
{

namespace
{

std::wstring Made(const std::wstring& path, Edition edition)
{
    if (!FileExists(path))
    {
        WriteEmptyHost(path, edition);
    }
    return path;
}

} // namespace

Host::Host(Edition edition) : Host(TemporaryDatabasePath(), edition, true) {}

Host::Host(const std::wstring& path, Edition editionOfNewFile) : Host(path, editionOfNewFile, false) {}

Host::Host(const std::wstring& path, Edition edition, bool isTemporary)
    : mTemporaryPath(isTemporary ? path : std::wstring()),
      mState(std::make_shared<HostState>(ConnectionStringOf(Made(path, edition)))),
      mDtc(MakeDtc(mState))
{
}

Host::~Host()
{
    if (!mTemporaryPath.empty())
    {
        DeleteFileW(mTemporaryPath.c_str());
    }
}

void Host::SetRight(long module, long function, long right, long answer)
{
    Row codes{UserId(), module, function, right};
    Database().Execute(L"DELETE FROM UserRight WHERE F_UID=? AND Module=? AND Function=? AND [Right]=?",
                       codes);
    codes.emplace_back(answer);
    AddRows(Database(), L"UserRight", L"F_UID,Module,Function,[Right],Answer", {codes});
}

automation::Object Host::TypedDtc() const
{
    return MakeTypedDtc(mDtc);
}

std::wstring Host::LastRejection() const
{
    return mState->rejections.empty() ? std::wstring() : mState->rejections.back();
}

void WriteEmptyHost(const std::wstring& path, Edition edition)
{
    WriteDatabaseFile(path, [&](Connection& database) {
        CreateHostSchema(database);
        FillHostCatalogue(database, edition);
    });
}

} // namespace sandbox
