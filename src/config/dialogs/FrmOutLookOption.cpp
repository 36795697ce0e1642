#include "config/dialogs/FrmOutLookOption.h"

#include "config/outlook/OutlookFolders.h"
#include "config/outlook/OutlookProfiles.h"
#include "config/outlook/ProfileText.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"
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

void ConnectAnew()
{
    auto& shared = state::Shared();
    shared.gOlNamespace = {};
    // Outlook keeps its session as long as anybody holds it: the old one has to end before the new one
    // starts.
    shared.gOlApplication = {};
    shared.gOlApplication = automation::Object::Create(L"Outlook.Application");
    shared.gOlNamespace = shared.gOlApplication.GetObject(L"GetNamespace", L"MAPI");
}

} // namespace

FrmOutLookOption::FrmOutLookOption()
    : Dialog(IDD_OUTLOOKOPTION),
      lblExplanation(*this, IDC_OUTLOOKOPTION_EXPLANATION),
      lblProfile(*this, IDC_OUTLOOKOPTION_LABEL),
      CmbProfile(*this, IDC_OUTLOOKOPTION_PROFILE),
      CmdOk(*this, IDOK),
      cmdCancel(*this, IDCANCEL)
{
}

void FrmOutLookOption::OnInit()
{
    SetCaptions();
    ui::FitLabels(*this, {&lblExplanation});
    state::Trapped([&] { LoadProfiles(); });
    mProfileShown = CmbProfile.Text();
}

void FrmOutLookOption::SetCaptions()
{
    SetCaption(resources::String(IDS_PROFILE_CAPTION));
    lblExplanation.SetText(resources::String(IDS_PROFILE_EXPLANATION));
    lblProfile.SetText(resources::String(IDS_PROFILE_LABEL));
    CmdOk.SetText(resources::String(IDS_OK));
    cmdCancel.SetText(resources::String(IDS_CANCEL));
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
    state::Trapped([&] {
        if (id == IDOK)
        {
            OnOk();
        }
        else
        {
            Dialog::OnCommand(id, notification);
        }
    });
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
    ConnectAnew();
    PurgeMissingFolders();
}

} // namespace config
