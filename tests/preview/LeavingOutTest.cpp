// Whole runs, with the confirmation and the list of changes used as a user does: records whose check marks
// are taken away are not written.
#include "automation/Text.h"
#include "resources/ids.h"
#include "state/SharedState.h"
#include "tests/preview/RandomSides.h"
#include "tests/support/Drive.h"
#include "tests/support/MessageBoxes.h"

#include <set>

#include <commctrl.h>

namespace
{

using namespace test_support;

constexpr int kLeftOut = 3;

struct Way
{
    const RandomKind& Kind;
    long TransType;
};

class LeavingOut : public testing::TestWithParam<Way>
{
};

// The names in the list, of the records that are left out and of the others.
struct Seen
{
    std::set<std::wstring> LeftOut;
    std::set<std::wstring> Kept;
};

Seen LeaveOutAndAccept(RandomSides& sides, long transType)
{
    Seen seen;
    Drive(
        [&](Robot& robot) {
            const ShownDialog confirmation = robot.WaitForDialog();
            confirmation.Click(IDC_MESSAGE_DETAILS);
            const ShownDialog changes = robot.WaitForDialogAfter(confirmation);
            for (int row = 0; row < changes.Rows(IDC_CHANGES_LIST); ++row)
            {
                changes.Ask(changes.Control(IDC_CHANGES_LIST), LVM_ENSUREVISIBLE, static_cast<WPARAM>(row),
                            FALSE);
                robot.WaitUntil("the row can be read",
                                [&] { return !changes.Row(IDC_CHANGES_LIST, row, 1).empty(); });
                (row < kLeftOut ? seen.LeftOut : seen.Kept).insert(changes.Row(IDC_CHANGES_LIST, row, 1));
            }
            for (int row = 0; row < kLeftOut; ++row)
            {
                changes.ChooseRow(IDC_CHANGES_LIST, row);
                robot.WaitUntil("the focus has come", [&] {
                    return changes.Ask(changes.Control(IDC_CHANGES_LIST), LVM_GETNEXTITEM,
                                       static_cast<WPARAM>(-1), LVNI_FOCUSED) == row;
                });
            }
            changes.Press(VK_SPACE);
            robot.WaitUntil("three are left out", [&] {
                return changes.Text(IDC_CHANGES_COUNT).find(L"7 will be written") != std::wstring::npos;
            });
            changes.Click(IDCANCEL);
            robot.WaitUntilClosed(changes);
            confirmation.Click(IDOK);
        },
        [&] { EXPECT_FALSE(sides.Run(transType)); });
    return seen;
}

std::set<std::wstring> NamesInHost(RandomSides& sides)
{
    std::set<std::wstring> names;
    const bool isContact = sides.Kind.itemKind == sandbox::ItemKind::Contact;
    const std::wstring sql = isContact ? L"SELECT F_GIVENNAME||' '||F_SURNAME FROM TBLCONTACT"
                                       : L"SELECT F_ACTNAME FROM TBLACTIVITY";
    for (const auto& row : sides.TheHost.Database().Query(sql).rows)
    {
        names.insert(automation::TextOrEmpty(row.at(0)));
    }
    return names;
}

std::set<std::wstring> NamesInOutlook(RandomSides& sides)
{
    std::set<std::wstring> names;
    const bool isContact = sides.Kind.itemKind == sandbox::ItemKind::Contact;
    const auto text = [&](long item, const wchar_t* property) {
        return automation::TextOrEmpty(sides.Mailbox->ItemProperty(sides.Kind.folder, item, property));
    };
    for (long item = 1; item <= sides.Mailbox->ItemCount(sides.Kind.folder); ++item)
    {
        names.insert(isContact ? text(item, L"FirstName") + L" " + text(item, L"LastName")
                               : text(item, L"Subject"));
    }
    return names;
}

TEST_P(LeavingOut, ThreeOfTenRecordsAreNotWrittenAndTheOthersAre)
{
    const long transType = GetParam().TransType;
    const bool toOutlook = transType == state::kQuenlarToOutlook;
    RandomSides sides(GetParam().Kind, 7);
    sides.Add(toOutlook ? 10 : 0, toOutlook ? 0 : 10, 0);
    const Seen seen = LeaveOutAndAccept(sides, transType);
    ASSERT_EQ(3u, seen.LeftOut.size());
    ASSERT_EQ(7u, seen.Kept.size());
    EXPECT_EQ(seen.Kept, toOutlook ? NamesInOutlook(sides) : NamesInHost(sides));
    EXPECT_EQ(10u, (toOutlook ? NamesInHost(sides) : NamesInOutlook(sides)).size());
}

std::string NameOfWay(const testing::TestParamInfo<Way>& info)
{
    return automation::ToUtf8(info.param.Kind.tested.Name.TransObject) +
           (info.param.TransType == state::kQuenlarToOutlook ? "ToOutlook" : "ToTheHost");
}

INSTANTIATE_TEST_SUITE_P(EveryWay, LeavingOut,
                         testing::Values(Way{kRandomContacts, 1}, Way{kRandomContacts, 2},
                                         Way{kRandomTasks, 1}, Way{kRandomTasks, 2}, Way{kRandomCalendar, 1},
                                         Way{kRandomCalendar, 2}),
                         NameOfWay);

} // namespace
