#include "ui/AskWhetherToWait.h"

#include "resources/Strings.h"
#include "ui/ShowMessageBox.h"

namespace ui
{

bool AskWhetherToWait()
{
    return ShowMessageBox(resources::String(IDS_OUTLOOK_BUSY), MB_RETRYCANCEL | MB_ICONWARNING) == IDRETRY;
}

} // namespace ui
