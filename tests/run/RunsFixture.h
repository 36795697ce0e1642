// Fixture of the run procedures: an office, and whole runs whose dialogs a robot answers.
#pragma once

#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace test_support
{

struct RunKind : TestedKind
{
    const wchar_t* row;                 // a statement that adds a host record of the first user
    sandbox::Mailbox::NamedValues item; // that has no partner in the host
};

extern const RunKind kTaskRun;
extern const RunKind kCalendarRun;
extern const RunKind kContactRun;
extern const std::array<std::reference_wrapper<const RunKind>, 3> kRuns;

enum class Answer
{
    Accept,
    Cancel,
    CloseButton,
};

struct Outcome
{
    bool failed = false;
    // Every dialog and message box, by caption; a message box or message dialog with "|" and its text.
    std::vector<std::wstring> shown;
};

// How often a run asked for the confirmation.
long Confirmations(const Outcome& outcome);

class RunsFixture : public OfficeFixture
{
  protected:
    RunsFixture();

    // One run with the parameters as they are now; every dialog that it shows gets the answer.
    Outcome Run(const RunKind& kind, Answer answer = Answer::Accept);
    // The same after setting the direction, the conflict rule "notify me" and the kind's own folder.
    Outcome Run(const RunKind& kind, long transType, Answer answer);

    // A record of the kind that the other side does not have.
    void AddHostRecord(const RunKind& kind) { Execute(kind.row); }
    void AddItem(const RunKind& kind) { Mailbox->AddItem(kind.folder, kind.item); }

    long CountRows(const RunKind& kind);
    long CountItems(const RunKind& kind) { return Mailbox->ItemCount(kind.folder); }
};

} // namespace test_support
