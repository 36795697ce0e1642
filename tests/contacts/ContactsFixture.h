// Fixture of the contact tests: an office, and runs of contacts in either direction.
#pragma once

#include "tests/support/CallWatch.h"
#include "tests/support/Days.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"

#include <string>
#include <utility>
#include <vector>

namespace test_support
{

class ContactsFixture : public OfficeFixture
{
  protected:
    using Properties = sandbox::Mailbox::NamedValues;
    using Value = automation::Value;

    // Adds a contact item and returns its position.
    long AddItem(const Properties& properties) { return Mailbox->AddItem(kContactKind.folder, properties); }
    // Adds a contact item that has a first and a last name, and these properties.
    long AddNamedItem(Properties properties);

    exchange::Run NewRun() { return OpenRun(kContactKind, Display); }
    // The apply pass with these items as additions, in this order; its result.
    bool Import(const std::vector<long>& positions);
    // The apply pass with these pairs of an item and the position of its host row as modifications.
    bool Overwrite(const std::vector<std::pair<long, long>>& pairs);
    // The writer alone, on an item.
    long Write(long mode, long position);

    // Adds a contact row of the signed-in user and returns its position. Values are SQL literals.
    long AddRow(Pairs columns);
    // The apply pass towards Outlook with these rows as additions, in this order; its result.
    bool Export(const std::vector<long>& rows);
    // The apply pass towards Outlook with these pairs of a row and its item as modifications.
    bool OverwriteItems(const std::vector<std::pair<long, long>>& pairs);

    long CountItems() { return Mailbox->ItemCount(kContactKind.folder); }
    Value PropertyOf(long position, const std::wstring& property)
    {
        return Mailbox->ItemProperty(kContactKind.folder, position, property);
    }
    // A property as text.
    std::wstring TextIn(long position, const std::wstring& property);

    void Relate(const Pairs& rows) { TestOffice::Relate(kContactKind, rows); }
    // The first value of a query as text; "NULL" for Null and for no row.
    std::wstring Found(const std::wstring& sql);
    long Count(const std::wstring& table) { return std::stol(Found(L"SELECT COUNT(*) FROM " + table)); }
    // Nothing in any table that an import writes to, and no open transaction.
    bool NothingWritten();

    void Deny(long operationRight) { TheHost.SetRight(1, 2, operationRight, 1); }
};

} // namespace test_support
