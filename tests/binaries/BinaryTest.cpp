// The component as it is delivered, in both architectures: the protections that its header asks for and the
// version that its resources tell. The files are only read, so that the x86 one needs no 32-bit process.
#include "Version.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{

constexpr WORD kNoSeh = IMAGE_DLLCHARACTERISTICS_NO_SEH;
constexpr WORD kCommonFlags = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT;

std::wstring PathOf(const std::string& architecture)
{
    const std::string path = TELVIX_BUILDS "/" + architecture + "/Telvix.dll";
    return {path.begin(), path.end()};
}

class Binary : public testing::TestWithParam<std::string>
{
  protected:
    // The header of the file; its directories differ between architectures, what is read here does not.
    const IMAGE_NT_HEADERS& Headers()
    {
        if (mFile.empty())
        {
            std::ifstream file(std::string(TELVIX_BUILDS "/") + GetParam() + "/Telvix.dll", std::ios::binary);
            mFile.assign(std::istreambuf_iterator<char>(file), {});
        }
        if (mFile.size() < sizeof(IMAGE_DOS_HEADER))
        {
            throw std::runtime_error(GetParam() + "/Telvix.dll is not built");
        }
        const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(mFile.data());
        return *reinterpret_cast<const IMAGE_NT_HEADERS*>(mFile.data() + dos->e_lfanew);
    }

    // A value of the version resource.
    std::wstring TextOf(const wchar_t* name)
    {
        std::vector<char> block(GetFileVersionInfoSizeW(PathOf(GetParam()).c_str(), nullptr));
        void* text = nullptr;
        UINT size = 0;
        const std::wstring path = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
        if (!GetFileVersionInfoW(PathOf(GetParam()).c_str(), 0, static_cast<DWORD>(block.size()),
                                 block.data()) ||
            !VerQueryValueW(block.data(), path.c_str(), &text, &size))
        {
            return L"(absent)";
        }
        return static_cast<const wchar_t*>(text);
    }

  private:
    std::vector<char> mFile;
};

} // namespace

TEST_P(Binary, IsPlacedAtRandomAddressesAndKeepsDataFromBeingExecuted)
{
    EXPECT_EQ(Headers().OptionalHeader.DllCharacteristics & kCommonFlags, kCommonFlags);
    EXPECT_EQ(Headers().FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED, 0);
}

TEST_P(Binary, UsesTheWholeAddressSpaceOrForbidsExceptionHandlers)
{
    const bool isX64 = Headers().FileHeader.Machine == IMAGE_FILE_MACHINE_AMD64;
    const WORD expected = isX64 ? IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA : kNoSeh;
    EXPECT_EQ(isX64, GetParam() == "x64");
    EXPECT_EQ(Headers().OptionalHeader.DllCharacteristics & expected, expected);
}

TEST_P(Binary, CarriesNoTimeOfItsBuild)
{
    EXPECT_EQ(Headers().FileHeader.TimeDateStamp, 0u);
}

TEST_P(Binary, TellsItsVersionDescriptionAndCompany)
{
    EXPECT_EQ(TextOf(L"FileVersion"), L"" TELVIX_VERSION_TEXT);
    EXPECT_EQ(TextOf(L"ProductVersion"), L"" TELVIX_VERSION_TEXT);
    EXPECT_EQ(TextOf(L"FileDescription"), L"QUENLAR Sales System - Synchronize Outlook");
    EXPECT_EQ(TextOf(L"CompanyName"), L"QUENLAR");
    EXPECT_EQ(TextOf(L"OriginalFilename"), L"Telvix.dll");
}

TEST_P(Binary, HasTheVersionInNumbersToo)
{
    std::vector<char> block(GetFileVersionInfoSizeW(PathOf(GetParam()).c_str(), nullptr));
    ASSERT_TRUE(
        GetFileVersionInfoW(PathOf(GetParam()).c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
    void* value = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", &value, &size));
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(value);
    const WORD expected[] = {TELVIX_VERSION_NUMBERS};
    const WORD actual[] = {HIWORD(fixed.dwFileVersionMS), LOWORD(fixed.dwFileVersionMS),
                           HIWORD(fixed.dwFileVersionLS), LOWORD(fixed.dwFileVersionLS)};
    EXPECT_TRUE(std::equal(std::begin(expected), std::end(expected), actual));
    EXPECT_EQ(fixed.dwProductVersionMS, fixed.dwFileVersionMS);
    EXPECT_EQ(fixed.dwProductVersionLS, fixed.dwFileVersionLS);
}

INSTANTIATE_TEST_SUITE_P(Architectures, Binary, testing::Values("x64", "x86"));
