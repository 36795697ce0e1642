// Folders hold items of other kinds, and of classes derived from the kind's own.
#include "state/SharedState.h"
#include "tests/run/RunsFixture.h"

namespace
{

using namespace test_support;

using OtherKinds = RunsFixture;

TEST_F(OtherKinds, AreNeverProposedInAnyFolderOrDirection)
{
    for (const RunKind& kind : kRuns)
    {
        Mailbox->Switch(L"ForeignItems", true);
        AddItem(kind);
        AddHostRecord(kind);
        const long rows = CountRows(kind);
        EXPECT_FALSE(Run(kind, 3, Answer::Accept).failed);
        EXPECT_EQ(rows + 1, CountRows(kind));
        EXPECT_EQ(4 + 2, CountItems(kind));
        Mailbox->Switch(L"ForeignItems", false);
        Execute(L"DELETE FROM TBLACTIVITY");
    }
}

TEST_F(OtherKinds, AnItemOfADerivedClassIsARecord)
{
    sandbox::Mailbox::NamedValues item = kContactRun.item;
    item.emplace_back(L"MessageClass", L"IPM.Contact.Acme");
    Mailbox->AddItem(kContactRun.folder, item);
    EXPECT_FALSE(Run(kContactRun, 1, Answer::Accept).failed);
    EXPECT_EQ(1, CountRows(kContactRun));
}

} // namespace
