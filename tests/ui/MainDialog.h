// The main dialog over services that only record what it asks of them, used by a robot.
#pragma once

#include "run/FrmSynchronizeItem.h"
#include "tests/support/Drive.h"
#include "tests/ui/Interface.h"

#include <gtest/gtest.h>

#include <atomic>

namespace ui_tests
{

using test_support::Drive;
using test_support::MainThread;
using test_support::Robot;
using test_support::ShownDialog;

inline constexpr int kTaskRow = 0;
inline constexpr int kCalendarRow = 1;
inline constexpr int kContactRow = 2;

// Services that record what the dialog asked of them.
struct Recorder
{
    bool NoProfile = false;
    bool IsTrans = true;
    bool Fails = false;
    std::function<void()> DuringLoading;
    std::function<void(exchange::RunDisplay&)> DuringRun;
    std::wstring Loaded;         // names whose parameters were loaded, each followed by a blank
    std::wstring Ran;            // procedures that ran, likewise
    std::wstring ConfiguredKind; // that the configuration opens on
    std::atomic<int> Configured{0};
    std::atomic<int> Runs{0};

    run::SynchronizeServices Services()
    {
        const auto runs = [this](const wchar_t* name) {
            return [this, name](exchange::RunDisplay& display) {
                Ran += name;
                if (DuringRun)
                {
                    DuringRun(display);
                }
                ++Runs;
                return Fails;
            };
        };
        return {
            .CheckOutlookProfiles = [this] { return NoProfile; },
            .SetSynParamenter =
                [this](state::SynParameter& parameter, const std::wstring& name) {
                    Loaded += name + L" ";
                    parameter.IsTrans = IsTrans;
                    if (DuringLoading)
                    {
                        DuringLoading();
                    }
                },
            .ShowConfigure =
                [this] {
                    ConfiguredKind = state::Shared().gConfigureParameter.TransObject;
                    ++Configured;
                },
            .RunTaskSync = runs(L"tasks "),
            .RunCalendarSync = runs(L"calendar "),
            .RunContactSync = runs(L"contacts "),
        };
    }
};

// Shows the main dialog over the recorder and lets the script use it; the dialog is closed at the end.
inline void Use(Recorder& recorder, const std::function<void(Robot&, const ShownDialog&)>& script)
{
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            script(robot, dialog);
            dialog.Click(IDCANCEL);
        },
        [&] { run::ShowSynchronizeItem(recorder.Services()); });
}

inline void ChooseAndStart(const ShownDialog& dialog, int row)
{
    dialog.ChooseRow(IDC_SYNC_CATEGORY, row);
    dialog.Click(IDC_SYNC_START);
}

inline void WaitForStatus(Robot& robot, const ShownDialog& dialog, const std::wstring& text)
{
    robot.WaitUntil("the status line", [&] { return dialog.Text(IDC_SYNC_STATE) == text; });
}

} // namespace ui_tests
