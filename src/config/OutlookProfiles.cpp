#include "config/OutlookProfiles.h"

#include "config/LocalSysInfo.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "ui/ShowMessage.h"
#include "ui/ShowMessageBox.h"

namespace config
{

long OpenProfileKey(TSysReg& registry)
{
    return registry.OpenKey(HKEY_CURRENT_USER, ProfileKeyPath(GetOSVersionCode()));
}

void ShowRegistryFailure(const wchar_t* text, const TSysReg& registry)
{
    ui::ShowMessageBox(text + std::to_wstring(registry.APIErrorCode()), MB_OK);
}

bool CheckOutlookProfiles()
{
    return state::Trapped(true, [] {
        TSysReg registry;
        if (OpenProfileKey(registry) != 0)
        {
            ShowRegistryFailure(L"Open key error, code ", registry);
            state::LogError();
            return true;
        }
        std::vector<std::wstring> profiles;
        if (registry.GetSubKeyNames(profiles) > 0)
        {
            return false;
        }
        ui::ShowMessage(resources::String(IDS_ERROR), 0,
                        resources::Choose(L"请你先配置Outlook.", L"Please configue Outlook."));
        return true;
    });
}

} // namespace config
