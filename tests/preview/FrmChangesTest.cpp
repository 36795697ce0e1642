// The rows of the window with the list of changes: their fields, check marks, search and order.
#include "automation/Text.h"
#include "tests/preview/FrmChangesFixture.h"

#include <commctrl.h>

namespace
{

using namespace test_support;

using FrmChanges = FrmChangesFixture;

void WaitForCount(Robot& robot, const ShownDialog& changes, const std::wstring& text)
{
    robot.WaitUntil("the count line reads " + automation::ToUtf8(text),
                    [&] { return changes.Text(IDC_CHANGES_COUNT) == text; });
}

TEST_F(FrmChanges, ListsEveryChangeAndTheFieldsOfTheFirstOne)
{
    Show([](Robot& robot, const ShownDialog&, const ShownDialog& changes) {
        EXPECT_EQ(20, changes.Rows(IDC_CHANGES_LIST));
        EXPECT_EQ(L"Add to the sales system", changes.Row(IDC_CHANGES_LIST, 0, 0));
        EXPECT_EQ(L"Subject 11", changes.Row(IDC_CHANGES_LIST, 0, 1));
        EXPECT_EQ(L"Phone", changes.Row(IDC_CHANGES_LIST, 0, 2));
        EXPECT_EQ(L"20 of 20 changes shown, 20 will be written.", changes.Text(IDC_CHANGES_COUNT));
        robot.WaitUntil("the fields are shown", [&] { return changes.Rows(IDC_CHANGES_FIELDS) > 3; });
        EXPECT_EQ(L"\x25CF Subject", changes.Row(IDC_CHANGES_FIELDS, 0, 0));
        EXPECT_EQ(L"", changes.Row(IDC_CHANGES_FIELDS, 0, 1));
        EXPECT_EQ(L"Subject 11", changes.Row(IDC_CHANGES_FIELDS, 0, 2));
    });
}

TEST_F(FrmChanges, TheSpaceBarTakesACheckMarkAwayAndTheCountsOfTheConfirmationFollow)
{
    Show([](Robot& robot, const ShownDialog& confirmation, const ShownDialog& changes) {
        EXPECT_EQ(IDC_CHANGES_LIST, changes.Focused());
        changes.Press(VK_SPACE);
        WaitForCount(robot, changes, L"20 of 20 changes shown, 19 will be written.");
        changes.Press(VK_ESCAPE);
        robot.WaitUntilClosed(changes);
        robot.WaitUntil("the count follows",
                        [&] { return confirmation.Text(IDC_MESSAGE_TO_SYN_NEW) == L"Addtions:9"; });
        EXPECT_EQ(L"be modified:10", confirmation.Text(IDC_MESSAGE_TO_SYN_MODIFY));
        const ShownDialog again = Open(robot, confirmation);
        WaitForCount(robot, again, L"20 of 20 changes shown, 19 will be written.");
        again.Press(VK_SPACE);
        WaitForCount(robot, again, L"20 of 20 changes shown, 20 will be written.");
        again.Click(IDCANCEL);
        robot.WaitUntilClosed(again);
        robot.WaitUntil("the count is back",
                        [&] { return confirmation.Text(IDC_MESSAGE_TO_SYN_NEW) == L"Addtions:10"; });
    });
}

LPARAM PlaceOfMark(const ShownDialog& changes, int row)
{
    RECT place = {};
    place.left = LVIR_LABEL;
    changes.Ask(changes.Control(IDC_CHANGES_LIST), LVM_GETITEMRECT, static_cast<WPARAM>(row),
                reinterpret_cast<LPARAM>(&place));
    return MAKELPARAM(place.left - 8, (place.top + place.bottom) / 2);
}

TEST_F(FrmChanges, AClickOnACheckBoxTogglesItsRowAlone)
{
    Show([](Robot& robot, const ShownDialog&, const ShownDialog& changes) {
        const HWND list = changes.Control(IDC_CHANGES_LIST);
        PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, PlaceOfMark(changes, 2));
        PostMessageW(list, WM_LBUTTONUP, 0, PlaceOfMark(changes, 2));
        WaitForCount(robot, changes, L"20 of 20 changes shown, 19 will be written.");
        const auto stateOf = [&](int row) {
            return changes.Ask(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK) >> 12;
        };
        EXPECT_EQ(2, stateOf(1));
        EXPECT_EQ(1, stateOf(2));
    });
}

TEST_F(FrmChanges, CheckAllAndUncheckAllWorkOnTheRowsThatTheSearchHasLeft)
{
    Show([](Robot& robot, const ShownDialog&, const ShownDialog& changes) {
        SetWindowTextW(changes.Control(IDC_CHANGES_SEARCH), L"Subject 12");
        WaitForCount(robot, changes, L"1 of 20 changes shown, 20 will be written.");
        changes.Click(IDC_CHANGES_UNCHECK);
        WaitForCount(robot, changes, L"1 of 20 changes shown, 19 will be written.");
        SetWindowTextW(changes.Control(IDC_CHANGES_SEARCH), L"");
        WaitForCount(robot, changes, L"20 of 20 changes shown, 19 will be written.");
        changes.Click(IDC_CHANGES_CHECK);
        WaitForCount(robot, changes, L"20 of 20 changes shown, 20 will be written.");
    });
}

void Choose(const ShownDialog& changes, int box, int row)
{
    const HWND window = changes.Control(box);
    changes.Ask(window, CB_SETCURSEL, static_cast<WPARAM>(row));
    PostMessageW(changes.Handle(), WM_COMMAND, MAKEWPARAM(box, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(window));
}

TEST_F(FrmChanges, SortsByTheChosenOrderAndRemembersItWithSizeAndWidths)
{
    constexpr int kNameDescending = 4;
    SIZE before = {};
    Show([&](Robot& robot, const ShownDialog& confirmation, const ShownDialog& changes) {
        Choose(changes, IDC_CHANGES_ORDER, kNameDescending);
        robot.WaitUntil("sorted", [&] { return changes.Row(IDC_CHANGES_LIST, 0, 1) == L"Subject 30"; });
        RECT place = {};
        GetWindowRect(changes.Handle(), &place);
        before = {place.right - place.left + 60, place.bottom - place.top + 40};
        SetWindowPos(changes.Handle(), nullptr, 0, 0, before.cx, before.cy, SWP_NOMOVE | SWP_NOZORDER);
        changes.Ask(changes.Control(IDC_CHANGES_LIST), LVM_SETCOLUMNWIDTH, 1, 77);
        changes.Click(IDCANCEL);
        robot.WaitUntilClosed(changes);
        const ShownDialog again = Open(robot, confirmation);
        robot.WaitUntil("sorted again", [&] { return again.Row(IDC_CHANGES_LIST, 0, 1) == L"Subject 30"; });
        GetWindowRect(again.Handle(), &place);
        EXPECT_EQ(before.cx, place.right - place.left);
        EXPECT_EQ(before.cy, place.bottom - place.top);
        EXPECT_EQ(77, again.Ask(again.Control(IDC_CHANGES_LIST), LVM_GETCOLUMNWIDTH, 1));
        again.Click(IDCANCEL);
        robot.WaitUntilClosed(again);
    });
}

} // namespace
