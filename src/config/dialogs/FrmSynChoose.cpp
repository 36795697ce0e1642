#include "config/dialogs/FrmSynChoose.h"

#include "config/dialogs/FrmOutLookOption.h"
#include "config/dialogs/FrmSynContent.h"
#include "config/outlook/OutlookProfiles.h"
#include "config/store/ParameterStore.h"
#include "config/store/Translation.h"
#include "exchange/KindName.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/FitText.h"

namespace config
{

namespace
{

// Rows of lstTran.
constexpr int kNone = 0;
constexpr int kOutlook = 1;
constexpr wchar_t kOutlookSource[] = L"Outlook";

constexpr int kDirectionCount = 3;

} // namespace

FrmSynChoose::FrmSynChoose()
    : Dialog(IDD_SYNCHOOSE),
      lblPrompt(*this, IDC_CHOOSE_PROMPT),
      lblTranslators(*this, IDC_CHOOSE_TRANSLATORS_LABEL),
      lstTran(*this, IDC_CHOOSE_TRANSLATORS),
      fraOperation(*this, IDC_CHOOSE_OPERATION),
      OptSynType(*this, IDC_CHOOSE_DIRECTION, kDirectionCount, state::kOutlookToQuenlar),
      lblFolder(*this, IDC_CHOOSE_FOLDER_LABEL),
      txtFolder(*this, IDC_CHOOSE_FOLDER),
      cmdBrowse(*this, IDC_CHOOSE_BROWSE),
      cmdOption(*this, IDC_CHOOSE_OPTION),
      CmdOk(*this, IDOK),
      cmdCancel(*this, IDCANCEL)
{
}

void FrmSynChoose::OnInit()
{
    SetCaptions();
    ui::FitLabels(*this, {&lblPrompt});
    lstTran.Add(L"<None>");
    lstTran.Add(L"Ms Outlook");
    state::Trapped([&] {
        TakeFromRecord();
        LoadDefaultFolder(state::EditedParameter(), state::EditedParameter().TransObject);
        ShowFolder();
    });
}

void FrmSynChoose::SetCaptions()
{
    if (const exchange::KindName* kind = exchange::FindKindName(state::EditedParameter().TransObject);
        kind != nullptr)
    {
        SetCaption(resources::String(kind->Caption));
    }
    lblPrompt.SetText(resources::String(IDS_CHOOSE_PROMPT));
    lblTranslators.SetText(resources::String(IDS_CHOOSE_TRANSLATORS));
    fraOperation.SetText(resources::String(IDS_CHOOSE_OPERATION));
    for (const Direction& direction : Directions())
    {
        OptSynType.SetText(direction.TransType, resources::String(direction.Caption));
    }
    lblFolder.SetText(resources::String(IDS_CHOOSE_FOLDER));
    cmdBrowse.SetText(resources::String(IDS_CHOOSE_BROWSE));
    cmdOption.SetText(resources::String(IDS_CHOOSE_OPTION));
    CmdOk.SetText(resources::String(IDS_OK));
    cmdCancel.SetText(resources::String(IDS_CANCEL));
}

void FrmSynChoose::TakeFromRecord()
{
    mTransType = state::EditedParameter().TransType;
    mTransTypePic = state::EditedParameter().TransTypePic;
    mTransSource = state::EditedParameter().TransSource;
    OptSynType.Select(mTransType);
    lstTran.Select(mTransSource.empty() ? kNone : kOutlook);
}

void FrmSynChoose::ShowFolder()
{
    txtFolder.SetText(mTransSource.empty() ? std::wstring() : state::EditedParameter().CurrentFolder);
}

void FrmSynChoose::OnCommand(int id, int notification)
{
    state::Trapped([&] {
        if (const auto direction = OptSynType.Clicked(id, notification))
        {
            OnDirection(*direction);
            return;
        }
        switch (id)
        {
        case IDC_CHOOSE_TRANSLATORS:
            if (notification == LBN_SELCHANGE)
            {
                OnTranslator();
            }
            break;
        case IDC_CHOOSE_BROWSE: OnBrowse(); break;
        case IDC_CHOOSE_OPTION: OnOption(); break;
        case IDOK: OnOk(); break;
        default: Dialog::OnCommand(id, notification); break;
        }
    });
}

void FrmSynChoose::OnTranslator()
{
    if (lstTran.Selected() != kOutlook)
    {
        mTransSource.clear();
        txtFolder.SetText(L"");
        return;
    }
    mTransSource = kOutlookSource;
    const std::wstring& current = state::EditedParameter().CurrentFolder;
    txtFolder.SetText(current.empty() ? state::EditedParameter().DefaultFolder : current);
    if (!mDirectionChosen) // or the picture would contradict the option that the user sees set
    {
        mTransTypePic = state::EditedParameter().TransTypePic;
    }
}

void FrmSynChoose::OnDirection(long transType)
{
    if (const Direction* direction = FindDirection(transType); direction != nullptr)
    {
        mTransType = direction->TransType;
        mTransTypePic = direction->TransTypePic;
        mDirectionChosen = true;
    }
}

void FrmSynChoose::OnBrowse()
{
    if (CheckOutlookProfiles())
    {
        return;
    }
    FrmSynContent(state::EditedParameter()).ShowModalOver(*this);
    ShowFolder();
}

void FrmSynChoose::OnOption()
{
    if (CheckOutlookProfiles())
    {
        return;
    }
    FrmOutLookOption().ShowModal();
    ShowFolder();
}

void FrmSynChoose::OnOk()
{
    state::EditedParameter().TransSource = mTransSource;
    state::EditedParameter().TransType = mTransType;
    state::EditedParameter().TransTypePic = mTransTypePic;
    state::EditedParameter().IsTrans = !mTransSource.empty();
    Unload(IDOK);
}

} // namespace config
