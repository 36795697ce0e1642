#include "config/dialogs/FrmAdvanced.h"

#include "config/store/AdvancedOptions.h"
#include "resources/Strings.h"
#include "state/SharedState.h"
#include "ui/DigitBox.h"

#include <algorithm>
#include <limits>

namespace config
{

namespace
{

constexpr UINT kRangeCaptions[] = {IDS_CALENDAR_ALL, IDS_CALENDAR_FUTURE, IDS_CALENDAR_RANGE};
constexpr int kCalendarRangeCount = static_cast<int>(std::size(kRangeCaptions));
constexpr long kMostDays = std::numeric_limits<short>::max(); // the most that the columns hold

short DaysOf(Code days)
{
    return static_cast<short>(
        std::clamp<long>(days.value_or(0), std::numeric_limits<short>::min(), kMostDays));
}

constexpr ui::CaptionRow kCalendarOptionCaptions[] = {
    {ui::kDialogCaption, {L"日历高级设置", L"Advanced Settings for Calendar"}},
    {IDC_ADV_RANGE_EXPLANATION, IDS_RANGE_EXPLANATION},
    {IDC_ADV_RANGE_FRAME, IDS_OPTIONS},
    {IDC_ADVCALENDAR_PRIOR_LABEL, IDS_CALENDAR_PRIOR},
    {IDC_ADVCALENDAR_AFTER_LABEL, IDS_CALENDAR_AFTER},
};

// The conflict rule, and whether all entries are exchanged, only future ones, or those within a range of days
// around today.
class FrmAdvCalendar : public FrmAdvanced
{
  public:
    FrmAdvCalendar() : FrmAdvanced(IDD_ADVCALENDAR, exchange::kCalendarName, kCalendarOptionCaptions) {}

  private:
    void AddRangePage(ui::TabPages& tabs) override;
    void LoadRange(const automation::Recordset& row) override;
    void OnRange(int id, int notification) override;
    void Store() override;

    void ChooseRange(Code code);
    void EnableDays(bool enabled);

    ui::OptionGroup OptTransItems{*this, IDC_ADV_RANGE, kCalendarRangeCount, state::kAllEntries};
    ui::Label lblPrior{*this, IDC_ADVCALENDAR_PRIOR_LABEL};
    ui::DigitBox txtPrior{*this, IDC_ADVCALENDAR_PRIOR};
    ui::Label lblAfter{*this, IDC_ADVCALENDAR_AFTER_LABEL};
    ui::DigitBox txtAfter{*this, IDC_ADVCALENDAR_AFTER};

    Code mRangeCode;
};

} // namespace

void FrmAdvCalendar::AddRangePage(ui::TabPages& tabs)
{
    for (int i = 0; i < kCalendarRangeCount; ++i)
    {
        OptTransItems.SetText(state::kAllEntries + i, resources::String(kRangeCaptions[i]));
    }
    txtPrior.Prepare(kMostDays, ui::DigitBox::EnterKey::MovesFocusOn);
    txtAfter.Prepare(kMostDays, ui::DigitBox::EnterKey::ActsOnDefaultButton);
    tabs.AddPage(resources::Choose(L"日期范围", L"Date Range"),
                 {{IDC_ADV_RANGE_EXPLANATION, IDC_ADV_RANGE + kCalendarRangeCount - 1},
                  {IDC_ADVCALENDAR_PRIOR_LABEL, IDC_ADVCALENDAR_AFTER}});
}

void FrmAdvCalendar::LoadRange(const automation::Recordset& row)
{
    const Code range = CodeIn(row, L"CalendarTransItem");
    state::EditedParameter().CalendarTransItem = range.value_or(kNoCode);
    if (range == state::kEntriesWithinDays)
    {
        state::EditedParameter().CalendarPrior = DaysOf(CodeIn(row, L"CalendarPrior"));
        state::EditedParameter().CalendarAfter = DaysOf(CodeIn(row, L"CalendarAfter"));
    }
    OptTransItems.Select(state::EditedParameter().CalendarTransItem);
    ChooseRange(range);
}

void FrmAdvCalendar::OnRange(int id, int notification)
{
    if (const auto code = OptTransItems.Clicked(id, notification))
    {
        ChooseRange(code);
    }
}

void FrmAdvCalendar::ChooseRange(Code code)
{
    mRangeCode = code;
    if (code != state::kEntriesWithinDays)
    {
        EnableDays(false);
    }
    else if (!txtPrior.IsEnabled())
    {
        EnableDays(true);
        const DayBoxes boxes = DayBoxesOf(state::EditedParameter());
        txtPrior.SetText(boxes.prior);
        txtAfter.SetText(boxes.after);
    }
}

void FrmAdvCalendar::EnableDays(bool enabled)
{
    for (ui::Control* const control :
         std::initializer_list<ui::Control*>{&lblPrior, &txtPrior, &lblAfter, &txtAfter})
    {
        control->Enable(enabled);
    }
}

void FrmAdvCalendar::Store()
{
    const bool hasDays = mRangeCode == state::kEntriesWithinDays;
    const short after = hasDays ? DaysIn(txtAfter.Text()) : short{0};
    const short prior = hasDays ? DaysIn(txtPrior.Text()) : short{0};
    state::EditedParameter().CalendarAfter = after;
    state::EditedParameter().CalendarPrior = prior;
    UpdateRow(CalendarSetClause(ConflictCode(), mRangeCode, prior, after));
    state::EditedParameter().TransConflictOption = ConflictCode().value_or(kNoCode);
    state::EditedParameter().CalendarTransItem = mRangeCode.value_or(kNoCode);
}

void ShowAdvCalendar()
{
    FrmAdvCalendar().ShowModal();
}

} // namespace config
