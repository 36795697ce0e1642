// The keys of Outlook's profiles, under either path that a system may use, for the length of a test: the
// profiles named, the first one the default. Afterwards there is the one profile that a site installs.
#pragma once

#include <array>
#include <string>
#include <vector>

#include <windows.h>

namespace boundary_tests
{

class ProfileKeys
{
  public:
    explicit ProfileKeys(const std::vector<std::wstring>& profiles);
    ProfileKeys(const ProfileKeys&) = delete;
    ProfileKeys& operator=(const ProfileKeys&) = delete;
    ~ProfileKeys();

    // The default profile of the key that this system uses; empty where there is none.
    std::wstring Default() const;
    // Removes the keys, with all below.
    void Remove() const;
    static const std::array<const wchar_t*, 2> kPaths;
};

} // namespace boundary_tests
