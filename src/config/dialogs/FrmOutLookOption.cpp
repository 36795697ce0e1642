#include "config/dialogs/FrmOutLookOption.h"

#include "config/outlook/OutlookFolders.h"
#include "config/outlook/OutlookProfiles.h"
#include "config/outlook/ProfileText.h"
#include "config/outlook/SysReg.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/Choices.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/FitText.h"
#include "ui/ShowMessageBox.h"

namespace config
{

namespace
{

constexpr wchar_t kDefaultProfile[] = L"DefaultProfile";

bool UserWantsTheChange()
{
    return ui::ShowMessageBox(
               resources::Choose(L"你是否真的要改变Outlook的配置文件吗？如果Outlook没有退出请先退出它。",
                                 L"Are you sure to change the configuration of Outlook? "
                                 L"If Outlook haven't exited ,please quit it first!"),
               MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void Reconnect()
{
    auto& shared = state::Shared();
    shared.gOlNamespace = {};
    // Outlook keeps its session as long as anybody holds it: the old one has to end before the new one
    // starts.
    shared.gOlApplication = {};
    shared.gOlApplication = automation::Object::Create(L"Outlook.Application");
    shared.gOlNamespace = shared.gOlApplication.GetObject(L"GetNamespace", L"MAPI");
}

constexpr ui::CaptionRow kOptionCaptions[] = {
    {ui::kDialogCaption, IDS_PROFILE_CAPTION},
    {IDC_OUTLOOKOPTION_EXPLANATION, IDS_PROFILE_EXPLANATION},
    {IDC_OUTLOOKOPTION_LABEL, IDS_PROFILE_LABEL},
    {IDOK, IDS_OK},
    {IDCANCEL, IDS_CANCEL},
};

class FrmOutLookOption : public ui::Dialog
{
  public:
    FrmOutLookOption() : Dialog(IDD_OUTLOOKOPTION, kOptionCaptions, ui::Errors::AreTrapped) {}

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;

    void LoadProfiles();
    void ListProfiles();
    void ShowDefaultProfile();
    void OnOk();
    void ChangeProfile();

    ui::Label lblExplanation{*this, IDC_OUTLOOKOPTION_EXPLANATION};
    ui::ComboBox CmbProfile{*this, IDC_OUTLOOKOPTION_PROFILE};

    TSysReg mRegistry;
    std::wstring mProfileShown; // as the dialog was opened
};

} // namespace

void FrmOutLookOption::OnInit()
{
    ui::FitLabels(*this, {&lblExplanation});
    state::Trapped([&] { LoadProfiles(); });
    mProfileShown = CmbProfile.Text();
}

void FrmOutLookOption::LoadProfiles()
{
    if (OpenProfileKey(mRegistry) != 0)
    {
        ShowRegistryFailure(L"Open key error, code ", mRegistry);
        state::LogError();
        return;
    }
    ListProfiles();
    if (MoveToDefaultProfile(mRegistry) != 0)
    {
        ShowRegistryFailure(L"Open key error, code ", mRegistry);
        state::LogError();
        return;
    }
    ShowDefaultProfile();
}

void FrmOutLookOption::ListProfiles()
{
    std::vector<std::wstring> profiles;
    if (mRegistry.GetSubKeyNames(profiles) < 0)
    {
        ShowRegistryFailure(L"Get sub key names error, code ", mRegistry);
    }
    for (const std::wstring& profile : profiles)
    {
        CmbProfile.Add(profile);
    }
}

void FrmOutLookOption::ShowDefaultProfile()
{
    std::vector<std::wstring> names;
    if (mRegistry.GetValueNames(names) < 0)
    {
        ShowRegistryFailure(L"Get value names error, code ", mRegistry);
        return;
    }
    DWORD type = 0;
    automation::Value value;
    if (mRegistry.GetValue(kDefaultProfile, type, value) != 0)
    {
        ShowRegistryFailure(L"Get value error, code ", mRegistry);
        return;
    }
    if (const auto text = ProfileText(type, value))
    {
        CmbProfile.SetText(*text);
    }
}

void FrmOutLookOption::OnCommand(int id, int notification)
{
    if (id == IDOK)
    {
        OnOk();
    }
    else
    {
        Dialog::OnCommand(id, notification);
    }
}

void FrmOutLookOption::OnOk()
{
    if (CmbProfile.Text() != mProfileShown && UserWantsTheChange())
    {
        state::Trapped([&] { ChangeProfile(); });
    }
    Unload(IDOK);
}

void FrmOutLookOption::ChangeProfile()
{
    if (mRegistry.SetValue(kDefaultProfile, REG_SZ, CmbProfile.Text()) != 0)
    {
        ShowRegistryFailure(L"Set value error, code ", mRegistry);
    }
    Reconnect();
    PurgeMissingFolders();
}

void ShowOutLookOption()
{
    FrmOutLookOption().ShowModal();
}

} // namespace config
