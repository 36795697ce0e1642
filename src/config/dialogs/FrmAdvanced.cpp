#include "config/dialogs/FrmAdvanced.h"

#include "config/dialogs/NotLoaded.h"
#include "config/store/UserRows.h"
#include "data/Literals.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/FitText.h"

namespace config
{

namespace
{

constexpr UINT kConflictCaptions[] = {IDS_CONFLICT_ADD_ALL, IDS_CONFLICT_IGNORE_ALL, IDS_CONFLICT_NOTIFY,
                                      IDS_CONFLICT_HOST_WINS, IDS_CONFLICT_OUTLOOK_WINS};
static_assert(std::size(kConflictCaptions) == kConflictCount);

constexpr ui::CaptionRow kAdvancedCaptions[] = {
    {IDC_ADV_CONFLICT_EXPLANATION, IDS_CONFLICT_EXPLANATION},
    {IDC_ADV_CONFLICT_FRAME, IDS_OPTIONS},
    {IDOK, IDS_OK},
    {IDCANCEL, IDS_CANCEL},
};

std::wstring WhereOf(const exchange::KindName& kind)
{
    return L"TransObject=" + data::QuotedText(kind.TransObject);
}

} // namespace

FrmAdvanced::FrmAdvanced(UINT templateId, const exchange::KindName& kind,
                         std::span<const ui::CaptionRow> captions)
    : Dialog(templateId, kAdvancedCaptions, ui::Errors::AreTrapped), mKind(kind), mCaptions(captions)
{
}

void FrmAdvanced::OnInit()
{
    WriteCaptions(mCaptions);
    WriteConflictRules();
    SstbOption.AddPage(resources::String(IDS_CONFLICT_TAB),
                       {{IDC_ADV_CONFLICT_EXPLANATION, IDC_ADV_CONFLICT + kConflictCount - 1}});
    AddRangePage(SstbOption);
    FitExplanations();
    mIsLoaded = state::Trapped(false, [&] { return Load(); });
    if (!mIsLoaded)
    {
        ShowNotLoaded();
        CmdOk.Enable(false);
    }
}

// The pages' explanations lie in one place.
void FrmAdvanced::FitExplanations()
{
    ui::Label lblRange(*this, IDC_ADV_RANGE_EXPLANATION);
    if (lblRange.Handle() != nullptr)
    {
        ui::FitLabels(*this, {&lblConflict, &lblRange});
    }
    else
    {
        ui::FitLabels(*this, {&lblConflict});
    }
}

void FrmAdvanced::WriteConflictRules()
{
    for (int i = 0; i < kConflictCount; ++i)
    {
        OptConflict.SetText(state::kAddAllConflicting + i, resources::String(kConflictCaptions[i]));
    }
}

// False for failure.
bool FrmAdvanced::Load()
{
    automation::Recordset row;
    const automation::RecordsetCloser closer(row);
    if (OpenUserRecordset(row,
                          L"Select * From " + std::wstring(kParameterTable) + L" Where " + WhereOf(mKind)) ||
        row.AtEnd())
    {
        return false;
    }
    mConflictCode = CodeIn(row, L"TransConflictOption");
    state::EditedParameter().TransConflictOption = mConflictCode.value_or(kNoCode);
    OptConflict.Select(state::EditedParameter().TransConflictOption);
    LoadRange(row);
    return true;
}

Code FrmAdvanced::CodeIn(const automation::Recordset& row, const wchar_t* column)
{
    const automation::Value value = row.ValueOf(column);
    return automation::IsEmptyOrNull(value)
               ? Code()
               : state::Trapped(Code(), [&] { return Code(automation::LongOf(value)); });
}

void FrmAdvanced::UpdateRow(const std::wstring& setClause) const
{
    if (!setClause.empty())
    {
        UpdateUserRows(setClause, kParameterTable, WhereOf(mKind));
    }
}

void FrmAdvanced::OnCommand(int id, int notification)
{
    if (const auto code = OptConflict.Clicked(id, notification))
    {
        mConflictCode = *code;
    }
    else if (id == IDOK)
    {
        if (mIsLoaded)
        {
            Store();
        }
        Unload(IDOK);
    }
    else if (id == IDCANCEL)
    {
        Unload();
    }
    else
    {
        OnRange(id, notification);
    }
}

LRESULT FrmAdvanced::OnNotify(const NMHDR& notification)
{
    SstbOption.Follow(notification);
    return 0;
}

namespace
{

struct AdvancedForm
{
    const exchange::KindName& Kind;
    void (*Show)();
};

constexpr AdvancedForm kForms[] = {
    {exchange::kContactName, &ShowAdvContacts},
    {exchange::kTaskName, &ShowAdvActivites},
    {exchange::kCalendarName, &ShowAdvCalendar},
};

} // namespace

void ShowAdvancedOptions(const std::wstring& objectName)
{
    for (const AdvancedForm& form : kForms)
    {
        if (objectName == form.Kind.TransObject)
        {
            form.Show();
        }
    }
}

} // namespace config
