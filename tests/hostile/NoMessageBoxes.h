// Lets no dialog of this thread come up for the length of a scope, and counts those that would have: the
// message boxes of thousands of records would otherwise take most of the test's time.
#pragma once

#include <windows.h>

namespace test_support
{

class NoMessageBoxes
{
  public:
    NoMessageBoxes() : mHook(SetWindowsHookExW(WH_CBT, Refuse, nullptr, GetCurrentThreadId())) { Seen() = 0; }
    NoMessageBoxes(const NoMessageBoxes&) = delete;
    NoMessageBoxes& operator=(const NoMessageBoxes&) = delete;
    ~NoMessageBoxes() { UnhookWindowsHookEx(mHook); }

    long Count() const noexcept { return Seen(); }

  private:
    static long& Seen()
    {
        static long count = 0;
        return count;
    }

    static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam)
    {
        constexpr LRESULT kNoWindow = 1;
        wchar_t name[32] = {};
        if (code == HCBT_CREATEWND)
        {
            GetClassNameW(reinterpret_cast<HWND>(wParam), name, ARRAYSIZE(name));
        }
        if (lstrcmpW(name, L"#32770") == 0)
        {
            ++Seen();
            return kNoWindow;
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK mHook;
};

} // namespace test_support
