// Fixture of the advanced option dialogs: showing one, and what a robot does in it.
#pragma once

#include "config/dialogs/FrmAdvanced.h"
#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

namespace ui_config_tests
{

inline constexpr int kRule1 = IDC_ADV_CONFLICT;
inline constexpr int kRange0 = IDC_ADV_RANGE;
inline constexpr int kPrior = IDC_ADVCALENDAR_PRIOR;
inline constexpr int kAfter = IDC_ADVCALENDAR_AFTER;

class AdvancedDialogs : public testing::TestWithParam<Language>
{
  protected:
    void Show(const wchar_t* kind, const std::function<void(Robot&, const ShownDialog&)>& script)
    {
        mGround.UseKind(kind);
        Drive([&](Robot& robot) { script(robot, robot.WaitForDialog()); },
              [&] { config::ShowAdvancedOptions(kind); });
    }

    static void ShowPage(const ShownDialog& dialog, int page)
    {
        const HWND tabs = dialog.Control(IDC_ADV_TABS);
        dialog.Ask(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(page)); // with its notification
    }

    static void Set(Robot& robot, const ShownDialog& dialog, int option)
    {
        dialog.Click(option);
        robot.WaitUntil("the option", [&] { return IsSet(dialog, option); });
    }

    static void Type(const ShownDialog& dialog, int box, const wchar_t* text)
    {
        for (; *text != 0; ++text)
        {
            dialog.Ask(dialog.Control(box), WM_CHAR, *text);
        }
    }

    static void Focus(Robot& robot, const ShownDialog& dialog, int id)
    {
        dialog.Ask(dialog.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Control(id)), TRUE);
        robot.WaitUntil("the focus", [&] { return dialog.Focused() == id; });
    }

    Ground mGround{GetParam()};
};

} // namespace ui_config_tests
