// A host and a mailbox with random records of one kind, some on one side only and some on both with different
// values; and a run over them that stops before anything is written. The same seed gives the same records.
#pragma once

#include "tests/support/TestOffice.h"
#include "tests/support/TestedKind.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <span>
#include <string>

namespace test_support
{

// A column of the host and the property of Outlook that random values are made for.
struct RandomField
{
    enum class Sort
    {
        Text,
        Day,
        Flag,
        Percent,
        Status,
        Priority,
        Minutes,
    };

    const wchar_t* Column;   // null for none
    const wchar_t* Property; // null for none
    Sort Is = Sort::Text;
};

struct RandomKind : TestedKind
{
    std::span<const RandomField> Fields;
};

extern const RandomKind kRandomContacts;
extern const RandomKind kRandomTasks;
extern const RandomKind kRandomCalendar;

class RandomSides : public TestOffice
{
  public:
    RandomSides(const RandomKind& kind, unsigned seed) : Kind(kind), mEngine(seed) {}

    // So many records in the host only, in Outlook only, on both sides.
    void Add(size_t rows, size_t items, size_t pairs);

    // A whole run in a direction by the rule "notify me", with the component's own confirmation; true when it
    // failed.
    bool Run(long transType);
    // Collects the changes of a direction by the rule "notify me" into a new run.
    exchange::Run& Collect(long transType);
    // Asks for the collected changes.
    void Confirm();
    // Writes them.
    void Apply(long transType);
    // Opens the host's rows as they are now.
    void ReopenRows();

    const RandomKind& Kind;

  private:
    using Values = sandbox::Mailbox::NamedValues; // of columns or properties

    void SetParameter(long transType);
    size_t Below(size_t bound) { return mEngine() % bound; }
    automation::Value RandomValue(RandomField::Sort sort);
    // The keys of what they add; empty for none.
    std::wstring AddCompany(size_t number);
    std::wstring AddLinkedContact(size_t number);
    // What a record of the kind has beside its random fields.
    Values OwnColumns(size_t number);
    Values OwnProperties(size_t number);
    void AddRow(size_t number);
    void AddItem(size_t number);

    std::unique_ptr<exchange::Run> mRun;
    std::mt19937 mEngine;
    size_t mNumber = 0;
};

} // namespace test_support
