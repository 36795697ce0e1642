// The fake host for the demo and the tests: a database of the host, and the data-access
// object over it that the component is given. Objects handed out may outlive the Host.
#pragma once

#include "automation/Object.h"
#include "sandbox/host/Catalogue.h"
#include "sandbox/host/HostState.h"

#include <memory>
#include <string>

namespace sandbox
{

class Host
{
  public:
    // A host with the catalogue and no other rows, in a temporary file that goes with it.
    explicit Host(Edition edition = Edition::English);
    // The host in this file, which is created like that where it does not exist. Throws automation::Error
    // when it can be neither opened nor created; a new file is there whole or not at all.
    explicit Host(const std::wstring& path, Edition editionOfNewFile = Edition::English);
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host();

    // The data-access object; one for the Host's life.
    const automation::Object& Dtc() const noexcept { return mDtc; }
    // The same as a host written in Visual Basic has it, with typed by-reference parameters (see TypedDtc.h).
    automation::Object TypedDtc() const;
    const std::wstring& ConnectionString() const noexcept { return mState->database.ConnectionString(); }
    // The connection that the data-access object uses.
    Connection& Database() noexcept { return mState->database; }

    void SignIn(long userId) noexcept { mState->userId = userId; }
    long UserId() const noexcept { return mState->userId; }
    // The answer to PermissionOn for the signed-in user: 0 and 3 permit, 1 and 2 deny.
    void SetRight(long module, long function, long right, long answer);
    // Stops the host's clock at a moment; before, it is the machine's.
    void SetSysDateTime(automation::Date moment) noexcept { mState->clock = moment; }

    // Which member refused last, and why; empty where none did.
    std::wstring LastRejection() const;
    const std::vector<std::wstring>& Rejections() const noexcept { return mState->rejections; }
    // How the recordsets behave that the host opens from now on.
    AwkwardAdo& Recordsets() noexcept { return mState->recordsets; }
    // Failures to order, and how often members were called.
    MemberFailures& Failures() noexcept { return mState->failures; }

  private:
    Host(const std::wstring& path, Edition edition, bool isTemporary);

    std::wstring mTemporaryPath; // empty for a file that stays
    std::shared_ptr<HostState> mState;
    automation::Object mDtc;
};

// A host's database without rows but the catalogue, in a new file.
void WriteEmptyHost(const std::wstring& path, Edition edition);

} // namespace sandbox
