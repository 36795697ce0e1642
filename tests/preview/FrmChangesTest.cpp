// The window with the list of changes, used by a robot from the confirmation on.
#include "preview/FrmChanges.h"

#include "automation/Text.h"
#include "preview/WindowSettings.h"
#include "resources/ids.h"
#include "state/SharedState.h"
#include "tests/preview/RandomSides.h"
#include "tests/support/Drive.h"
#include "tests/support/MessageBoxes.h"

#include <array>
#include <cmath>
#include <iostream>

#include <commctrl.h>
#include <oleacc.h>
#include <oleauto.h>
#include <wrl/client.h>

namespace
{

using namespace test_support;

// Every test begins as for a user who has never seen the window.
class FrmChanges : public testing::Test
{
  protected:
    FrmChanges() { Forget(); }
    ~FrmChanges() override { Forget(); }

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

TEST_F(FrmChanges, IsReadableInBothLanguagesAtEveryScale)
{
    for (const auto language : {resources::Language::English, resources::Language::Chinese})
    {
        const bool isChinese = language == resources::Language::Chinese;
        for (const double scale : {1.0, 1.5, 2.0})
        {
            Forget();
            RandomSides sides(kRandomContacts, 4);
            sides.Add(4, 4, 4);
            const WithLanguage with(language);
            state::Shared().gFontName = isChinese ? L"宋体" : L"Arial";
            state::Shared().gFontSize = std::lround((isChinese ? 9 : 8) * scale);
            Drive(
                [&](Robot& robot) {
                    const ShownDialog confirmation = robot.WaitForDialog();
                    ExpectReadable(confirmation);
                    const ShownDialog changes = Open(robot, confirmation);
                    robot.WaitUntil("the fields are shown",
                                    [&] { return changes.Rows(IDC_CHANGES_FIELDS) > 0; });
                    ExpectReadable(changes);
                    Photograph(changes, std::string("FrmChanges-") + (isChinese ? "zh-" : "en-") +
                                            std::to_string(static_cast<int>(scale * 100)));
                    changes.Click(IDCANCEL);
                    robot.WaitUntilClosed(changes);
                    confirmation.Click(IDCANCEL);
                },
                [&] { EXPECT_FALSE(sides.Run(3)); });
        }
    }
}

struct Accessible
{
    std::wstring Name;
    long Role = 0;
};

// As a screen reader asks for it.
Accessible AccessibleOf(HWND window)
{
    Microsoft::WRL::ComPtr<IAccessible> object;
    const HRESULT found =
        AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                   reinterpret_cast<void**>(object.GetAddressOf()));
    EXPECT_EQ(S_OK, found);
    Accessible result;
    if (FAILED(found) || object == nullptr)
    {
        return result;
    }
    VARIANT self = {};
    self.vt = VT_I4;
    BSTR name = nullptr;
    if (object->get_accName(self, &name) == S_OK)
    {
        result.Name.assign(name, SysStringLen(name));
        SysFreeString(name);
    }
    VARIANT role = {};
    if (object->get_accRole(self, &role) == S_OK && role.vt == VT_I4)
    {
        result.Role = role.lVal;
    }
    return result;
}

TEST_F(FrmChanges, TellsAScreenReaderTheNamesAndRolesOfItsControls)
{
    Show([](Robot&, const ShownDialog&, const ShownDialog& changes) {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        EXPECT_EQ(L"Changes", AccessibleOf(changes.Control(IDC_CHANGES_LIST)).Name);
        EXPECT_EQ(L"Fields", AccessibleOf(changes.Control(IDC_CHANGES_FIELDS)).Name);
        struct Expected
        {
            int Id;
            const wchar_t* ClassName; // by which oleacc knows the role
            long Role;
        };
        constexpr Expected kControls[] = {
            {IDC_CHANGES_CHECK, L"Button", ROLE_SYSTEM_PUSHBUTTON},
            {IDC_CHANGES_UNCHECK, L"Button", ROLE_SYSTEM_PUSHBUTTON},
            {IDC_CHANGES_SAVE, L"Button", ROLE_SYSTEM_PUSHBUTTON},
            {IDCANCEL, L"Button", ROLE_SYSTEM_PUSHBUTTON},
            {IDC_CHANGES_COUNT, L"Static", ROLE_SYSTEM_STATICTEXT},
            {IDC_CHANGES_LIST, L"SysListView32", ROLE_SYSTEM_LIST},
        };
        for (const Expected& expected : kControls)
        {
            const HWND control = changes.Control(expected.Id);
            const Accessible accessible = AccessibleOf(control);
            EXPECT_NE(L"", accessible.Name) << expected.Id;
            std::array<wchar_t, 32> className = {};
            GetClassNameW(control, className.data(), static_cast<int>(className.size()));
            EXPECT_STREQ(expected.ClassName, className.data());
            // Wine knows no role for these classes.
            EXPECT_TRUE(accessible.Role == expected.Role || accessible.Role == ROLE_SYSTEM_CLIENT)
                << expected.Id << ": " << accessible.Role;
        }
        EXPECT_EQ(L"Changes - Contact", AccessibleOf(changes.Handle()).Name);
        CoUninitialize();
    });
}

// Milliseconds from the click to the painted window; the last row can be reached.
double TimeToOpen(long records)
{
    constexpr long kRows = 100;
    RandomSides sides(kRandomTasks, 2);
    sides.Add(kRows, 0, 0);
    exchange::Run& run = sides.Collect(2);
    run.Pending = {};
    for (long i = 0; i < records; ++i)
    {
        run.Pending.NewHostRecords.Add(i % kRows + 1, 0);
    }
    double milliseconds = 0;
    Drive(
        [&](Robot& robot) {
            const ShownDialog confirmation = robot.WaitForDialog();
            const auto start = std::chrono::steady_clock::now();
            confirmation.Click(IDC_MESSAGE_DETAILS);
            const ShownDialog changes = robot.WaitForDialogAfter(confirmation);
            changes.Ask(changes.Handle(), WM_NULL);
            milliseconds =
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
            EXPECT_EQ(records, changes.Rows(IDC_CHANGES_LIST));
            const auto last = static_cast<int>(records) - 1;
            changes.Ask(changes.Control(IDC_CHANGES_LIST), LVM_ENSUREVISIBLE, static_cast<WPARAM>(last),
                        FALSE);
            robot.WaitUntil("the last row can be read",
                            [&] { return !changes.Row(IDC_CHANGES_LIST, last, 1).empty(); });
            changes.Click(IDCANCEL);
            robot.WaitUntilClosed(changes);
            confirmation.Click(IDCANCEL);
        },
        [&] { sides.Confirm(); });
    return milliseconds;
}

TEST_F(FrmChanges, ReachesTheLastOfFiftyThousandChanges)
{
    constexpr long kRecords = 50000;
    const double few = TimeToOpen(100);
    const double many = TimeToOpen(kRecords);
    std::cout << "Figure: the list of changes opened in " << std::lround(few) << " ms with 100 records, in "
              << std::lround(many) << " ms with " << kRecords << '\n';
}

} // namespace
