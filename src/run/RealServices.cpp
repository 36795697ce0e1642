#include "run/FrmSynchronizeItem.h"

#include "config/dialogs/FrmConfigure.h"
#include "config/outlook/OutlookProfiles.h"
#include "config/store/ParameterStore.h"
#include "run/Runs.h"

namespace run
{

SynchronizeServices RealServices()
{
    return {
        .CheckOutlookProfiles = config::CheckOutlookProfiles,
        .SetSynParamenter = config::SetSynParamenter,
        .ShowConfigure = config::ShowConfigure,
        .RunTaskSync = RunTaskSync,
        .RunCalendarSync = RunCalendarSync,
        .RunContactSync = RunContactSync,
    };
}

void ShowSynchronizeItem()
{
    ShowSynchronizeItem(RealServices());
}

} // namespace run
