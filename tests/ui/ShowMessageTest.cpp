#include "ui/ShowMessage.h"

#include "tests/support/Drive.h"
#include "tests/support/HostWindow.h"
#include "tests/ui/Interface.h"
#include "ui/Dialog.h"

#include <gtest/gtest.h>

#include <atomic>

namespace
{

using namespace ui_tests;
using test_support::Drive;
using test_support::HostWindow;
using test_support::MainThread;
using test_support::Robot;
using test_support::ShownDialog;

TEST(ShowMessage, CodeZeroWithAnEmptyMessageShowsNothing)
{
    const Interface english(Language::English);
    std::atomic<bool> done{false};
    bool shown = false;
    Drive(
        [&](Robot& robot) {
            robot.WaitUntil("the call to return", [&] {
                for (const ShownDialog& dialog : robot.Dialogs())
                {
                    shown = true;
                    dialog.Click(IDOK);
                }
                return done.load();
            });
        },
        [&] {
            ui::ShowMessage(L"Title", 0, L"");
            done = true;
        });
    EXPECT_FALSE(shown);
}

TEST(ShowMessage, ACodeWithAnEmptyMessageShowsTheErrorDialogWithTheCodeAndAnEmptyDescription)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Drive(
            [&](Robot& robot) {
                const ShownDialog dialog = robot.WaitForDialog(L"Trouble");
                EXPECT_EQ(In(language, L"Error:7", L"错误：7"), dialog.Text(IDC_SHOWERR_TITLE));
                EXPECT_EQ(L"", dialog.Text(IDC_SHOWERR_DESCRIPTION));
                EXPECT_EQ(In(language, L"&OK", L"确定(&O)"), dialog.Text(IDOK));
                dialog.Click(IDOK);
            },
            [] { ui::ShowMessage(L"Trouble", 7, L""); });
    }
}

TEST(ShowMessage, ANegativeCodeShowsItsMinusSign)
{
    const Interface english(Language::English);
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog(L"Trouble");
            EXPECT_EQ(L"Error:-1", dialog.Text(IDC_SHOWERR_TITLE));
            EXPECT_EQ(L"What happened", dialog.Text(IDC_SHOWERR_DESCRIPTION));
            dialog.Click(IDOK);
        },
        [] { ui::ShowMessage(L"Trouble", -1, L"What happened"); });
}

TEST(ShowMessage, CodeZeroShowsTheInformationDialogWithoutACodeLine)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Drive(
            [&](Robot& robot) {
                const ShownDialog dialog = robot.WaitForDialog(L"News");
                EXPECT_EQ(L"Two\r\nlines", dialog.Text(IDC_SHOWINFOR_DESCRIPTION));
                EXPECT_EQ(nullptr, dialog.Control(IDC_SHOWERR_TITLE));
                EXPECT_EQ(In(language, L"&OK", L"确定(&O)"), dialog.Text(IDOK));
                dialog.Click(IDOK);
            },
            [] { ui::ShowMessage(L"News", 0, L"Two\r\nlines"); });
    }
}

TEST(ShowMessage, ASecondInformationIsAddedToTheDialogOnTheScreenUnderTheLaterCaption)
{
    const Interface english(Language::English);
    const MainThread main;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog(L"First");
            main.Invoke([] { ui::ShowMessage(L"Second", 0, L"two"); }); // returns at once
            EXPECT_EQ(1u, robot.Dialogs().size());
            EXPECT_EQ(L"Second", dialog.Caption());
            EXPECT_EQ(L"one\r\ntwo", dialog.Text(IDC_SHOWINFOR_DESCRIPTION));
            dialog.Click(IDOK);
        },
        [] { ui::ShowMessage(L"First", 0, L"one"); });
}

