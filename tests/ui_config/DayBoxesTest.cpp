// The days of the calendar's range: what the two boxes show, take and store.
#include "tests/ui_config/AdvancedDialogs.h"

namespace
{

using namespace ui_config_tests;

class DayBoxes : public AdvancedDialogs
{
};

INSTANTIATE_TEST_SUITE_P(, DayBoxes, testing::ValuesIn(ui_tests::kLanguages));

TEST_P(DayBoxes, CalendarDaysAreFilledCrosswiseAndOkExchangesThem)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        EXPECT_TRUE(IsSet(dialog, kRange0 + 2));
        EXPECT_TRUE(dialog.IsEnabled(kPrior));
        EXPECT_EQ(L"3", dialog.Text(kPrior));
        EXPECT_EQ(L"7", dialog.Text(kAfter));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|3|7|0", mGround.Options(L"Calendar"));
    EXPECT_EQ(3, mGround.Record().CalendarPrior);
    EXPECT_EQ(7, mGround.Record().CalendarAfter);
}

TEST_P(DayBoxes, SwitchingToTheRangeFromAnotherOptionFillsTheDaysCrosswiseAgain)
{
    Show(L"Calendar", [&](Robot& robot, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        Set(robot, dialog, kRange0 + 1);
        robot.WaitUntil("disabled boxes", [&] { return !dialog.IsEnabled(kPrior); });
        EXPECT_FALSE(dialog.IsEnabled(kAfter));
        Set(robot, dialog, kRange0 + 2);
        robot.WaitUntil("enabled boxes",
                        [&] { return dialog.IsEnabled(kPrior) && dialog.IsEnabled(kAfter); });
        EXPECT_EQ(L"3", dialog.Text(kPrior));
        EXPECT_EQ(L"7", dialog.Text(kAfter));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|3|7|0", mGround.Options(L"Calendar"));
}

TEST_P(DayBoxes, CalendarOkWithAnotherRangeLeavesTheStoredDaysAndForgetsThoseInMemory)
{
    for (const int range : {0, 1})
    {
        mGround.SetRow(L"Calendar", L"CalendarTransItem=2");
        Show(L"Calendar", [&](Robot& robot, const ShownDialog& dialog) {
            ShowPage(dialog, 1);
            Set(robot, dialog, kRange0 + range);
            dialog.Click(IDOK);
        });
        EXPECT_EQ(L"4|" + std::to_wstring(range) + L"|7|3|0", mGround.Options(L"Calendar"));
        EXPECT_EQ(0, mGround.Record().CalendarPrior);
        EXPECT_EQ(0, mGround.Record().CalendarAfter);
        EXPECT_EQ(range, mGround.Record().CalendarTransItem);
    }
}

TEST_P(DayBoxes, LettersTypedIntoADayBoxDoNotAppear)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        for (const int box : {kPrior, kAfter})
        {
            dialog.Ask(dialog.Control(box), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
            Type(dialog, box, L"1a-2 .xé3\x0010");
            EXPECT_EQ(L"123", dialog.Text(box));
            Type(dialog, box, L"\b");
            EXPECT_EQ(L"12", dialog.Text(box));
        }
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|12|12|0", mGround.Options(L"Calendar"));
}

TEST_P(DayBoxes, AnEmptyDayBoxIsZero)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        dialog.Ask(dialog.Control(kPrior), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|0|7|0", mGround.Options(L"Calendar"));
}

TEST_P(DayBoxes, EnterInTheFirstDayBoxMovesOnAndInTheSecondActsOnOk)
{
    Show(L"Calendar", [&](Robot& robot, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        Focus(robot, dialog, kPrior);
        dialog.Press(VK_RETURN);
        robot.WaitUntil("focus on the second box", [&] { return dialog.Focused() == kAfter; });
        EXPECT_TRUE(dialog.TakesInput());
        dialog.Press(VK_RETURN);
        robot.WaitUntilClosed(dialog);
    });
    EXPECT_EQ(1, mGround.TheHost.Failures().CallsOf(L"Update"));
}

TEST_P(DayBoxes, DaysThatAreNullAreZeroAndKeepTheRange)
{
    mGround.SetRow(L"Calendar", L"CalendarPrior=NULL,CalendarAfter=NULL");
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        EXPECT_TRUE(IsSet(dialog, kRange0 + 2));
        EXPECT_EQ(L"0", dialog.Text(kPrior));
        EXPECT_EQ(L"0", dialog.Text(kAfter));
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|0|0|0", mGround.Options(L"Calendar"));
}

TEST_P(DayBoxes, ChoosingTheRangeShowsTheDaysOfTheRecordNotThoseOfTheColumns)
{
    mGround.SetRow(L"Calendar", L"CalendarTransItem=1"); // the columns keep 7 and 3
    Show(L"Calendar", [&](Robot& robot, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        EXPECT_FALSE(dialog.IsEnabled(IDC_ADVCALENDAR_PRIOR_LABEL)); // grey, as its box
        EXPECT_FALSE(dialog.IsEnabled(IDC_ADVCALENDAR_AFTER_LABEL));
        Set(robot, dialog, kRange0 + 2);
        robot.WaitUntil("enabled boxes", [&] { return dialog.IsEnabled(kAfter); });
        EXPECT_TRUE(dialog.IsEnabled(IDC_ADVCALENDAR_PRIOR_LABEL));
        EXPECT_TRUE(dialog.IsEnabled(IDC_ADVCALENDAR_AFTER_LABEL));
        EXPECT_EQ(L"0", dialog.Text(kPrior));
        EXPECT_EQ(L"0", dialog.Text(kAfter));
        dialog.Close();
    });
}

TEST_P(DayBoxes, ADayBoxTakesEveryNumberThatItsColumnHolds)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        const std::pair<const wchar_t*, const wchar_t*> typed[] = {
            {L"32767", L"32767"}, {L"32768", L"3276"}, {L"99999", L"9999"}, {L"123456", L"12345"}};
        for (const auto& [keys, shown] : typed)
        {
            dialog.Ask(dialog.Control(kPrior), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
            Type(dialog, kPrior, keys);
            EXPECT_EQ(shown, dialog.Text(kPrior));
        }
        dialog.Click(IDOK);
    });
    EXPECT_EQ(L"4|2|12345|7|0", mGround.Options(L"Calendar"));
}

void CopyToClipboard(const std::wstring& text)
{
    const size_t size = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    memcpy(GlobalLock(memory), text.c_str(), size);
    GlobalUnlock(memory);
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

TEST_P(DayBoxes, PastingIntoADayBoxTakesTheDigits)
{
    Show(L"Calendar", [&](Robot&, const ShownDialog& dialog) {
        ShowPage(dialog, 1);
        const HWND box = dialog.Control(kPrior);
        CopyToClipboard(L"1 a2-3x");
        dialog.Ask(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
        dialog.Ask(box, WM_PASTE);
        EXPECT_EQ(L"123", dialog.Text(kPrior));
        Type(dialog, kPrior, L"\x0016"); // Ctrl+V, behind them; 123123 would not fit
        EXPECT_EQ(L"12312", dialog.Text(kPrior));
        dialog.Ask(box, EM_SETSEL, 0, -1);
        dialog.Ask(box, WM_PASTE);
        EXPECT_EQ(L"123", dialog.Text(kPrior));
        CopyToClipboard(L"no digit");
        dialog.Ask(box, WM_PASTE);
        EXPECT_EQ(L"123", dialog.Text(kPrior));
        dialog.Close();
    });
}

} // namespace
