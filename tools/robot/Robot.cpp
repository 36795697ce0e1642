#include "tools/robot/Robot.h"

#include "automation/Text.h"

#include <array>
#include <stdexcept>
#include <utility>

namespace tools
{

namespace
{

using namespace std::chrono_literals;

constexpr auto kPollInterval = 5ms;
constexpr wchar_t kDialogClass[] = L"#32770";

BOOL CALLBACK CollectDialogs(HWND window, LPARAM collected)
{
    std::array<wchar_t, 16> name = {};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    const ShownDialog dialog(window);
    if (lstrcmpW(name.data(), kDialogClass) == 0 && dialog.TakesInput())
    {
        reinterpret_cast<std::vector<ShownDialog>*>(collected)->push_back(dialog);
    }
    return TRUE;
}

} // namespace

Robot::Robot(Script script, std::chrono::milliseconds patience)
    : mDriven(GetCurrentThreadId()), mPatience(patience)
{
    GetDesktopWindow(); // user32 is loaded on this thread first; from two at once it may hang
    mThread = std::thread([this, script = std::move(script)] { RunScript(script); });
}

Robot::~Robot()
{
    try
    {
        Finish();
    }
    catch (const std::exception& failure)
    {
        OutputDebugStringA(failure.what());
    }
}

void Robot::Finish()
{
    mFinishing = true;
    while (!mEnded) // the script may still be asking windows of this thread
    {
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
        std::this_thread::sleep_for(kPollInterval);
    }
    if (mThread.joinable())
    {
        mThread.join();
    }
    if (mFailure)
    {
        std::rethrow_exception(std::exchange(mFailure, nullptr));
    }
}

void Robot::RunScript(const Script& script)
{
    try
    {
        script(*this);
        WaitUntil("the dialogs to be left", [this] { return mFinishing.load(); });
    }
    catch (...)
    {
        mFailure = std::current_exception();
        CloseEverything();
    }
    mEnded = true;
}

void Robot::CloseEverything()
{
    while (!mFinishing)
    {
        for (const ShownDialog& dialog : Dialogs())
        {
            for (const int id : {IDCANCEL, IDNO, IDOK})
            {
                dialog.Command(id);
            }
            dialog.Close();
        }
        std::this_thread::sleep_for(kPollInterval);
    }
}

std::vector<ShownDialog> Robot::Dialogs() const
{
    std::vector<ShownDialog> dialogs;
    EnumThreadWindows(mDriven, CollectDialogs, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

void Robot::WaitUntil(const std::string& what, const std::function<bool()>& condition)
{
    const auto deadline = std::chrono::steady_clock::now() + mPatience;
    while (!condition())
    {
        if (std::chrono::steady_clock::now() > deadline)
        {
            throw std::runtime_error("waited in vain for " + what);
        }
        std::this_thread::sleep_for(kPollInterval);
    }
}

ShownDialog Robot::WaitForDialogThat(const std::string& what,
                                     const std::function<bool(const ShownDialog&)>& matches)
{
    ShownDialog found(nullptr);
    WaitUntil(what, [&] {
        for (const ShownDialog& dialog : Dialogs())
        {
            if (matches(dialog))
            {
                found = dialog;
                return true;
            }
        }
        return false;
    });
    return found;
}

ShownDialog Robot::WaitForDialog()
{
    return WaitForDialogThat("a dialog", [](const ShownDialog&) { return true; });
}

ShownDialog Robot::WaitForDialog(const std::wstring& caption)
{
    return WaitForDialogThat("the dialog " + automation::ToUtf8(caption),
                             [&](const ShownDialog& dialog) { return dialog.Caption() == caption; });
}

ShownDialog Robot::WaitForDialogAfter(const ShownDialog& known)
{
    return WaitForDialogThat("another dialog",
                             [&](const ShownDialog& dialog) { return dialog.Handle() != known.Handle(); });
}

void Robot::WaitUntilClosed(const ShownDialog& dialog)
{
    WaitUntil("the dialog to close", [&] { return !dialog.IsOpen(); });
}

} // namespace tools
