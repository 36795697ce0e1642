// Fixture of the collection over a folder that has a table: an office whose host gives rows of plain data.
#pragma once

#include "tests/run/Sides.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"

#include <array>
#include <functional>
#include <string>

namespace test_support
{

// With an item and a row of this name.
struct TableKind : TestedKind
{
    sandbox::Mailbox::NamedValues (*item)(const std::wstring& name);
    Record (*row)(const std::wstring& name);
};

extern const TableKind kContactTable;
extern const TableKind kTaskTable;
extern const TableKind kCalendarTable;
extern const std::array<std::reference_wrapper<const TableKind>, 3> kTables;

class FolderTableFixture : public OfficeFixture
{
  protected:
    FolderTableFixture();

    // Items 1 to count; of every second one there is a row as well, and of some that Outlook does not have.
    void Fill(const TableKind& kind, long count);
    // What is proposed, in order.
    std::wstring Collect(const TableKind& kind);
    std::wstring CollectByItems(const TableKind& kind);

    std::shared_ptr<Records> Rows = std::make_shared<Records>();
};

} // namespace test_support
