// Fixture of the tests of one kind's passes: an office whose host only keeps what it is asked to write, rows
// that a test fills as it likes, and passes over rows and items. Header only; for test programs that link
// telvix_run.
#pragma once

#include "tests/support/FakeHost.h"
#include "tests/support/InsertStatement.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"

#include <string>

namespace test_support
{

class PassFixture : public OfficeFixture
{
  protected:
    using Object = automation::Object;
    // The rows are in the table "HostRows". It has the columns of the kind's view, those included that the
    // host computes or takes from linked rows.
    explicit PassFixture(const TestedKind& kind) : mKind(kind)
    {
        std::wstring columns;
        for (const sandbox::Row& column : TheHost.Database()
                                              .Query(L"SELECT name || ' ' || type FROM pragma_table_info('" +
                                                     std::wstring(kind.view) + L"')")
                                              .rows)
        {
            columns += (columns.empty() ? L"" : L",") + automation::TextOf(column[0]);
        }
        Execute(L"CREATE TABLE HostRows (" + columns + L")");
    }

    void Relate(const Pairs& rows) { TestOffice::Relate(mKind, rows); }

    // Adds a row with the key "ACT1", "ACT2" and so on. Values are SQL literals; columns that are not named
    // are NULL.
    void AddRow(Pairs columns)
    {
        columns.emplace_back(mKind.keyColumn, L"'ACT' || (SELECT COUNT(*) + 1 FROM HostRows)");
        Execute(InsertStatement(L"HostRows", columns));
    }

    // A run over the rows and the folder as they are now.
    exchange::Run NewRun()
    {
        exchange::Run run = RunOverFolder(mKind, Display);
        run.HostRows = automation::OpenRecordset(L"SELECT * FROM HostRows", TheHost.ConnectionString(),
                                                 {.cursorLocation = automation::kCursorClient});
        return run;
    }

    // Writes row 1 into a new item, or over the folder's item 1, and returns the item.
    Object WriteNewItem()
    {
        exchange::Run run = NewRun();
        run.Pending.NewHostRecords.Add(1L, 0);
        EXPECT_FALSE(mKind.tested.ToOutlook(run));
        return ItemAt(CountItems());
    }
    Object WriteExistingItem()
    {
        exchange::Run run = NewRun();
        run.Pending.ChangedHostRecords.Add(1L, 1);
        run.Pending.ChangedOutlookItems.Add(L"1", 1);
        EXPECT_FALSE(mKind.tested.ToOutlook(run));
        return ItemAt(1);
    }
    // Writes all rows into new items; true when the pass failed.
    bool WriteAllRows()
    {
        exchange::Run run = NewRun();
        for (long row = 1; row <= run.HostRows.RecordCount(); ++row)
        {
            run.Pending.NewHostRecords.Add(row, 0);
        }
        return mKind.tested.ToOutlook(run);
    }
    // Writes the folder's item 1 into a new row, or over row 1.
    void InsertFirstItem()
    {
        exchange::Run run = NewRun();
        run.Pending.NewOutlookItems.Add(L"1", 0);
        EXPECT_FALSE(mKind.tested.FromOutlook(run));
    }
    void UpdateFirstItem()
    {
        exchange::Run run = NewRun();
        run.Pending.ChangedHostRecords.Add(1L, 0);
        run.Pending.ChangedOutlookItems.Add(L"1", 0);
        EXPECT_FALSE(mKind.tested.FromOutlook(run));
    }

    Object ItemAt(long position) const
    {
        return DefaultFolder(mKind).GetObject(L"Items").GetObject(L"Item", position);
    }
    automation::Value PropertyOf(long position, const wchar_t* name) const
    {
        return Mailbox->ItemProperty(mKind.folder, position, name);
    }
    long CountItems() const { return Mailbox->ItemCount(mKind.folder); }
    long CountContacts() const { return Mailbox->ItemCount(kContactKind.folder); }

    WithFakeHost Host; // the thread's host

  private:
    const TestedKind& mKind;
};

} // namespace test_support
