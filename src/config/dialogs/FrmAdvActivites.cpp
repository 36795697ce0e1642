#include "config/dialogs/FrmAdvActivites.h"

#include "config/store/AdvancedOptions.h"
#include "resources/Strings.h"
#include "state/SharedState.h"

namespace config
{

namespace
{

constexpr int kTaskRangeCount = 2;

} // namespace

FrmAdvActivites::FrmAdvActivites()
    : FrmAdvanced(IDD_ADVACTIVITES, L"Task"),
      lblRange(*this, IDC_ADV_RANGE_EXPLANATION),
      fraRange(*this, IDC_ADV_RANGE_FRAME),
      OptTransRange(*this, IDC_ADV_RANGE, kTaskRangeCount, state::kAllTasks)
{
}

const wchar_t* FrmAdvActivites::Caption() const
{
    return resources::Choose(L"任务高级设置", L"Advanced Settings for Activities");
}

void FrmAdvActivites::AddRangePage(ui::TabPages& tabs)
{
    lblRange.SetText(resources::String(IDS_RANGE_EXPLANATION));
    fraRange.SetText(resources::String(IDS_OPTIONS));
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

} // namespace config
