// The dialog "Config Translation": the kinds of data, whether each takes part and in which direction. Opened
// by the Configure button of the main dialog.
#pragma once

namespace config
{

// Shows the dialog, modally and without an owner; returns when it is closed. Never throws.
void ShowConfigure();

} // namespace config
