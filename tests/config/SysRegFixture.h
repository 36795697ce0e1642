// Fixture of the tests of TSysReg: a key of their own below the user's, and a TSysReg that has opened it.
#pragma once

#include "config/outlook/SysReg.h"
#include "tests/config/RegistryBranch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace config_tests
{

using automation::Value;
using config::TSysReg;

class SysRegTest : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_EQ(0, mRegistry.OpenKey(HKEY_CURRENT_USER, mBranch.Path())); }

    // The bytes as they stand in the registry.
    std::vector<BYTE> StoredBytes(const wchar_t* name, DWORD expectedType) const
    {
        std::vector<BYTE> bytes(256);
        DWORD size = static_cast<DWORD>(bytes.size());
        DWORD type = 0;
        RegQueryValueExA(mBranch.Key(), std::string(name, name + wcslen(name)).c_str(), nullptr, &type,
                         bytes.data(), &size);
        EXPECT_EQ(expectedType, type);
        bytes.resize(size);
        return bytes;
    }

    void Store(const char* name, DWORD type, const std::vector<BYTE>& bytes) const
    {
        RegSetValueExA(mBranch.Key(), name, 0, type, bytes.data(), static_cast<DWORD>(bytes.size()));
    }

    Value Read(const wchar_t* name, DWORD expectedType)
    {
        DWORD type = 0;
        Value value;
        EXPECT_EQ(0, mRegistry.GetValue(name, type, value));
        EXPECT_EQ(expectedType, type);
        return value;
    }

    RegistryBranch mBranch{L"SysReg"};
    TSysReg mRegistry;
};

} // namespace config_tests
