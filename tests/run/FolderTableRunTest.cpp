// Whole runs over the table of a folder.
#include "tests/run/RunsFixture.h"
#include "tests/support/CallWatch.h"

namespace
{

using namespace test_support;
using automation::Object;

// A run whose table is stale in one row only, which the sample is not likely to hit.
using RunOverStaleTable = RunsFixture;

TEST_F(RunOverStaleTable, WritesNoPairThatTheItemsDoNotMake)
{
    constexpr long kStale = 150;
    for (long i = 1; i <= 200; ++i)
    {
        Mailbox->AddItem(kContactRun.folder,
                         {{L"LastName", i == kStale ? L"Host" : L"Other"}, {L"FirstName", L"Ann"}});
    }
    AddHostRecord(kContactRun);
    const Object items = DefaultFolder(kContactKind).GetObject(L"Items");
    const Object item = items.GetObject(L"Item", kStale);
    Mailbox->Switch(L"TableStale", true);
    item.Put(L"LastName", L"Renamed");
    item.Put(L"JobTitle", L"Mine");
    item.Call(L"Save");
    EXPECT_FALSE(Run(kContactRun, 2, Answer::Accept).failed);
    EXPECT_EQ(L"Renamed", automation::TextOf(Mailbox->ItemProperty(kContactRun.folder, kStale, L"LastName")));
    EXPECT_EQ(L"Mine", automation::TextOf(Mailbox->ItemProperty(kContactRun.folder, kStale, L"JobTitle")));
}

// The collection compares the first items with the table; after that each pair is read once, for the
// comparison of its keys and for the writing together.
using RunFromOutlook = RunsFixture;

TEST_F(RunFromOutlook, APairsPropertiesAreReadOnceInTheApplyPass)
{
    constexpr long kPairs = 8;
    constexpr long kCompared = 4;
    for (long i = 1; i <= kPairs; ++i)
    {
        const std::wstring name = L"Name" + std::to_wstring(i);
        Mailbox->AddItem(kContactRun.folder, {{L"LastName", name}, {L"FirstName", L"Ann"}});
        Execute(L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) "
                L"VALUES (hex(randomblob(16)),1,'" +
                name + L"','Ann')");
    }
    const CallWatch calls;
    EXPECT_FALSE(Run(kContactRun, 1, Answer::Accept).failed);
    for (const wchar_t* property : {L"LastName", L"FirstName", L"CompanyName", L"EntryID"})
    {
        EXPECT_EQ(kCompared + kPairs, calls.Of(std::wstring(L"ContactItem.") + property)) << property;
    }
    EXPECT_EQ(kCompared + kPairs, calls.Of(L"Items.Item"));
}

} // namespace
