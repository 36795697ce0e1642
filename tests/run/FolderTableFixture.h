// Fixture of collections over the table of a folder: a mailbox with items and a host with rows of one kind,
// and what is proposed of them.
#pragma once

#include "exchange/Kind.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/run/Sides.h"
#include "tests/support/FakeHost.h"
#include "tests/support/RecordingDisplay.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace test_support
{

using NamedValues = sandbox::Mailbox::NamedValues;
using sandbox::outlook::TextUnit;

struct TableKind
{
    const exchange::Kind& kind;
    const wchar_t* folder;
    long number; // OlDefaultFolders
    NamedValues (*item)(const std::wstring& name);
    Record (*row)(const std::wstring& name);
};

extern const TableKind kContactTable;
extern const TableKind kTaskTable;
extern const TableKind kCalendarTable;
extern const std::array<std::reference_wrapper<const TableKind>, 3> kTables;

NamedValues Contact(const std::wstring& name);
Record ContactRow(const std::wstring& name);

// Each test runs once for each way to count the length at which a table cuts its texts.
class TableOfFolder : public testing::TestWithParam<TextUnit>
{
  protected:
    TableOfFolder();
    ~TableOfFolder() override;

    // A mailbox without items and other switches.
    void StartAgain();
    // Items 1 to count; of every second one there is a row as well, and of some that Outlook does not have.
    void Fill(const TableKind& kind, long count);
    static automation::Object Folder(const TableKind& kind);
    // What is proposed, in order.
    std::wstring Collect(const TableKind& kind);
    std::wstring CollectByItems(const TableKind& kind);

    WithFakeHost Host;
    RecordingDisplay Display;
    sandbox::MailboxRef Mailbox;
    std::shared_ptr<Records> Rows = std::make_shared<Records>();
};

} // namespace test_support
