#include "config/dialogs/FrmAdvanced.h"

#include "config/store/AdvancedOptions.h"
#include "resources/Strings.h"
#include "state/SharedState.h"

namespace config
{

namespace
{

constexpr int kTaskRangeCount = 2;

constexpr ui::CaptionRow kTaskOptionCaptions[] = {
    {ui::kDialogCaption, {L"任务高级设置", L"Advanced Settings for Activities"}},
    {IDC_ADV_RANGE_EXPLANATION, IDS_RANGE_EXPLANATION},
    {IDC_ADV_RANGE_FRAME, IDS_OPTIONS},
};

// The conflict rule, and whether all tasks are exchanged or only pending ones.
class FrmAdvActivites : public FrmAdvanced
{
  public:
    FrmAdvActivites() : FrmAdvanced(IDD_ADVACTIVITES, exchange::kTaskName, kTaskOptionCaptions) {}

  private:
    void AddRangePage(ui::TabPages& tabs) override;
    void LoadRange(const automation::Recordset& row) override;
    void OnRange(int id, int notification) override;
    void Store() override;

    ui::OptionGroup OptTransRange{*this, IDC_ADV_RANGE, kTaskRangeCount, state::kAllTasks};

    Code mRangeCode;
};

} // namespace

void FrmAdvActivites::AddRangePage(ui::TabPages& tabs)
{
    OptTransRange.SetText(state::kAllTasks, resources::String(IDS_TASKS_ALL));
    OptTransRange.SetText(state::kPendingTasks, resources::String(IDS_TASKS_PENDING));
    tabs.AddPage(resources::Choose(L"任务", L"Activities"),
                 {{IDC_ADV_RANGE_EXPLANATION, IDC_ADV_RANGE + kTaskRangeCount - 1}});
}

void FrmAdvActivites::LoadRange(const automation::Recordset& row)
{
    mRangeCode = CodeIn(row, L"TaskTransItem");
    state::EditedParameter().TaskTransItem = mRangeCode.value_or(kNoCode);
    OptTransRange.Select(state::EditedParameter().TaskTransItem);
}

void FrmAdvActivites::OnRange(int id, int notification)
{
    if (const auto code = OptTransRange.Clicked(id, notification))
    {
        mRangeCode = *code;
    }
}

void FrmAdvActivites::Store()
{
    if (!TaskOptionsDiffer(state::EditedParameter(), ConflictCode(), mRangeCode))
    {
        return;
    }
    UpdateRow(TaskSetClause(ConflictCode(), mRangeCode));
    state::EditedParameter().TransConflictOption = ConflictCode().value_or(kNoCode);
    state::EditedParameter().TaskTransItem = mRangeCode.value_or(kNoCode);
}

void ShowAdvActivites()
{
    FrmAdvActivites().ShowModal();
}

} // namespace config
