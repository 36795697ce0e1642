#include "config/FrmAdvanced.h"

#include "config/FrmAdvActivites.h"
#include "config/FrmAdvCalendar.h"
#include "config/FrmAdvContacts.h"
#include "config/UserRows.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"

namespace config
{

namespace
{

constexpr UINT kConflictCaptions[] = {IDS_CONFLICT_ADD_ALL, IDS_CONFLICT_IGNORE_ALL, IDS_CONFLICT_NOTIFY,
                                      IDS_CONFLICT_HOST_WINS, IDS_CONFLICT_OUTLOOK_WINS};
constexpr int kConflictCount = static_cast<int>(std::size(kConflictCaptions));

std::wstring WhereOf(const wchar_t* objectName)
{
    return L"TransObject='" + std::wstring(objectName) + L"'";
}

} // namespace

FrmAdvanced::FrmAdvanced(UINT templateId, const wchar_t* objectName)
    : Dialog(templateId),
      SstbOption(*this, IDC_ADV_TABS),
      lblConflict(*this, IDC_ADV_CONFLICT_EXPLANATION),
      fraConflict(*this, IDC_ADV_CONFLICT_FRAME),
      OptConflict(*this, IDC_ADV_CONFLICT, kConflictCount, state::kAddAllConflicting),
      CmdOk(*this, IDOK),
      cmdCancel(*this, IDCANCEL),
      mObjectName(objectName)
{
}

void FrmAdvanced::OnInit()
{
    SetCaptions();
    SstbOption.AddPage(resources::String(IDS_CONFLICT_TAB),
                       {{IDC_ADV_CONFLICT_EXPLANATION, IDC_ADV_CONFLICT + kConflictCount - 1}});
    AddRangePage(SstbOption);
    state::Trapped(false, [&] {
        Load();
        return true;
    });
}

void FrmAdvanced::SetCaptions()
{
    SetCaption(Caption());
    lblConflict.SetText(resources::String(IDS_CONFLICT_EXPLANATION));
    fraConflict.SetText(resources::String(IDS_OPTIONS));
    for (int i = 0; i < kConflictCount; ++i)
    {
        OptConflict.SetText(state::kAddAllConflicting + i, resources::String(kConflictCaptions[i]));
    }
    CmdOk.SetText(resources::String(IDS_OK));
    cmdCancel.SetText(resources::String(IDS_CANCEL));
}

void FrmAdvanced::Load()
{
    automation::Recordset row;
    const automation::ClosesRecordset closes(row);
    if (OpenUserRecordset(row, L"Select * From " + std::wstring(kParameterTable) + L" Where " +
                                   WhereOf(mObjectName)))
    {
        return;
    }
    state::EditedParameter().TransConflictOption = automation::LongOf(row.ValueOf(L"TransConflictOption"));
    mConflictCode = state::EditedParameter().TransConflictOption;
    OptConflict.Select(mConflictCode);
    LoadRange(row);
}

void FrmAdvanced::UpdateRow(const std::wstring& setClause) const
{
    UpdateUserRows(setClause, kParameterTable, WhereOf(mObjectName));
}

void FrmAdvanced::OnCommand(int id, int notification)
{
    state::Trapped(false, [&] {
        if (const auto code = OptConflict.Clicked(id, notification))
        {
            mConflictCode = *code;
        }
        else if (id == IDOK)
        {
            Store();
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
        return true;
    });
}

LRESULT FrmAdvanced::OnNotify(const NMHDR& notification)
{
    SstbOption.Follow(notification);
    return 0;
}

int FrmAdvanced::FirstFocus() const
{
    return OptConflict.IdToFocus();
}

namespace
{

template<typename Form>
void Show()
{
    Form().ShowModal();
}

struct AdvancedForm
{
    const wchar_t* TransObject;
    void (*Show)();
};

constexpr AdvancedForm kForms[] = {
    {L"Contact", &Show<FrmAdvContacts>},
    {L"Task", &Show<FrmAdvActivites>},
    {L"Calendar", &Show<FrmAdvCalendar>},
};

} // namespace

void ShowAdvancedOptions(const std::wstring& objectName)
{
    for (const AdvancedForm& form : kForms)
    {
        if (objectName == form.TransObject)
        {
            form.Show();
        }
    }
}

} // namespace config
