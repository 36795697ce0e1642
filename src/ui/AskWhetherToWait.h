// The question when Outlook has been busy for long: a dialog may be open in it that only the user can close.
#pragma once

namespace ui
{

// True to try again, false to give up. For automation::AskWhenBusy.
bool AskWhetherToWait();

} // namespace ui
