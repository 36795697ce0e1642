// Messages that a user may meet, for the tour: in a run that goes well none comes up.
#pragma once

#include "tools/demo/Options.h"

namespace tools::demo
{

// Lets the component tell the user that no folder is chosen, and that a right is missing; the robot takes
// pictures of both messages and closes them. Throws what the robot's script threw.
void TourMessages(const Options& options);

} // namespace tools::demo
