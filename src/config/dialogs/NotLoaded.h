// The answer of the configuration dialogs to settings that they cannot load: they say so and write nothing,
// since OK would otherwise overwrite settings that they have not read.
#pragma once

namespace config
{

// Tells the user that the stored settings could not be read and that nothing will be stored.
void TellThatNothingIsLoaded();

} // namespace config
