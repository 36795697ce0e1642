// Whatever call fails, nothing is lost or half-written, nothing stays open or is held, and the next run puts
// things right.
#include "tests/faults/FaultTrials.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/Thoroughness.h"

namespace
{

using namespace test_support;

class EveryKind : public FaultTrials, public testing::WithParamInterface<Exchanged>
{
  protected:
    void Strike(const char* what, Phase phase, long step)
    {
        long struck = 0;
        AnswerDialogsDuring([&] { struck = StrikeEveryCall(GetParam(), phase, step); },
                            [](const tools::ShownDialog& dialog) { dialog.Click(IDOK); });
        EXPECT_LT(10, struck);
        ReportFigure(std::string("faults tried, ") + what + " of " + GetParam().kind.name +
                     (GetParam().IsToOutlook() ? " to Outlook: " : " from Outlook: ") +
                     std::to_string(struck) + (step > 1 ? " (a selection)" : ""));
    }
};

TEST_P(EveryKind, WhicheverCallOfTheCollectionFailsNothingIsWrittenAndTheNextRunPutsThingsRight)
{
    Strike("collection", Phase::Collection, ByThoroughness(6, 1, 1));
}

TEST_P(EveryKind, WhicheverCallOfTheApplyPassFailsRecordsAreWholeAndTheNextRunPutsThingsRight)
{
    Strike("apply pass", Phase::Apply, ByThoroughness(16, 4, 1));
}

TEST_P(EveryKind, WhicheverCallOfAWholeRunFailsRecordsAreWholeAndTheNextRunPutsThingsRight)
{
    Strike("whole run", Phase::Whole, IsLongRun() ? 1 : 41);
}

std::string NameOf(const testing::TestParamInfo<Exchanged>& exchanged)
{
    return std::string(exchanged.param.kind.name) +
           (exchanged.param.IsToOutlook() ? "ToOutlook" : "FromOutlook");
}

INSTANTIATE_TEST_SUITE_P(All, EveryKind,
                         testing::Values(Exchanged{kContactKind, Direction::ToOutlook},
                                         Exchanged{kContactKind, Direction::FromOutlook},
                                         Exchanged{kTaskKind, Direction::ToOutlook},
                                         Exchanged{kTaskKind, Direction::FromOutlook},
                                         Exchanged{kCalendarKind, Direction::ToOutlook},
                                         Exchanged{kCalendarKind, Direction::FromOutlook}),
                         NameOf);

} // namespace
