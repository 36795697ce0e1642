// The window with the list of changes as users see it: in each language and scale, by a screen reader, and
// with very many rows.
#include "state/SharedState.h"
#include "tests/preview/FrmChangesFixture.h"

#include <array>
#include <chrono>
#include <cmath>
#include <iostream>

#include <commctrl.h>
#include <oleacc.h>
#include <oleauto.h>
#include <wrl/client.h>

namespace
{

using namespace test_support;

using FrmChanges = FrmChangesFixture;

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
