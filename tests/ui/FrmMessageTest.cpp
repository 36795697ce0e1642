#include "run/FrmMessage.h"

#include "tests/support/Drive.h"
#include "tests/ui/Interface.h"

#include <gtest/gtest.h>

namespace
{

using namespace ui_tests;
using run::ConfirmHeading;
using run::ConfirmSection;
using test_support::Drive;
using test_support::Robot;
using test_support::ShownDialog;

constexpr auto kToOutlook = ConfirmSection::QuenlarToOutlook;
constexpr auto kToQuenlar = ConfirmSection::OutlookToQuenlar;

// 1 and 2 towards Outlook, 3 and 4 towards the host.
data::Changes SomeChanges()
{
    data::Changes changes;
    changes.NewHostRecords.Add(1L, 0);
    for (long i = 0; i < 2; ++i)
    {
        changes.ChangedHostRecords.Add(i, 1);
    }
    for (const wchar_t* const item : {L"1", L"2", L"3"})
    {
        changes.NewOutlookItems.Add(std::wstring(item), 0);
    }
    for (const wchar_t* const item : {L"4", L"5", L"6", L"7"})
    {
        changes.ChangedOutlookItems.Add(std::wstring(item), 0);
    }
    return changes;
}

// Shows the dialog for a direction and lets the script use it.
void Confirm(long transType, const data::Changes& changes, const std::wstring& category,
             const std::function<void(Robot&, const ShownDialog&)>& script)
{
    state::Shared().gSynParameter.TransType = transType;
    Drive([&](Robot& robot) { script(robot, robot.WaitForDialog()); },
          [&] { run::ShowConfirmation(category, changes); });
}

TEST(ConfirmHeading, TheOneWayHeadingTowardsOutlookHasASmallOutlookAndTheTwoWayOneACapital)
{
    const Interface english(Language::English);
    EXPECT_EQ(L"Below are update messages from our system to outlook Task",
              ConfirmHeading(2, kToOutlook, L"Task"));
    EXPECT_EQ(L"Below are update messages from our system to Outlook Task",
              ConfirmHeading(3, kToOutlook, L"Task"));
}

TEST(ConfirmHeading, TheHeadingTowardsTheHostIsTheSameOneWayAndTwoWayInEnglish)
{
    const Interface english(Language::English);
    for (const long transType : {1L, 3L})
    {
        EXPECT_EQ(L"Below are update messages from Outlook to our system Contact",
                  ConfirmHeading(transType, kToQuenlar, L"Contact"));
    }
}

TEST(ConfirmHeading, TheFourChineseHeadingsDiffer)
{
    const Interface chinese(Language::Chinese);
    EXPECT_EQ(L"以下是本系统到Outlook中,任务记录的更新信息:", ConfirmHeading(3, kToOutlook, L"任务"));
    EXPECT_EQ(L"以下是从Outlook到Quenlar中,任务记录的更新信息:", ConfirmHeading(3, kToQuenlar, L"任务"));
    EXPECT_EQ(L"以下是从本系统到Outlook任务记录的更新信息:", ConfirmHeading(2, kToOutlook, L"任务"));
    EXPECT_EQ(L"以下是从Outlook到本系统任务记录的更新信息:", ConfirmHeading(1, kToQuenlar, L"任务"));
}

TEST(ConfirmHeading, ASectionThatTheDirectionDoesNotShowHasNone)
{
    const Interface english(Language::English);
    EXPECT_EQ(std::nullopt, ConfirmHeading(1, kToOutlook, L"Task"));
    EXPECT_EQ(std::nullopt, ConfirmHeading(2, kToQuenlar, L"Task"));
    EXPECT_EQ(std::nullopt, ConfirmHeading(0, kToOutlook, L"Task"));
    EXPECT_EQ(std::nullopt, ConfirmHeading(4, kToQuenlar, L"Task"));
}

TEST(ConfirmTexts, NoSpaceIsBetweenTextAndCount)
{
    const Interface english(Language::English);
    EXPECT_EQ(L"Addtions:12", run::AdditionsLine(12));
    EXPECT_EQ(L"be modified:0", run::ModificationsLine(0));
    EXPECT_EQ(L"Confirm Task Change", run::ConfirmCaption(L"Task"));
    const Interface chinese(Language::Chinese);
    EXPECT_EQ(L"添加记录条数：12", run::AdditionsLine(12));
    EXPECT_EQ(L"修改记录条数：0", run::ModificationsLine(0));
    EXPECT_EQ(L"确认任务的改变", run::ConfirmCaption(L"任务"));
}

TEST(FrmMessage, ATwoWayRunWithNoChangesShowsBothSectionsWithZerosAndStillAsks)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Confirm(3, {}, L"X", [&](Robot&, const ShownDialog& dialog) {
            for (const int id : {IDC_MESSAGE_TO_OL_NEW, IDC_MESSAGE_TO_SYN_NEW})
            {
                EXPECT_TRUE(dialog.IsVisible(id));
                EXPECT_EQ(In(language, L"Addtions:0", L"添加记录条数：0"), dialog.Text(id));
            }
            for (const int id : {IDC_MESSAGE_TO_OL_MODIFY, IDC_MESSAGE_TO_SYN_MODIFY})
            {
                EXPECT_TRUE(dialog.IsVisible(id));
                EXPECT_EQ(In(language, L"be modified:0", L"修改记录条数：0"), dialog.Text(id));
            }
            EXPECT_TRUE(dialog.IsEnabled(IDOK));
            dialog.Click(IDOK);
        });
        EXPECT_TRUE(state::Shared().gChangesAccepted);
    }
}

