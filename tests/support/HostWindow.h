// A visible window of a host, on the thread that makes it. Header only.
#pragma once

#include <windows.h>

namespace test_support
{

class HostWindow
{
  public:
    HostWindow(const wchar_t* title, int width, int height)
        : mWindow(CreateWindowW(L"STATIC", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, width, height,
                                nullptr, nullptr, nullptr, nullptr))
    {
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow() { DestroyWindow(mWindow); }

    HWND Handle() const noexcept { return mWindow; }

  private:
    HWND mWindow;
};

} // namespace test_support
