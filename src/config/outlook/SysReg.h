// One open registry key, known by its root and the path below it: walks down and up the path, lists the
// key's contents, and reads and writes values of the common types. Made and used by the profile selection for
// the length of one operation or one dialog; an open key is closed with the object.
//
// Nothing but an unknown value type raises. Every other operation returns 0 for success, -2 when no key is
// open, a key cannot be opened or a value does not fit its type, and -1 when any other registry call failed;
// APIErrorCode has the code of a failed call. Listings return the number of names found. Texts cross to the
// registry in the system's single-byte code page.
#pragma once

#include "automation/Value.h"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <windows.h>

namespace config
{

class TSysReg
{
  public:
    bool IsOpened() const noexcept { return mIsOpened; }
    HKEY Root() const noexcept { return mRoot; }
    // Parts joined by "\", no leading separator.
    const std::wstring& Path() const noexcept { return mPath; }
    // The result code of the last registry call; 0 is success.
    long APIErrorCode() const noexcept { return mAPIErrorCode; }

    // Closes the open key, if any, and opens root\path with all access rights; 0 or -2.
    long OpenKey(HKEY root, const std::wstring& path);
    // Moves to a sub-key; CreateSubKey makes it where it is missing. A failure (-2 to open, -1 to create)
    // keeps the key that was open.
    long OpenSubKey(const std::wstring& name);
    long CreateSubKey(const std::wstring& name);
    long DeleteSubKey(const std::wstring& name);
    // Moves to the parent; from a path of one part to the root itself. As OpenKey, a failure leaves no key
    // open.
    long GoUpPath();

    // The names of the sub-keys and of the values, in the registry's order. The vector is left alone without
    // an open key.
    long GetSubKeyNames(std::vector<std::wstring>& names);
    long GetValueNames(std::vector<std::wstring>& names);

    // A value by its registry type: text for 1, 2 and 7 (parts separated by zero characters), an array of
    // bytes for 3, a 32-bit number for 4 and 5. Any other type throws automation::Error.
    long SetValue(const std::wstring& name, DWORD type, const automation::Value& value);
    long GetValue(const std::wstring& name, DWORD& type, automation::Value& value);
    long DeleteValue(const std::wstring& name);

  private:
    struct KeyCloser
    {
        void operator()(HKEY key) const noexcept { RegCloseKey(key); }
    };
    using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

    // Runs work, which returns a result, when a key is open; -2 when none is or something is thrown.
    template<typename Work>
    long WithKey(Work&& work);
    // Takes over the sub-key that a call with this code has opened.
    long MoveTo(long code, HKEY opened, const std::wstring& name);
    long Query(const std::wstring& name, DWORD& type, BYTE* bytes, DWORD& size);
    // 0 or -1 by the code, which is kept as APIErrorCode.
    long ResultOf(long code) noexcept;
    template<typename Enumerate>
    long NamesFrom(std::vector<std::wstring>& names, Enumerate&& enumerate);

    bool mIsOpened = false;
    HKEY mRoot = nullptr;
    Key mKey;
    std::wstring mPath;
    long mAPIErrorCode = 0;
};

} // namespace config