TEST(FrmMessage, CaptionsAreThoseOfTheLanguageAndNameTheCategory)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Confirm(3, {}, In(language, L"Task", L"任务"), [&](Robot&, const ShownDialog& dialog) {
            EXPECT_EQ(In(language, L"Confirm Task Change", L"确认任务的改变"), dialog.Caption());
            EXPECT_EQ(In(language, L"&Accept", L"接受(&A)"), dialog.Text(IDOK));
            EXPECT_EQ(In(language, L"&Cancel", L"取消(&C)"), dialog.Text(IDCANCEL));
            EXPECT_EQ(resources::String(IDS_CONFIRM_INSTRUCTION), dialog.Text(IDC_MESSAGE_TITLE));
            dialog.Click(IDCANCEL);
        });
    }
}

TEST(FrmMessage, EachLineShowsTheCountOfItsOwnCollection)
{
    const Interface english(Language::English);
    Confirm(3, SomeChanges(), L"Task", [&](Robot&, const ShownDialog& dialog) {
        EXPECT_EQ(L"Addtions:1", dialog.Text(IDC_MESSAGE_TO_OL_NEW));
        EXPECT_EQ(L"be modified:2", dialog.Text(IDC_MESSAGE_TO_OL_MODIFY));
        EXPECT_EQ(L"Addtions:3", dialog.Text(IDC_MESSAGE_TO_SYN_NEW));
        EXPECT_EQ(L"be modified:4", dialog.Text(IDC_MESSAGE_TO_SYN_MODIFY));
        dialog.Click(IDCANCEL);
    });
}

TEST(FrmMessage, AOneWayRunShowsOnlyItsSectionInTheFirstPlaceAndTheDialogClosesUp)
{
    const Interface english(Language::English);
    RECT both = {};
    RECT firstPlace = {};
    Confirm(3, SomeChanges(), L"Task", [&](Robot&, const ShownDialog& dialog) {
        GetClientRect(dialog.Handle(), &both);
        GetWindowRect(dialog.Control(IDC_MESSAGE_TO_OL_TITLE), &firstPlace);
        MapWindowPoints(nullptr, dialog.Handle(), reinterpret_cast<POINT*>(&firstPlace), 2);
        dialog.Click(IDCANCEL);
    });
    for (const long transType : {1L, 2L})
    {
        const bool toOutlook = transType == 2;
        Confirm(transType, SomeChanges(), L"Task", [&](Robot&, const ShownDialog& dialog) {
            const int title = toOutlook ? IDC_MESSAGE_TO_OL_TITLE : IDC_MESSAGE_TO_SYN_TITLE;
            EXPECT_EQ(toOutlook, dialog.IsVisible(IDC_MESSAGE_TO_OL_NEW));
            EXPECT_EQ(!toOutlook, dialog.IsVisible(IDC_MESSAGE_TO_SYN_NEW));
            EXPECT_TRUE(dialog.IsVisible(title));
            RECT one = {};
            RECT place = {};
            GetClientRect(dialog.Handle(), &one);
            GetWindowRect(dialog.Control(title), &place);
            MapWindowPoints(nullptr, dialog.Handle(), reinterpret_cast<POINT*>(&place), 2);
            EXPECT_EQ(firstPlace.top, place.top);
            EXPECT_LT(one.bottom, both.bottom);
            test_support::ExpectReadable(dialog);
            dialog.Click(IDCANCEL);
        });
    }
}

