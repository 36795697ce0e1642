// The page says what a value of the host does to an item of Outlook. Whatever it does, the record behind it
// is written and the pass succeeds.
#include "sandbox/ado/Recordset.h"
#include "tests/hostile/ValueTable.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"

#include <algorithm>
#include <set>

namespace
{

using namespace test_support;
using automation::DateOf;
using automation::TextOf;
using automation::TextOrEmpty;
using automation::Value;
using RowValues = std::map<std::wstring, Value>;

constexpr const char* kPage = "exchange-rules.md";
constexpr const char* kHeading = "Kind, to Outlook";

struct TargetKind : TestedKind
{
    const char* onPage;                   // its name there
    const wchar_t* witness;               // a text that every record writes
    sandbox::Mailbox::NamedValues before; // of both items, beside their texts
    RowValues others;                     // of both rows, beside the column under test
};

const TargetKind kTargetKinds[] = {
    {kContactKind,
     "Contact",
     L"JobTitle",
     {{L"Birthday", Day(2003, 5, 6)}, {L"Anniversary", Day(2003, 5, 6)}},
     {}},
    {kTaskKind,
     "Task",
     L"Subject",
     {{L"CreationTime", Day(2003, 5, 1)},
      {L"StartDate", Day(2003, 5, 6)},
      {L"DueDate", Day(2003, 5, 8)},
      {L"DateCompleted", Day(2003, 5, 7)},
      {L"Status", 2},
      {L"Complete", true},
      {L"PercentComplete", 100},
      {L"Importance", 2},
      {L"TotalWork", 7},
      {L"ActualWork", 7},
      {L"ReminderSet", true},
      {L"ReminderTime", Day(2001, 1, 1, 8, 0)}},
     {{L"F_ACTPSTIME", Value()},
      {L"CONTACT_SURNAME", L"Smith"},
      {L"CONTACT_GIVENNAME", L"Mary"},
      {L"YES", true}}},
    {kCalendarKind,
     "Calendar",
     L"Subject",
     {{L"Start", Day(2003, 5, 6, 8, 0)}, {L"End", Day(2003, 5, 6, 9, 0)}, {L"ReminderSet", true}},
     {{L"F_ACTESDATE", Day(2003, 6, 7)},
      {L"F_ACTESTIME", Value()},
      {L"F_ACTEETIME", Value()},
      {L"F_ACTREPTEDATE", Value()},
      {L"ACT_DURATION", Value()},
      {L"FR_NAME", L"每周"},
      {L"CONTACT_SURNAME", L"Smith"},
      {L"CONTACT_GIVENNAME", L"Mary"},
      {L"YES", true}}},
};

// An entry of a cell: a property, or "property by COLUMN" for a column that is read by its own name.
struct TargetEntry
{
    std::wstring property;
    std::wstring column; // the one under test
    std::wstring mapped; // the one that the relation row names
    std::wstring shownBy;
};

struct EntryByName
{
    const wchar_t* entry;
    const wchar_t* mapped;
    const wchar_t* shownBy; // of the item; a time of day after "time of"
};

constexpr EntryByName kEntriesByName[] = {
    {L"ReminderSet by F_ACTPSTIME", L"YES", L"ReminderTime"},
    {L"ContactNames by CONTACT_GIVENNAME", L"CONTACT_SURNAME", L"ContactNames"},
    {L"Recipients by CONTACT_GIVENNAME", L"CONTACT_SURNAME", L"Recipients"},
    {L"Start by F_ACTESTIME", L"F_ACTESDATE", L"time of Start"},
    {L"Start by ACT_DURATION", L"F_ACTESDATE", L"Duration"},
    {L"IsRecurring by F_ACTESTIME", L"YES", L"time of Recurrence.StartTime"},
    {L"IsRecurring by F_ACTEETIME", L"YES", L"time of Recurrence.EndTime"},
    {L"IsRecurring by F_ACTESDATE", L"YES", L"Recurrence.PatternStartDate"},
    {L"IsRecurring by F_ACTREPTEDATE", L"YES", L"Recurrence.EndsByDate"},
    {L"IsRecurring by FR_NAME", L"YES", L"Recurrence.RecurrenceType"},
};

TargetEntry EntryNamed(const std::wstring& name)
{
    const auto* const found = std::ranges::find(kEntriesByName, name, &EntryByName::entry);
    if (found == std::end(kEntriesByName))
    {
        return {name, L"VALUE", L"VALUE", name};
    }
    const size_t by = name.find(L" by ");
    return {name.substr(0, by), name.substr(by + 4), found->mapped, found->shownBy};
}

// The value of a property that is not set.
const std::set<std::wstring> kEmptyTexts{L"", L"0", L"False", L"1/1/4501", L"00:00"};

class ValuesToOutlook : public OfficeFixture
{
  protected:
    // The page's word for what the value makes of the first item.
    std::string Effect(const TargetKind& kind, const TargetEntry& entry, const Value& value)
    {
        const std::set<std::wstring> inChinese{L"FirstName", L"LastName", L"Suffix"};
        const WithLanguage language(inChinese.contains(entry.property) ? resources::Language::Chinese
                                                                       : resources::Language::English);
        AddItems(kind, entry);
        Relate(kind, entry);
        const std::wstring before = Shown(kind, entry);
        Export(kind, entry, value);
        EXPECT_EQ(L"behind", TextIn(kind, 2, kind.witness)) << automation::ToUtf8(entry.property);
        const std::wstring after = Shown(kind, entry);
        if (entry.property != kind.witness && TextIn(kind, 1, kind.witness) == L"before")
        {
            return "left out";
        }
        return after == before ? "as it was" : kEmptyTexts.contains(after) ? "empty" : "written";
    }

