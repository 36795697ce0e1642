// The collection where the folder has a table that is honest, or lies: what is proposed is the same as
// without a table, and an honest table saves nearly all calls.
#include "tests/run/FolderTableFixture.h"
#include "tests/run/RunsFixture.h"
#include "tests/support/CallWatch.h"

namespace
{

using namespace test_support;
using automation::Object;
using state::Shared;

using TableOfFolder = FolderTableFixture;

constexpr long kFew = 12;

TEST_F(TableOfFolder, ProposesWhatTheItemsDo)
{
    for (const TableKind& kind : kTables)
    {
        UseNewMailbox();
        Fill(kind, kFew);
        const std::wstring expected = CollectByItems(kind);
        const CallWatch calls;
        EXPECT_EQ(expected, Collect(kind));
        EXPECT_EQ(4, calls.Of(L"Items.Item"));
        EXPECT_LT(0, calls.Of(L"Table.GetArray"));
    }
}

struct Lie
{
    const wchar_t* name;
    Value value;
};

// Among them arrays with as many rows as columns.
TEST_F(TableOfFolder, TakesTheArraysOfEitherOrientation)
{
    for (const TableKind& kind : kTables)
    {
        for (long count = 1; count <= kFew; ++count)
        {
            UseNewMailbox();
            Fill(kind, count);
            const std::wstring expected = CollectByItems(kind);
            for (const bool isByRow : {false, true})
            {
                Mailbox->Switch(L"TableArrayByRow", isByRow);
                const CallWatch calls;
                EXPECT_EQ(expected, Collect(kind)) << count << ", by row: " << isByRow;
                EXPECT_EQ(std::min(4L, count), calls.Of(L"Items.Item")) << count << ", " << isByRow;
            }
        }
    }
}

TEST_F(TableOfFolder, OneThatLiesIsLeftForTheItems)
{
    const std::vector<std::vector<Lie>> all = {
        {{L"NoTable", true}},         {{L"TableReversed", true}},
        {{L"TableTextLength", 16L}},  {{L"TableMissingRow", 5L}},
        {{L"TableDuplicateRow", 7L}}, {{L"TableMissingRow", 5L}, {L"TableDuplicateRow", 7L}},
        {{L"TableFailsAtRow", 9L}},   {{L"TableRefuses", L"MessageClass"}},
    };
    for (const TableKind& kind : kTables)
    {
        for (const std::vector<Lie>& lies : all)
        {
            UseNewMailbox();
            Fill(kind, kFew);
            const std::wstring expected = CollectByItems(kind);
            for (const Lie& lie : lies)
            {
                Mailbox->Switch(lie.name, lie.value);
            }
            const CallWatch calls;
            EXPECT_EQ(expected, Collect(kind)) << lies.front().name;
            EXPECT_LE(kFew, calls.Of(L"Items.Item")) << lies.front().name;
        }
    }
}

TEST_F(TableOfFolder, DatesInUtcAreLeftForTheItems)
{
    for (const TableKind& kind : {std::cref(kTaskTable), std::cref(kCalendarTable)})
    {
        UseNewMailbox();
        Fill(kind, kFew);
        const std::wstring expected = CollectByItems(kind);
        Mailbox->Switch(L"TableUtcMinutes", 480L);
        EXPECT_EQ(expected, Collect(kind));
    }
}

TEST_F(TableOfFolder, StaleRowsAtItsStartAreLeftForTheItems)
{
    for (const TableKind& kind : kTables)
    {
        UseNewMailbox();
        Fill(kind, kFew);
        const Object item = DefaultFolder(kind).GetObject(L"Items").GetObject(L"Item", 2L);
        const wchar_t* const property =
            kind.itemKind == sandbox::ItemKind::Contact ? L"LastName" : L"Subject";
        const auto rename = [&](const Value& name) {
            item.Put(property, name);
            item.Call(L"Save");
        };
        const Value name = item.Get(property);
        rename(L"Renamed");
        const std::wstring expected = CollectByItems(kind);
        rename(name);
        Mailbox->Switch(L"TableStale", true);
        rename(L"Renamed");
        EXPECT_EQ(expected, Collect(kind));
    }
}

TEST_F(TableOfFolder, ARecordWithALongTextIsReadFromItsItem)
{
    Fill(kContactTable, kFew);
    const std::wstring common(255, L'x');
    Mailbox->AddItem(kContactTable.folder, kContactTable.item(common + L"a"));
    Mailbox->AddItem(kContactTable.folder, kContactTable.item(common + L"b"));
    Rows->push_back(kContactTable.row(common + L"b"));
    const std::wstring expected = CollectByItems(kContactTable);
    const CallWatch calls;
    EXPECT_EQ(expected, Collect(kContactTable));
    EXPECT_LE(2, calls.Of(L"NameSpace.GetItemFromID"));
    EXPECT_GE(4, calls.Of(L"NameSpace.GetItemFromID"));
    EXPECT_EQ(4, calls.Of(L"Items.Item"));
}

TEST_F(TableOfFolder, ATextOf255BytesIsTakenForCutAsWellAsOneOf255Characters)
{
    Fill(kContactTable, kFew);
    const std::wstring common(127, L'中');
    Mailbox->Switch(L"TableTextLength", 127L);
    Mailbox->AddItem(kContactTable.folder, kContactTable.item(common + L"a"));
    Rows->push_back(kContactTable.row(common));
    EXPECT_EQ(CollectByItems(kContactTable), Collect(kContactTable));
}

TEST_F(TableOfFolder, ItemsOfOtherKindsAmongTheRowsAreNoRecords)
{
    for (const TableKind& kind : kTables)
    {
        UseNewMailbox();
        Mailbox->Switch(L"ForeignItems", true);
        Fill(kind, kFew);
        Rows->push_back(kind.row(L""));
        const std::wstring expected = CollectByItems(kind);
        const CallWatch calls;
        EXPECT_EQ(expected, Collect(kind));
        EXPECT_EQ(4, calls.Of(L"Items.Item")) << "the table is of use all the same";
    }
}

TEST_F(TableOfFolder, ItemsOfDerivedClassesAreReadFromIt)
{
    auto derived = kContactTable.item(L"Ode");
    derived.emplace_back(L"MessageClass", L"ipm.contact.Acme");
    Mailbox->AddItem(kContactTable.folder, derived);
    Fill(kContactTable, kFew);
    const std::wstring expected = CollectByItems(kContactTable);
    const CallWatch calls;
    EXPECT_EQ(expected, Collect(kContactTable));
    EXPECT_EQ(0, calls.Of(L"NameSpace.GetItemFromID"));
}

TEST_F(TableOfFolder, TwoThousandContactsOrEntriesTakeFortyCallsToOutlook)
{
    for (const TableKind& kind : {std::cref(kContactTable), std::cref(kCalendarTable)})
    {
        UseNewMailbox();
        Fill(kind, 2000);
        DefaultFolder(kind).GetObject(L"Items").Get(L"Count");
        const CallWatch calls;
        Collect(kind);
        const long ofOutlook = calls.CountIf([](const std::wstring& name) {
            const std::wstring object = name.substr(0, name.find(L'.'));
            return object != L"Recordset" && object != L"Field" && object != L"DTC";
        });
        // The second direction counts the items once more, and the folder and its items are fetched.
        EXPECT_GE(40 + 4, ofOutlook);
    }
}

TEST_F(TableOfFolder, OfTheTasksOnlyThoseWithThePartnersFirstKeyAreOpened)
{
    Fill(kTaskTable, 40);
    const CallWatch calls;
    Collect(kTaskTable);
    EXPECT_EQ(20, calls.Of(L"NameSpace.GetItemFromID"));
    EXPECT_EQ(20, calls.Of(L"TaskItem.Companies"));
}

TEST_F(TableOfFolder, ARangeOfTheCalendarOpensTheRecurringEntriesAlone)
{
    Fill(kCalendarTable, 40);
    Shared().gSynParameter.CalendarTransItem = state::kFutureEntries;
    for (const long position : {10L, 20L})
    {
        const Object item = DefaultFolder(kCalendarTable).GetObject(L"Items").GetObject(L"Item", position);
        item.GetObject(L"GetRecurrencePattern").Put(L"NoEndDate", true);
        item.Call(L"Save");
    }
    const std::wstring expected = CollectByItems(kCalendarTable);
    const CallWatch calls;
    EXPECT_EQ(expected, Collect(kCalendarTable));
    EXPECT_EQ(2, calls.Of(L"NameSpace.GetItemFromID"));
}

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
