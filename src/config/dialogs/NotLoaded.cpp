#include "config/dialogs/NotLoaded.h"

#include "resources/Strings.h"
#include "ui/ShowMessage.h"

namespace config
{

void ShowNotLoaded()
{
    ui::ShowMessage(resources::String(IDS_ERROR), 0, resources::String(IDS_NOT_LOADED));
}

} // namespace config
