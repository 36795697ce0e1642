// Access to registry keys, taken away and given back by a discretionary access list for everybody.
#pragma once

#include <string>

#include <windows.h>

namespace boundary_tests
{

// Everybody has these rights to the key and no others (its owner may still change that).
void SetAccess(HKEY root, const std::wstring& path, REGSAM rights);

// A key below which nothing may be made or written, as long as this lives.
class ReadOnlyKey
{
  public:
    ReadOnlyKey(HKEY root, std::wstring path) : mRoot(root), mPath(std::move(path))
    {
        SetAccess(mRoot, mPath, KEY_READ | KEY_WOW64_64KEY);
    }
    ReadOnlyKey(const ReadOnlyKey&) = delete;
    ReadOnlyKey& operator=(const ReadOnlyKey&) = delete;
    ~ReadOnlyKey() { SetAccess(mRoot, mPath, KEY_ALL_ACCESS); }

  private:
    HKEY mRoot;
    std::wstring mPath;
};

} // namespace boundary_tests
