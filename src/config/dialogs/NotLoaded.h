// The message of a configuration dialog that could not load its settings. The dialog then writes nothing,
// because OK would overwrite settings that it has not read.
#pragma once

namespace config
{

// Says that the stored settings could not be read and that nothing will be stored.
void ShowNotLoaded();

} // namespace config
