// What the configuration dialogs do when the host does not give them what is stored: they say so and write
// nothing, since OK would otherwise overwrite what they could not read.
#pragma once

namespace config
{

// Tells the user that the stored settings could not be read and that nothing will be stored.
void TellThatNothingIsLoaded();

} // namespace config
