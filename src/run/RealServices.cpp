#include "run/FrmSynchronizeItem.h"

#include "config/FrmConfigure.h"
#include "config/OutlookProfiles.h"
#include "config/ParameterStore.h"
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