TEST(ShowMessage, ASecondErrorReplacesTheCodeAndIsAddedToTheDescription)
{
    const Interface english(Language::English);
    const MainThread main;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog(L"First");
            main.Invoke([] { ui::ShowMessage(L"Second", 22, L"two"); });
            EXPECT_EQ(1u, robot.Dialogs().size());
            EXPECT_EQ(L"Second", dialog.Caption());
            EXPECT_EQ(L"Error:22", dialog.Text(IDC_SHOWERR_TITLE));
            EXPECT_EQ(L"one\r\ntwo", dialog.Text(IDC_SHOWERR_DESCRIPTION));
            dialog.Click(IDOK);
        },
        [] { ui::ShowMessage(L"First", 1, L"one"); });
}

TEST(ShowMessage, AnErrorWhileAnInformationIsShownHasADialogOfItsOwn)
{
    const Interface english(Language::English);
    const MainThread main;
    Drive(
        [&](Robot& robot) {
            const ShownDialog information = robot.WaitForDialog(L"News");
            main.Post([] { ui::ShowMessage(L"Trouble", 5, L"bad"); });
            const ShownDialog error = robot.WaitForDialog(L"Trouble");
            EXPECT_FALSE(information.TakesInput());
            EXPECT_EQ(L"one", information.Text(IDC_SHOWINFOR_DESCRIPTION));
            error.Click(IDOK);
            robot.WaitUntil("the information to take input again", [&] { return information.TakesInput(); });
            information.Click(IDOK);
        },
        [] { ui::ShowMessage(L"News", 0, L"one"); });
}

TEST(ShowMessage, AfterClosingTheNextMessageStartsAfresh)
{
    const Interface english(Language::English);
    for (const wchar_t* const text : {L"one", L"two"})
    {
        Drive(
            [&](Robot& robot) {
                const ShownDialog dialog = robot.WaitForDialog(L"News");
                EXPECT_EQ(text, dialog.Text(IDC_SHOWINFOR_DESCRIPTION));
                dialog.Click(IDOK);
            },
            [&] { ui::ShowMessage(L"News", 0, text); });
    }
}

TEST(ShowMessage, TheDialogsCloseByTheKeyboardAlone)
{
    const Interface english(Language::English);
    const std::function<void(const ShownDialog&)> waysOut[] = {
        [](const ShownDialog& dialog) { dialog.Press(VK_RETURN); },
        [](const ShownDialog& dialog) { dialog.Press(VK_ESCAPE); },
        [](const ShownDialog& dialog) { dialog.PressAlt(L'o'); },
        [](const ShownDialog& dialog) { dialog.Close(); },
    };
    for (const long code : {0L, 3L})
    {
        for (const auto& wayOut : waysOut)
        {
            Drive(
                [&](Robot& robot) {
                    const ShownDialog dialog = robot.WaitForDialog(L"Text");
                    EXPECT_EQ(IDOK, dialog.Focused());
                    wayOut(dialog);
                    robot.WaitUntilClosed(dialog);
                },
                [&] { ui::ShowMessage(L"Text", code, L"Read this"); });
        }
    }
}

TEST(ShowMessage, TheThreadsOtherWindowsTakeNoInputMeanwhileAndDoAfterwards)
{
    const Interface english(Language::English);
    const HostWindow host(L"Host", 300, 200);
    SetActiveWindow(host.Handle());
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog(L"News");
            EXPECT_FALSE(IsWindowEnabled(host.Handle()));
            EXPECT_EQ(nullptr, GetWindow(dialog.Handle(), GW_OWNER));
            dialog.Click(IDOK);
        },
        [] { ui::ShowMessage(L"News", 0, L"one"); });
    EXPECT_TRUE(IsWindowEnabled(host.Handle()));
    EXPECT_EQ(host.Handle(), GetActiveWindow());
}

struct Fit
{
    int height = 0; // of the dialog
    bool scrolls = false;
    bool showsAll = false;
};

