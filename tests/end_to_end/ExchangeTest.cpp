#include "tests/end_to_end/Exchange.h"

#include "automation/Text.h"
#include "resources/Strings.h"

using namespace test_support;
using tools::demo::Compare;
using tools::demo::Difference;
using tools::demo::Outcome;
using tools::demo::Snapshot;

namespace
{

// The number at the end of a line of the confirmation.
long NumberOf(const std::wstring& line)
{
    const size_t digits = line.find_last_not_of(L"0123456789") + 1;
    return digits == line.size() ? -1 : std::stol(line.substr(digits));
}

class EveryKind : public Exchange, public testing::WithParamInterface<const wchar_t*>
{
};

class ContactExchange : public Exchange
{
};

} // namespace

TEST_P(EveryKind, IsWrittenWholeToOutlookAndASecondRunProposesNothing)
{
    const Snapshot before = Look();
    const Outcome first = Run(GetParam(), kExport, kIgnoreAll);
    ASSERT_TRUE(first.succeeded) << "status shown after " << first.messages.size() << " messages";
    ASSERT_EQ(4u, first.confirmation.size());
    const Snapshot after = Look();
    const Difference inOutlook = Compare(before.outlookItems, after.outlookItems);
    EXPECT_EQ(Records() / 2, NumberOf(first.confirmation[2]));
    EXPECT_GE(inOutlook.added.size(), static_cast<size_t>(NumberOf(first.confirmation[2])));
    EXPECT_TRUE(Compare(before.hostContacts, after.hostContacts).added.empty());
    EXPECT_TRUE(Compare(before.hostActivities, after.hostActivities).added.empty());
    EXPECT_EQ(L"", HostSide().LastRejection());

    const Outcome second = Run(GetParam(), kExport, kIgnoreAll);
    EXPECT_TRUE(second.succeeded);
    EXPECT_EQ(0, NumberOf(second.confirmation[2]));
    EXPECT_EQ(0, NumberOf(second.confirmation[3]));
}

TEST_P(EveryKind, ComesFromOutlookAndASecondRunProposesNothingNew)
{
    const Snapshot before = Look();
    const Outcome first = Run(GetParam(), kImport, kIgnoreAll);
    ASSERT_TRUE(first.succeeded);
    const Snapshot after = Look();
    const auto& entriesBefore =
        std::wstring(GetParam()) == L"contact" ? before.hostContacts : before.hostActivities;
    const auto& entriesAfter =
        std::wstring(GetParam()) == L"contact" ? after.hostContacts : after.hostActivities;
    EXPECT_EQ(Records() / 2, NumberOf(first.confirmation[2]));
    EXPECT_EQ(static_cast<size_t>(Records() / 2), Compare(entriesBefore, entriesAfter).added.size());
    EXPECT_TRUE(Compare(before.outlookItems, after.outlookItems).changed.empty());

    EXPECT_EQ(L"", HostSide().LastRejection());

    const Outcome second = Run(GetParam(), kImport, kIgnoreAll);
    EXPECT_TRUE(second.succeeded);
    EXPECT_EQ(0, NumberOf(second.confirmation[2]));
}

TEST_P(EveryKind, ADeclinedConfirmationChangesNothingAndSucceeds)
{
    const Snapshot before = Look();
    const Outcome outcome = Run(GetParam(), kBoth, kAddAll, true);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_EQ(7u, outcome.confirmation.size());
    const Snapshot after = Look();
    EXPECT_TRUE(Compare(before.outlookItems, after.outlookItems).added.empty());
    EXPECT_TRUE(Compare(before.hostContacts, after.hostContacts).added.empty());
    EXPECT_TRUE(Compare(before.hostActivities, after.hostActivities).added.empty());
}

INSTANTIATE_TEST_SUITE_P(All, EveryKind, testing::Values(L"contact", L"task", L"calendar"));

TEST_F(ContactExchange, TheSideThatWinsOverwritesTheOther)
{
    ASSERT_TRUE(Run(L"contact", kExport, kIgnoreAll).succeeded);
    HostSide().Database().Execute(L"UPDATE TBLCONTACT SET F_NICKNAME='Chief'");
    Snapshot before = Look();
    ASSERT_TRUE(Run(L"contact", kBoth, kHostWins).succeeded);
    EXPECT_GT(Compare(before.outlookItems, Look().outlookItems).changed.size(),
              static_cast<size_t>(Records() - 1));

    before = Look();
    const Outcome outcome = Run(L"contact", kBoth, kOutlookWins);
    EXPECT_TRUE(outcome.messages.empty());
    EXPECT_EQ(L"", HostSide().LastRejection());
    ASSERT_TRUE(outcome.succeeded) << automation::ToUtf8(outcome.status);
    EXPECT_TRUE(Compare(before.outlookItems, Look().outlookItems).changed.empty());
}

TEST_F(ContactExchange, TheSurnameArrivesAsOutlooksLastNameInEitherLanguage)
{
    HostSide().Database().Execute(L"INSERT INTO TBLCONTACT(F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) "
                                  L"VALUES('test-1','1','Qvist','Åsa')");
    ASSERT_TRUE(Run(L"contact", kExport, kIgnoreAll).succeeded);
    EXPECT_EQ(1,
              CountItems(L"ItemProperty AS L JOIN ItemProperty AS F USING(FolderPath, ItemIndex) WHERE "
                         L"L.Name='LastName' AND L.Value='Qvist' AND F.Name='FirstName' AND F.Value='Åsa'"));
}
