#include "state/Failures.h"

#include "tests/support/MessageBoxes.h"
#include "ui/ShowError.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using test_support::MessagesDuring;

void Throw()
{
    throw std::runtime_error("from the body");
}

TEST(Failures, FailedSaysWhetherTheBodyHasThrown)
{
    bool hasRun = false;
    EXPECT_FALSE(state::Failed([&] { hasRun = true; }));
    EXPECT_TRUE(hasRun);
    EXPECT_TRUE(state::Failed(Throw));
}

TEST(Failures, TrappedWithoutAValueKeepsTheErrorAndRunsNothingAfterIt)
{
    bool isAfterTheError = false;
    EXPECT_NO_THROW(state::Trapped([&] {
        Throw();
        isAfterTheError = true;
    }));
    EXPECT_FALSE(isAfterTheError);
}

TEST(ShowError, AnErrorIsShownWithItsOriginAndGoesOnAsAShownOne)
{
    const automation::Error error(E_ABORT, L"Insert", L"no such table");
    const auto messages = MessagesDuring([&] {
        try
        {
            ui::ShowAndThrow(error, L"F_NAME", MB_ICONERROR, L"Writer");
        }
        catch (const ui::ShownError& shown)
        {
            EXPECT_EQ(E_ABORT, shown.Code());
            EXPECT_EQ(L"no such table", shown.Description());
        }
    });
    EXPECT_EQ((std::vector<test_support::ShownMessage>{{L"F_NAME:no such table", L"Writer", IDI_ERROR}}),
              messages);
}

TEST(ShowError, AnErrorThatTheUserHasSeenIsNotShownAgain)
{
    const ui::ShownError seen(automation::Error(E_ABORT, L"Insert", L"no such table"));
    const auto messages =
        MessagesDuring([&] { EXPECT_THROW(ui::ShowAndThrow(seen, L"F_NAME", MB_OK), ui::ShownError); });
    EXPECT_TRUE(messages.empty());
}

} // namespace
