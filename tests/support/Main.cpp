// The main function of every program of tests.
#include "tests/support/LeakCheck.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

int main(int argumentCount, char** arguments)
{
    // A user32 call before any second thread starts: loading user32 from two threads at once can hang Wine.
    GetDesktopWindow();
    SetConsoleOutputCP(CP_UTF8);
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)))
    {
        return EXIT_FAILURE;
    }
    testing::InitGoogleTest(&argumentCount, arguments);
    test_support::ListenForLeaks();
    const int result = RUN_ALL_TESTS();
    CoUninitialize();
    return result;
}
