#include "tests/support/Drive.h"

#include "automation/Text.h"
#include "tools/robot/Picture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace test_support
{

namespace
{

constexpr UINT kInvoke = WM_APP;
constexpr UINT kPost = WM_APP + 1;
constexpr wchar_t kInvokerClass[] = L"TelvixTestInvoker";

LRESULT CALLBACK InvokerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kInvoke)
    {
        (*reinterpret_cast<const std::function<void()>*>(lParam))();
        return 0;
    }
    if (message == kPost)
    {
        const std::unique_ptr<std::function<void()>> function(
            reinterpret_cast<std::function<void()>*>(lParam));
        (*function)();
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace

void Drive(Robot::Script script, const std::function<void()>& action)
{
    Robot robot(std::move(script));
    action();
    robot.Finish();
}

void Photograph(const ShownDialog& dialog, const std::string& name)
{
    if (const char* const directory = std::getenv("TELVIX_PICTURES"); directory != nullptr)
    {
        tools::SavePicture(dialog, automation::FromUtf8(directory + ("\\" + name) + ".png"));
    }
}

MainThread::MainThread()
{
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = InvokerProcedure;
    windowClass.lpszClassName = kInvokerClass;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    RegisterClassW(&windowClass); // a second time it is there already
    mWindow = CreateWindowW(kInvokerClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windowClass.hInstance,
                            nullptr);
}

MainThread::~MainThread()
{
    DestroyWindow(mWindow);
}

void MainThread::Invoke(const std::function<void()>& function) const
{
    SendMessageW(mWindow, kInvoke, 0, reinterpret_cast<LPARAM>(&function));
}

void MainThread::Post(std::function<void()> function) const
{
    auto posted = std::make_unique<std::function<void()>>(std::move(function));
    if (PostMessageW(mWindow, kPost, 0, reinterpret_cast<LPARAM>(posted.get())))
    {
        static_cast<void>(posted.release()); // the window procedure deletes it
    }
}

} // namespace test_support
