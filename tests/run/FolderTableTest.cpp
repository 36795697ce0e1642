// The collection where the folder has a table that is honest, or lies: what is proposed is the same as
// without a table, and an honest table saves nearly all calls.
#include "tests/run/FolderTableFixture.h"
#include "tests/support/CallWatch.h"

namespace
{

using namespace test_support;
using automation::Object;
using sandbox::outlook::TextUnit;
using state::Shared;

constexpr long kFew = 12;

// Each test runs once for each way to count the length at which a table cuts its texts.
class TableOfFolder : public FolderTableFixture, public testing::WithParamInterface<TextUnit>
{
  protected:
    TableOfFolder() { CutInUnit(); }

    void UseNewMailbox()
    {
        FolderTableFixture::UseNewMailbox();
        CutInUnit();
    }

  private:
    void CutInUnit() { Mailbox->Switch(L"TableTextUnit", static_cast<long>(GetParam())); }
};

std::string NameOfUnit(const testing::TestParamInfo<TextUnit>& unit)
{
    const char* const names[] = {"Characters", "BytesOfUtf16", "BytesOfUtf8"};
    return names[static_cast<size_t>(unit.param)];
}

INSTANTIATE_TEST_SUITE_P(CutsBy, TableOfFolder,
                         testing::Values(TextUnit::Characters, TextUnit::BytesOfUtf16, TextUnit::BytesOfUtf8),
                         NameOfUnit);

TEST_P(TableOfFolder, ProposesWhatTheItemsDo)
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
TEST_P(TableOfFolder, TakesTheArraysOfEitherOrientation)
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

TEST_P(TableOfFolder, OneThatLiesIsLeftForTheItems)
{
    // Longer than a message class and shorter than the names.
    const long tooShort = GetParam() == TextUnit::BytesOfUtf16 ? 32L : 16L;
    const std::vector<std::vector<Lie>> all = {
        {{L"NoTable", true}},
        {{L"TableReversed", true}},
        {{L"TableTextLength", tooShort}},
        {{L"TableMissingRow", 5L}},
        {{L"TableDuplicateRow", 7L}},
        {{L"TableMissingRow", 5L}, {L"TableDuplicateRow", 7L}},
        {{L"TableFailsAtRow", 9L}},
        {{L"TableRefuses", L"MessageClass"}},
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

TEST_P(TableOfFolder, DatesInUtcAreLeftForTheItems)
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

TEST_P(TableOfFolder, StaleRowsAtItsStartAreLeftForTheItems)
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

TEST_P(TableOfFolder, ARecordWithALongTextIsReadFromItsItem)
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

// A table may show two texts alike that agree up to one of these lengths. One pair at a time, because the
// sample would find many.
TEST_P(TableOfFolder, ATextThatMayHaveBeenCutIsReadFromItsItem)
{
    for (const wchar_t letter : {L'x', L'中'})
    {
        for (const size_t length : {84u, 85u, 86u, 100u, 125u, 126u, 127u, 128u, 254u, 255u, 256u})
        {
            UseNewMailbox();
            Fill(kContactTable, kFew);
            const std::wstring common(length, letter);
            Mailbox->AddItem(kContactTable.folder, kContactTable.item(common + L"中a"));
            Rows->push_back(kContactTable.row(common));
            EXPECT_EQ(CollectByItems(kContactTable), Collect(kContactTable)) << length << " of " << +letter;
        }
    }
}

TEST_P(TableOfFolder, ItemsOfOtherKindsAmongTheRowsAreNoRecords)
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

TEST_P(TableOfFolder, ItemsOfDerivedClassesAreReadFromIt)
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

TEST_P(TableOfFolder, TwoThousandContactsOrEntriesTakeFortyCallsToOutlook)
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

TEST_P(TableOfFolder, OfTheTasksOnlyThoseWithThePartnersFirstKeyAreOpened)
{
    Fill(kTaskTable, 40);
    const CallWatch calls;
    Collect(kTaskTable);
    EXPECT_EQ(20, calls.Of(L"NameSpace.GetItemFromID"));
    EXPECT_EQ(20, calls.Of(L"TaskItem.Companies"));
}

TEST_P(TableOfFolder, ARangeOfTheCalendarOpensTheRecurringEntriesAlone)
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

} // namespace
