#include "tests/run/RunsFixture.h"

#include "run/FrmMessage.h"
#include "tests/support/Days.h"
#include "tests/support/MessageBoxes.h"

#include <algorithm>

namespace test_support
{

using tools::ShownDialog;

namespace
{

void Give(Answer answer, const ShownDialog& dialog)
{
    switch (answer)
    {
    case Answer::Accept: dialog.Click(IDOK); break;
    case Answer::Cancel: dialog.Click(IDCANCEL); break;
    case Answer::CloseButton: dialog.Close(); break;
    }
}

std::wstring Described(const ShownDialog& dialog)
{
    const std::wstring text =
        dialog.IsMessageBox() ? dialog.Message() : dialog.Text(IDC_SHOWINFOR_DESCRIPTION);
    return dialog.Caption() + (text.empty() ? L"" : L"|" + text);
}

} // namespace

const RunKind kTaskRun{
    kTaskKind,
    L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_ACTPRIORITY) VALUES "
    L"(hex(randomblob(16)),1,'Host',2)",
    {{L"Subject", L"Outlook"}},
};

const RunKind kCalendarRun{
    kCalendarKind,
    L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_ACTESDATE) VALUES "
    L"(hex(randomblob(16)),1,'Host','2003-05-06 00:00:00')",
    {{L"Subject", L"Outlook"}, {L"Start", Day(2003, 5, 7, 9, 30)}, {L"End", Day(2003, 5, 7, 10, 30)}},
};

const RunKind kContactRun{
    kContactKind,
    L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) VALUES "
    L"(hex(randomblob(16)),1,'Host','Ann')",
    {{L"LastName", L"Outlook"}, {L"FirstName", L"Ann"}},
};

const std::array<std::reference_wrapper<const RunKind>, 3> kRuns = {kTaskRun, kCalendarRun, kContactRun};

long Confirmations(const Outcome& outcome)
{
    return static_cast<long>(std::ranges::count_if(
        outcome.shown, [](const std::wstring& caption) { return caption.starts_with(L"Confirm "); }));
}

RunsFixture::RunsFixture()
{
    Display.Ask = run::ConfirmChanges;
}

Outcome RunsFixture::Run(const RunKind& kind, Answer answer)
{
    Outcome outcome;
    AnswerDialogsDuring([&] { outcome.failed = kind.run(Display); },
                        [&](const ShownDialog& dialog) {
                            outcome.shown.push_back(Described(dialog));
                            Give(answer, dialog);
                        });
    return outcome;
}

Outcome RunsFixture::Run(const RunKind& kind, long transType, Answer answer)
{
    state::SynParameter& parameter = state::Shared().gSynParameter;
    parameter.TransType = transType;
    parameter.TransConflictOption = state::kNotifyMe;
    parameter.CurrentFolder = kind.folder;
    return Run(kind, answer);
}

long RunsFixture::CountRows(const RunKind& kind)
{
    return automation::LongOf(
        TheHost.Database().QueryValue(L"SELECT COUNT(*) FROM " + std::wstring(kind.table)));
}

} // namespace test_support
