// Fixture of the configuration tests: a database with the host's schema and template rows of their own, and a
// fake host over it as the thread's host. The user's id is 7.
#pragma once

#include "state/SharedState.h"
#include "tests/support/DatabaseFile.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace config_tests
{

class ConfigFixture : public testing::Test
{
  protected:
    ConfigFixture();
    ~ConfigFixture() override;

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
    test_support::WithFakeHost mHost; // over the database
};

} // namespace config_tests
