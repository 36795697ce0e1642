// A process may end at any moment, whatever it holds of the component.
#include "tests/endurance/Apartment.h"
#include "tests/endurance/Module.h"
#include "tests/endurance/Office.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>

using test_support::ApartmentThread;
using test_support::Module;
using test_support::Office;
using testing::ExitedWithCode;
using tools::ShownDialog;

namespace
{

constexpr int kOrderly = 7; // the code that a process ends with when nothing has gone wrong

// Never to be freed by this process.
void HoldComponentOfThisAndAnotherThread()
{
    static const Module* module = new Module;
    static automation::Object* component = new automation::Object(module->NewComponent());
    test_support::LendFont(*component);
    static std::atomic<bool> hasUsed{false};
    new ApartmentThread([] {
        const automation::Object other = module->NewComponent();
        test_support::LendFont(other);
        hasUsed = true;
        Sleep(INFINITE);
    });
    test_support::PumpUntil([] { return hasUsed.load(); });
}

} // namespace

TEST(AProcess, EndsWithoutHavingReleasedAnything)
{
    EXPECT_EXIT(
        {
            HoldComponentOfThisAndAnotherThread();
            std::exit(kOrderly);
        },
        ExitedWithCode(kOrderly), "");
}

TEST(AProcess, EndsWhileTheMainDialogIsOpen)
{
    EXPECT_EXIT(
        {
            Office office(sandbox::Edition::English, 2);
            office.WhileShown = [](const ShownDialog&) { ExitProcess(kOrderly); };
            office.Check(test_support::UseNumber(0));
        },
        ExitedWithCode(kOrderly), "");
}

TEST(AProcess, ThatCrashesDoesNotPassForOneThatSucceeded)
{
    EXPECT_EXIT(
        RaiseException(STATUS_ACCESS_VIOLATION, EXCEPTION_NONCONTINUABLE, 0, nullptr),
        [](int code) { return code != EXIT_SUCCESS; }, "");
}
