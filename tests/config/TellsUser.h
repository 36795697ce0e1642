// Holds what the configuration tells the user in a message dialog against what it should say.
#pragma once

#include "resources/Strings.h"
#include "tests/support/Drive.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace config_tests
{

// The action shows one message dialog in the language, with this caption and this text.
inline void ExpectTellsUser(resources::Language language, const std::wstring& caption,
                            const std::wstring& text, const std::function<void()>& action)
{
    const test_support::WithLanguage withLanguage(language);
    test_support::Drive(
        [&](tools::Robot& robot) {
            const tools::ShownDialog dialog = robot.WaitForDialog(caption);
            EXPECT_EQ(text, dialog.Text(IDC_SHOWINFOR_DESCRIPTION));
            dialog.Click(IDOK);
        },
        action);
}

} // namespace config_tests
