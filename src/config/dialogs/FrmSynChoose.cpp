#include "config/dialogs/FrmSynChoose.h"

#include "config/dialogs/FrmOutLookOption.h"
#include "config/dialogs/FrmSynContent.h"
#include "config/outlook/OutlookProfiles.h"
#include "config/store/ParameterStore.h"
#include "config/store/Translation.h"
#include "exchange/KindName.h"
#include "resources/Strings.h"
#include "state/SharedState.h"
#include "ui/Choices.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
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

constexpr ui::CaptionRow kChooseCaptions[] = {
    {IDC_CHOOSE_PROMPT, IDS_CHOOSE_PROMPT},
    {IDC_CHOOSE_TRANSLATORS_LABEL, IDS_CHOOSE_TRANSLATORS},
    {IDC_CHOOSE_OPERATION, IDS_CHOOSE_OPERATION},
    {IDC_CHOOSE_FOLDER_LABEL, IDS_CHOOSE_FOLDER},
    {IDC_CHOOSE_BROWSE, IDS_CHOOSE_BROWSE},
    {IDC_CHOOSE_OPTION, IDS_CHOOSE_OPTION},
    {IDOK, IDS_OK},
    {IDCANCEL, IDS_CANCEL},
};

class FrmSynChoose : public ui::Dialog
{
  public:
    FrmSynChoose() : Dialog(IDD_SYNCHOOSE, kChooseCaptions, ui::Errors::AreTrapped) {}

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;

    void SetCaptions();
    void TakeFromRecord();
    void ShowFolder();
    void OnTranslator();
    void OnDirection(long transType);
    void OnBrowse();
    void OnOption();
    void OnOk();

    ui::Label lblPrompt{*this, IDC_CHOOSE_PROMPT};
    ui::ListBox lstTran{*this, IDC_CHOOSE_TRANSLATORS};
    ui::OptionGroup OptSynType{*this, IDC_CHOOSE_DIRECTION, kDirectionCount, state::kOutlookToQuenlar};
    ui::TextBox txtFolder{*this, IDC_CHOOSE_FOLDER};

    long mTransType = 0;
    std::wstring mTransTypePic;
    std::wstring mTransSource;
    bool mDirectionChosen = false; // by the user, in this dialog
};

} // namespace

void FrmSynChoose::OnInit()
{
    SetCaptions();
    ui::FitLabels(*this, {&lblPrompt});
    lstTran.Add(L"<None>");
    lstTran.Add(L"Ms Outlook");
    TakeFromRecord();
    LoadDefaultFolder(state::EditedParameter(), state::EditedParameter().TransObject);
    ShowFolder();
}

void FrmSynChoose::SetCaptions()
{
    if (const exchange::KindName* kind = exchange::FindKindName(state::EditedParameter().TransObject);
        kind != nullptr)
    {
        SetCaption(resources::String(kind->Caption));
    }
    for (const Direction& direction : Directions())
    {
        OptSynType.SetText(direction.TransType, resources::String(direction.Caption));
    }
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
    ShowSynContent(state::EditedParameter(), this);
    ShowFolder();
}

void FrmSynChoose::OnOption()
{
    if (CheckOutlookProfiles())
    {
        return;
    }
    ShowOutLookOption();
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

void ShowSynChoose()
{
    FrmSynChoose().ShowModal();
}

} // namespace config
