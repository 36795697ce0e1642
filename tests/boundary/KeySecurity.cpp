#include "tests/boundary/KeySecurity.h"

#include <array>

namespace boundary_tests
{

void SetAccess(HKEY root, const std::wstring& path, REGSAM rights)
{
    SID_IDENTIFIER_AUTHORITY world = SECURITY_WORLD_SID_AUTHORITY;
    PSID everybody = nullptr;
    AllocateAndInitializeSid(&world, 1, SECURITY_WORLD_RID, 0, 0, 0, 0, 0, 0, 0, &everybody);
    alignas(ACL) std::array<BYTE, 128> buffer = {};
    auto* const list = reinterpret_cast<ACL*>(buffer.data());
    InitializeAcl(list, static_cast<DWORD>(buffer.size()), ACL_REVISION);
    if (rights != 0)
    {
        AddAccessAllowedAce(list, ACL_REVISION, rights, everybody);
    }
    SECURITY_DESCRIPTOR descriptor;
    InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&descriptor, TRUE, list, FALSE);
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, WRITE_DAC, &key) == ERROR_SUCCESS)
    {
        RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, &descriptor);
        RegCloseKey(key);
    }
    FreeSid(everybody);
}

} // namespace boundary_tests
