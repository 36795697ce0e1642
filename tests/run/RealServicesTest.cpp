// The main dialog works with the component's own services, each in its place.
#include "config/dialogs/FrmConfigure.h"
#include "config/outlook/OutlookProfiles.h"
#include "config/store/ParameterStore.h"
#include "run/FrmSynchronizeItem.h"
#include "run/Runs.h"

#include <gtest/gtest.h>

namespace
{

// Whether the service calls this function and no other.
template<typename Signature, typename Function>
bool Calls(const std::function<Signature>& service, Function* function)
{
    Function* const* const called = service.template target<Function*>();
    return called != nullptr && *called == function;
}

TEST(RealServices, AreEachTheFunctionOfThatPurpose)
{
    const run::SynchronizeServices services = run::RealServices();
    EXPECT_TRUE(Calls(services.CheckOutlookProfiles, config::CheckOutlookProfiles));
    EXPECT_TRUE(Calls(services.SetSynParamenter, config::SetSynParamenter));
    EXPECT_TRUE(Calls(services.ShowConfigure, config::ShowConfigure));
    EXPECT_TRUE(Calls(services.RunTaskSync, run::RunTaskSync));
    EXPECT_TRUE(Calls(services.RunCalendarSync, run::RunCalendarSync));
    EXPECT_TRUE(Calls(services.RunContactSync, run::RunContactSync));
}

} // namespace
