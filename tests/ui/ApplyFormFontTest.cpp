#include "ui/ApplyFormFont.h"

#include "state/SharedState.h"
#include "tests/support/Drive.h"
#include "tests/support/ProbeDialog.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace
{

using test_support::Drive;
using test_support::ProbeDialog;
using test_support::Robot;
using test_support::ShownDialog;

LOGFONTW FontOf(const ShownDialog& dialog, HWND window)
{
    LOGFONTW font = {};
    GetObjectW(reinterpret_cast<HFONT>(dialog.Ask(window, WM_GETFONT)), sizeof(font), &font);
    return font;
}

int PixelsOf(long points)
{
    const HDC screen = GetDC(nullptr);
    const int pixels = MulDiv(static_cast<int>(points), GetDeviceCaps(screen, LOGPIXELSY), 72);
    ReleaseDC(nullptr, screen);
    return pixels;
}

TEST(ApplyFormFont, EveryControlOfADialogHasTheFontOfTheSharedState)
{
    state::Shared().gFontName = L"Tahoma";
    state::Shared().gFontSize = 14;
    ProbeDialog probe;
    Drive(
        [&](Robot& robot) {
            const ShownDialog dialog = robot.WaitForDialog();
            for (const int id : {IDOK, IDC_SHOWERR_TITLE, IDC_SHOWERR_DESCRIPTION})
            {
                const LOGFONTW font = FontOf(dialog, dialog.Control(id));
                EXPECT_STREQ(L"Tahoma", font.lfFaceName);
                EXPECT_EQ(PixelsOf(14), abs(font.lfHeight));
            }
            dialog.Close();
        },
        [&] { probe.ShowModal(); });
    state::Shared() = {};
}

TEST(ApplyFormFont, ALargerFontMakesALargerDialog)
{
    int heights[2] = {};
    for (const int i : {0, 1})
    {
        state::Shared().gFontName = L"Arial";
        state::Shared().gFontSize = i == 0 ? 8 : 16;
        ProbeDialog probe;
        Drive(
            [&](Robot& robot) {
                const ShownDialog dialog = robot.WaitForDialog();
                RECT client = {};
                GetClientRect(dialog.Handle(), &client);
                heights[i] = static_cast<int>(client.bottom);
                dialog.Close();
            },
            [&] { probe.ShowModal(); });
    }
    EXPECT_GT(heights[1], heights[0] * 3 / 2);
    state::Shared() = {};
}

TEST(ApplyFormFont, ANameOrSizeThatIsNotUsableGivesThePlatformsFont)
{
    state::Shared() = {};
    EXPECT_EQ(L"MS Shell Dlg", ui::FontOfForms().Name);
    EXPECT_EQ(8, ui::FontOfForms().Size);
    state::Shared().gFontSize = -3;
    EXPECT_EQ(8, ui::FontOfForms().Size);
    state::Shared().gFontName.assign(100, L'x');
    EXPECT_EQ(static_cast<size_t>(LF_FACESIZE - 1), ui::FontOfForms().Name.size());
    state::Shared() = {};
}

TEST(ApplyFormFont, BytesThatAreNoDialogTemplateAreRefused)
{
    const std::vector<std::byte> zeros(64);
    EXPECT_THROW(ui::ApplyFormFont(zeros, {L"Arial", 8}), std::invalid_argument);
    EXPECT_THROW(ui::ApplyFormFont(std::span(zeros).first(3), {L"Arial", 8}), std::invalid_argument);
}

} // namespace