  private:
    void AddItems(const TargetKind& kind, const TargetEntry& entry)
    {
        UseNewMailbox();
        sandbox::Mailbox::NamedValues item = kind.before;
        item.emplace_back(kind.witness, L"before");
        const std::set<std::wstring> noText{L"ContactNames", L"Recipients", L"IsRecurring"};
        const bool isText = std::ranges::none_of(
            kind.before, [&](const auto& named) { return named.first == entry.property; });
        if (isText && !noText.contains(entry.property) && entry.property != kind.witness)
        {
            item.emplace_back(entry.property, L"before");
        }
        Mailbox->AddItem(kind.folder, item);
        Mailbox->AddItem(kind.folder, item);
    }

    void Relate(const TargetKind& kind, const TargetEntry& entry)
    {
        Pairs rows{{entry.mapped, entry.property}};
        if (entry.property != kind.witness)
        {
            rows.insert(rows.begin(), {L"WITNESS", kind.witness});
        }
        TestOffice::Relate(kind, rows);
    }

    // The pass over both items: a row with the value, and one behind it that has a good one.
    void Export(const TargetKind& kind, const TargetEntry& entry, const Value& value)
    {
        RowValues row = kind.others;
        row[L"WITNESS"] = L"behind";
        row.emplace(entry.column, entry.property == kind.witness ? Value(L"behind") : Value(Day(2003, 6, 7)));
        sandbox::ResultSet rows;
        rows.rows.resize(2);
        for (const auto& [column, good] : row)
        {
            rows.columns.push_back({column});
            rows.rows[0].push_back(column == entry.column ? value : good);
            rows.rows[1].push_back(good);
        }
        exchange::Run run = RunOverFolder(kind, Display);
        run.HostRows = automation::Recordset(sandbox::MakeRecordset(std::move(rows)));
        for (const long position : {1L, 2L})
        {
            run.Pending.ChangedHostRecords.Add(position, 1);
            run.Pending.ChangedOutlookItems.Add(std::to_wstring(position), 1);
        }
        EXPECT_FALSE(kind.tested.ToOutlook(run)) << "the pass ends";
    }

    std::wstring Shown(const TargetKind& kind, const TargetEntry& entry)
    {
        const std::wstring timeOf = L"time of ";
        if (entry.shownBy == L"ContactNames" || entry.shownBy == L"Recipients")
        {
            return std::to_wstring(Mailbox->ItemLinks(kind.folder, 1).size()) + L" links";
        }
        if (entry.shownBy.starts_with(timeOf))
        {
            const std::wstring property = entry.shownBy.substr(timeOf.size());
            return automation::Formatted(DateOf(Mailbox->ItemProperty(kind.folder, 1, property)), L"hh:mm");
        }
        return TextIn(kind, 1, entry.shownBy);
    }

    std::wstring TextIn(const TargetKind& kind, long position, const std::wstring& property)
    {
        return TextOrEmpty(Mailbox->ItemProperty(kind.folder, position, property));
    }
};

TEST_F(ValuesToOutlook, HaveTheEffectThatThePageTellsAndTheRecordBehindIsWritten)
{
    const auto values = ValuesOfColumns();
    std::set<std::wstring> told;
    for (const PageCells& cells : TableOfPage(kPage, kHeading))
    {
        const auto* const kind = std::ranges::find(
            kTargetKinds, cells.at(0), [](const TargetKind& one) { return std::string(one.onPage); });
        ASSERT_NE(std::end(kTargetKinds), kind) << cells[0];
        ASSERT_EQ(2 + kValueColumns, cells.size()) << cells[1];
        for (const std::wstring& name : NamesIn(cells[1]))
        {
            told.insert(automation::FromUtf8(cells[0]) + L" " + name);
            for (size_t column = 0; column < kValueColumns; ++column)
            {
                EXPECT_EQ(cells[2 + column], Effect(*kind, EntryNamed(name), values[column]))
                    << cells[0] << " " << automation::ToUtf8(name) << ", column " << column;
            }
        }
    }
    for (const EntryByName& one : kEntriesByName)
    {
        const bool isTask = std::wstring(one.entry).ends_with(L"F_ACTPSTIME") ||
                            std::wstring(one.entry).starts_with(L"ContactNames");
        EXPECT_TRUE(told.contains((isTask ? L"Task " : L"Calendar ") + std::wstring(one.entry)));
    }
    for (const std::wstring& related : RelatedProperties())
    {
        EXPECT_TRUE(told.contains(related)) << automation::ToUtf8(related);
    }
}

} // namespace
