// The component's two message dialogs, for the tour: in a run that goes well neither comes up.
#pragma once

#include "sandbox/demo/Options.h"

namespace sandbox::demo
{

// Shows the information dialog and the error dialog, has the robot take their pictures and closes them.
// Throws what the robot's script threw.
void TourMessages(const Options& options);

} // namespace sandbox::demo
