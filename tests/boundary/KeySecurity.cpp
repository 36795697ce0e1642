#include "tests/boundary/KeySecurity.h"

#include "automation/Error.h"

#include <array>

namespace boundary_tests
{

namespace
{

void Check(LSTATUS status, const wchar_t* what)
{
    automation::Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), what);
}

// An access list with these rights for everybody; empty for none.
class Rights
{
  public:
    explicit Rights(REGSAM rights)
    {
        SID_IDENTIFIER_AUTHORITY world = SECURITY_WORLD_SID_AUTHORITY;
        InitializeSid(mEverybody.data(), &world, 1);
        *GetSidSubAuthority(mEverybody.data(), 0) = SECURITY_WORLD_RID;
        InitializeAcl(List(), static_cast<DWORD>(sizeof mList), ACL_REVISION);
        if (rights != 0)
        {
            AddAccessAllowedAce(List(), ACL_REVISION, rights, mEverybody.data());
        }
        InitializeSecurityDescriptor(&mDescriptor, SECURITY_DESCRIPTOR_REVISION);
        SetSecurityDescriptorDacl(&mDescriptor, TRUE, List(), FALSE);
    }

    PSECURITY_DESCRIPTOR Descriptor() { return &mDescriptor; }

  private:
    ACL* List() { return reinterpret_cast<ACL*>(mList.data()); }

    std::array<BYTE, SECURITY_MAX_SID_SIZE> mEverybody = {};
    alignas(ACL) std::array<BYTE, 128> mList = {};
    SECURITY_DESCRIPTOR mDescriptor;
};

} // namespace

LimitedKey::LimitedKey(HKEY root, const std::wstring& path, REGSAM rights)
{
    Check(RegOpenKeyExW(root, path.c_str(), 0, READ_CONTROL | WRITE_DAC, &mKey), path.c_str());
    DWORD size = 0;
    RegGetKeySecurity(mKey, DACL_SECURITY_INFORMATION, nullptr, &size);
    mBefore.resize(size);
    Check(RegGetKeySecurity(mKey, DACL_SECURITY_INFORMATION, mBefore.data(), &size), L"RegGetKeySecurity");
    Rights limited(rights);
    Check(RegSetKeySecurity(mKey, DACL_SECURITY_INFORMATION, limited.Descriptor()), L"RegSetKeySecurity");
}

// By the handle from before, which keeps its rights.
LimitedKey::~LimitedKey()
{
    RegSetKeySecurity(mKey, DACL_SECURITY_INFORMATION, mBefore.data());
    RegCloseKey(mKey);
}

} // namespace boundary_tests
