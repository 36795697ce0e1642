// Fixture of the window with the list of changes, used by a robot from the confirmation on.
#pragma once

#include "resources/ids.h"
#include "tests/preview/RandomSides.h"
#include "tests/support/Drive.h"

#include <functional>

#include <windows.h>

namespace test_support
{

// Every test begins as for a user who has never seen the window.
class FrmChangesFixture : public testing::Test
{
  protected:
    FrmChangesFixture() { Forget(); }
    ~FrmChangesFixture() override { Forget(); }

    static void Forget() { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QUENLAR\\Telvix\\FrmChanges"); }

    // A run of ten new tasks from Outlook; the script has the confirmation and the window.
    using Script =
        std::function<void(Robot& robot, const ShownDialog& confirmation, const ShownDialog& changes)>;
    void Show(const Script& script, const RandomKind& kind = kRandomTasks, long transType = 1)
    {
        RandomSides sides(kind, 4);
        sides.Add(10, 10, 10);
        Drive(
            [&](Robot& robot) {
                const ShownDialog confirmation = robot.WaitForDialog();
                const ShownDialog changes = Open(robot, confirmation);
                script(robot, confirmation, changes);
                if (changes.IsOpen())
                {
                    changes.Click(IDCANCEL);
                    robot.WaitUntilClosed(changes);
                }
                confirmation.Click(IDCANCEL);
            },
            [&] { EXPECT_FALSE(sides.Run(transType)); });
    }

    static ShownDialog Open(Robot& robot, const ShownDialog& confirmation)
    {
        confirmation.Click(IDC_MESSAGE_DETAILS);
        const ShownDialog changes = robot.WaitForDialogAfter(confirmation);
        robot.WaitUntil("the first row can be read",
                        [&] { return !changes.Row(IDC_CHANGES_LIST, 0, 1).empty(); });
        return changes;
    }
};

} // namespace test_support
