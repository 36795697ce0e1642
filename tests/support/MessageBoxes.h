// Records the message boxes that a piece of work shows: each is recorded
// and answered; or every dialog is answered in a way of the test's own. For programs of tests that link
// tools_robot.
#pragma once

#include "tools/robot/Robot.h"

#include <atomic>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace test_support
{

struct ShownMessage
{
    std::wstring text;
    std::wstring caption;
    const wchar_t* icon = nullptr; // IDI_ERROR, IDI_EXCLAMATION, ...; null for none

    bool operator==(const ShownMessage&) const = default;
};

inline ShownMessage Seen(const tools::ShownDialog& box)
{
    ShownMessage seen{box.Message(), box.Caption()};
    for (const wchar_t* icon : {IDI_ERROR, IDI_EXCLAMATION, IDI_INFORMATION, IDI_QUESTION})
    {
        seen.icon = box.ShowsIcon(icon) ? icon : seen.icon;
    }
    return seen;
}

// Does the work while every dialog and message box that comes up is handed to answer, which must close it.
template<typename Work, typename Answer>
void AnswerDialogsDuring(Work&& work, Answer&& answer)
{
    std::atomic<bool> done{false};
    tools::Robot robot([&](tools::Robot& self) {
        while (!done)
        {
            for (const tools::ShownDialog& dialog : self.Dialogs())
            {
                answer(dialog);
                self.WaitUntilClosed(dialog);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    });
    work();
    done = true;
    robot.Finish();
}

// Does the work; the message boxes that came up, in their order, each answered by its first button.
template<typename Work>
std::vector<ShownMessage> MessagesDuring(Work&& work)
{
    std::vector<ShownMessage> seen;
    AnswerDialogsDuring(std::forward<Work>(work), [&](const tools::ShownDialog& box) {
        seen.push_back(Seen(box));
        box.Click(box.Buttons().at(0));
    });
    return seen;
}

} // namespace test_support
