// The ground of a configuration test: the host's two parameter tables with their template rows, in a database
// of the test's own, and the host over it as the shared state's gDTC.
#pragma once

#include "state/SharedState.h"
#include "tests/config_host/RecordingHost.h"
#include "tests/sandbox_host/DatabaseFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace config_tests
{

class HostTest : public testing::Test
{
  protected:
    HostTest();
    ~HostTest() override;

    void Execute(const std::wstring& sql) { mConnection.Execute(sql); }
    // The rows of a query, each as its values joined with "|"; NULL as "NULL".
    std::vector<std::wstring> Rows(const std::wstring& sql);
    // The parameters of the user's kind: "IsTrans|TransSource|TransType|TransTypePic".
    std::wstring StoredTranslation(const std::wstring& kind);

    // The user's rows as the templates have them.
    void GiveUserRows();
    void GiveFolder(long kind, const std::wstring& path, bool isDefault);
    // "10|Personal Folders\Contacts|1", in the order of insertion.
    std::vector<std::wstring> Folders();

    // The status with which the host refuses every call of a member from now on.
    void RefuseEvery(const std::wstring& member, long status = -1);

  private:
    test_support::DatabaseFile mFile{L"telvix-config"};

  protected:
    sandbox::Connection mConnection{mFile.ConnectionString()};
    HostLog mLog;
};

} // namespace config_tests
