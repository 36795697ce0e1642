// Access to a registry key taken away, as long as an object lives, by an access list for everybody.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

namespace boundary_tests
{

class LimitedKey
{
  public:
    // Everybody, its owner included, has these rights to the key and no others.
    LimitedKey(HKEY root, const std::wstring& path, REGSAM rights);
    LimitedKey(const LimitedKey&) = delete;
    LimitedKey& operator=(const LimitedKey&) = delete;
    ~LimitedKey();

  private:
    HKEY mKey = nullptr;
    std::vector<BYTE> mBefore; // the key's own security
};

} // namespace boundary_tests