Fit FitOf(const ShownDialog& dialog, int description)
{
    const HWND box = dialog.Control(description);
    RECT place = {};
    GetWindowRect(dialog.Handle(), &place);
    RECT room = {};
    GetClientRect(box, &room);
    const HDC context = GetDC(box);
    const HGDIOBJ before = SelectObject(context, reinterpret_cast<HFONT>(dialog.Ask(box, WM_GETFONT)));
    TEXTMETRICW metrics = {};
    GetTextMetricsW(context, &metrics);
    SelectObject(context, before);
    ReleaseDC(box, context);
    return {static_cast<int>(place.bottom - place.top), (GetWindowLongW(box, GWL_STYLE) & WS_VSCROLL) != 0,
            dialog.Ask(box, EM_GETLINECOUNT) * metrics.tmHeight <= room.bottom};
}

TEST(MessageDialogs, FitTheirTextAndScrollOnlyWhenItIsVeryLong)
{
    const Interface english(Language::English);
    for (const long code : {0L, 5L})
    {
        std::vector<Fit> fits;
        for (const int lines : {1, 10, 60})
        {
            std::wstring text = L"one line";
            for (int line = 1; line < lines; ++line)
            {
                text += L"\r\none line more";
            }
            Drive(
                [&](Robot& robot) {
                    const ShownDialog dialog = robot.WaitForDialog();
                    fits.push_back(
                        FitOf(dialog, code != 0 ? IDC_SHOWERR_DESCRIPTION : IDC_SHOWINFOR_DESCRIPTION));
                    dialog.Click(IDOK);
                },
                [&] { ui::ShowMessage(L"Fit", code, text); });
        }
        EXPECT_TRUE(fits[0].showsAll && fits[1].showsAll);
        EXPECT_FALSE(fits[0].scrolls || fits[1].scrolls);
        EXPECT_TRUE(fits[2].scrolls);
        EXPECT_LT(fits[0].height, fits[1].height);
        EXPECT_LT(fits[1].height, fits[2].height);
        EXPECT_LT(fits[2].height, 800);
    }
}

TEST(MessageDialogs, AMessageThatIsAddedMakesTheDialogLarger)
{
    const Interface english(Language::English);
    const MainThread main;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog(L"First");
            const Fit before = FitOf(dialog, IDC_SHOWINFOR_DESCRIPTION);
            main.Invoke([] { ui::ShowMessage(L"First", 0, L"two\r\nthree\r\nfour\r\nfive\r\nsix"); });
            const Fit after = FitOf(dialog, IDC_SHOWINFOR_DESCRIPTION);
            EXPECT_TRUE(after.showsAll);
            EXPECT_GT(after.height, before.height);
            dialog.Click(IDOK);
        },
        [] { ui::ShowMessage(L"First", 0, L"one"); });
}

TEST(MessageDialogs, AreReadableInBothLanguagesAtEveryScale)
{
    for (const Language language : kLanguages)
    {
        for (const double scale : {1.0, 1.5, 2.0})
        {
            for (const long code : {0L, -2147467259L})
            {
                const Interface with(language, scale);
                Drive(
                    [&](Robot& robot) {
                        const ShownDialog dialog = robot.WaitForDialog();
                        test_support::ExpectReadable(dialog);
                        if (scale == 1)
                        {
                            test_support::Photograph(dialog, (code != 0 ? "FrmShowErr" : "FrmShowInfor") +
                                                                 Suffix(language));
                        }
                        dialog.Click(IDOK);
                    },
                    [&] {
                        const std::wstring text = In(
                            language,
                            L"You have not selected the synchronise folder .\r\n\r\nPlease select an "
                            L"effective folder for synchronization.",
                            L"没有选择同步的目录\r\n\r\n请选择一个有效的目录作为的同步对象,然后再进行同步。");
                        ui::ShowMessage(resources::String(code != 0 ? IDS_ERROR : IDS_MESSAGE), code, text);
                    });
            }
        }
    }
}

} // namespace