TEST(FrmMessage, AnyOtherDirectionKeepsTheLayoutsCaptions)
{
    for (const Language language : kLanguages)
    {
        const Interface with(language);
        Confirm(0, SomeChanges(), L"Task", [&](Robot&, const ShownDialog& dialog) {
            EXPECT_EQ(L"Quenlar To Outlook", dialog.Text(IDC_MESSAGE_TO_OL_TITLE));
            EXPECT_EQ(L"Outlook To Quenlar", dialog.Text(IDC_MESSAGE_TO_SYN_TITLE));
            for (const int id : {IDC_MESSAGE_TO_OL_NEW, IDC_MESSAGE_TO_SYN_NEW})
            {
                EXPECT_EQ(L"Add New", dialog.Text(id));
            }
            for (const int id : {IDC_MESSAGE_TO_OL_MODIFY, IDC_MESSAGE_TO_SYN_MODIFY})
            {
                EXPECT_EQ(L"Modify", dialog.Text(id));
            }
            dialog.Click(IDCANCEL);
        });
    }
}

struct WayOut
{
    const char* name;
    void (*take)(const ShownDialog& dialog);
    bool before;
    bool after;
};

TEST(FrmMessage, TheButtonsAndTheirKeysAnswerAndClosingTheWindowLeavesTheAnswerAsItWas)
{
    constexpr WayOut kWaysOut[] = {
        {"Accept", [](const ShownDialog& dialog) { dialog.Click(IDOK); }, false, true},
        {"Cancel", [](const ShownDialog& dialog) { dialog.Click(IDCANCEL); }, true, false},
        {"Alt+A", [](const ShownDialog& dialog) { dialog.PressAlt(L'a'); }, false, true},
        {"Alt+C", [](const ShownDialog& dialog) { dialog.PressAlt(L'c'); }, true, false},
        {"Enter", [](const ShownDialog& dialog) { dialog.Press(VK_RETURN); }, false, true},
        {"Escape", [](const ShownDialog& dialog) { dialog.Press(VK_ESCAPE); }, true, false},
        {"close button, declined before", [](const ShownDialog& dialog) { dialog.Close(); }, false, false},
        {"close button, accepted before", [](const ShownDialog& dialog) { dialog.Close(); }, true, true},
    };
    const Interface english(Language::English);
    for (const WayOut& way : kWaysOut)
    {
        state::Shared().gChangesAccepted = way.before;
        Confirm(3, {}, L"Task", [&](Robot& robot, const ShownDialog& dialog) {
            way.take(dialog);
            robot.WaitUntilClosed(dialog);
        });
        EXPECT_EQ(way.after, state::Shared().gChangesAccepted) << way.name;
    }
}

TEST(FrmMessage, IsReadableInBothLanguagesAtEveryScaleAndForEveryCategory)
{
    for (const Language language : kLanguages)
    {
        for (const double scale : {1.0, 1.5, 2.0})
        {
            for (const UINT category : {IDS_CATEGORY_TASK, IDS_CATEGORY_CALENDAR, IDS_CATEGORY_CONTACT})
            {
                const Interface with(language, scale);
                for (const long transType : {3L, 2L, 1L})
                {
                    Confirm(transType, SomeChanges(), resources::String(category),
                            [&](Robot&, const ShownDialog& dialog) {
                                test_support::ExpectReadable(dialog);
                                if (scale == 1 && category == IDS_CATEGORY_CONTACT)
                                {
                                    test_support::Photograph(
                                        dialog, "FrmMessage-" + std::to_string(transType) + Suffix(language));
                                }
                                dialog.Click(IDCANCEL);
                            });
                }
            }
        }
    }
}

} // namespace
