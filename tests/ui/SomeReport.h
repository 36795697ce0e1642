// A report with some of everything, and its dialog used by a robot.
#pragma once

#include "exchange/Report.h"
#include "report/FrmReport.h"
#include "tests/ui/MainDialog.h"

namespace ui_tests
{

using exchange::Change;
using exchange::Report;
using state::Cause;

// Two records that are written, one of them cut, and two that are not; a right is missing.
inline Report SomeReport()
{
    Report report;
    const state::CollectsRemarks collects(report);
    const auto record = [&](Change change, const wchar_t* name, std::optional<state::Remark> remark) {
        report.Record(
            change, [=] { return std::wstring(name); },
            [&] {
                if (remark)
                {
                    state::Tell(*remark);
                }
            });
    };
    record(Change::AddToHost, L"Li Na", {});
    record(Change::AddToHost, L"Åsa Qvist",
           state::Remark{.Why = Cause::TextCut, .Field = L"F_NICKNAME", .Length = 300, .Kept = 50});
    record(Change::AddToHost, L"Maria Rossi",
           state::Remark{.Why = Cause::Failed,
                         .Field = L"Insert",
                         .Words = L"Disk full\r\nwhile writing",
                         .Code = E_FAIL});
    record(Change::ChangeInOutlook, L"王芳", state::Remark{.Why = Cause::Vanished});
    state::Tell({.Why = Cause::RightMissing,
                 .Words = resources::Choose(L"你没有添加单位的权限!",
                                            L"You are not permit to add account record(s)!")});
    report.CountOtherItems(2);
    return report;
}

inline report::FinishedRun FinishedRun(Report data)
{
    return {.Category = resources::String(IDS_CATEGORY_CONTACT),
            .Outcome = resources::String(IDS_RUN_SUCCEEDED),
            .EndedAt = {2026, 11, 6, 21, 21, 40, 5, 0},
            .Report = std::move(data)};
}

// Shows the dialog and lets the script use it; it is closed at the end.
inline void Use(const report::FinishedRun& run, const std::function<void(Robot&, const ShownDialog&)>& script)
{
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            script(robot, dialog);
            dialog.Click(IDCANCEL);
        },
        [&] { report::ShowReport(run); });
}

} // namespace ui_tests
